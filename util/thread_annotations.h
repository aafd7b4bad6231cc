// Names for clang's thread-safety attributes; other compilers see nothing.
#pragma once

#if defined(__clang__)
#define KESTREL_ANNOTATION(x) __attribute__((x))
#else
#define KESTREL_ANNOTATION(x)
#endif

#define CAPABILITY(x) KESTREL_ANNOTATION(capability(x))
#define SCOPED_CAPABILITY KESTREL_ANNOTATION(scoped_lockable)
#define GUARDED_BY(x) KESTREL_ANNOTATION(guarded_by(x))
#define REQUIRES(...) KESTREL_ANNOTATION(requires_capability(__VA_ARGS__))
#define ACQUIRE(...) KESTREL_ANNOTATION(acquire_capability(__VA_ARGS__))
#define TRY_ACQUIRE(...) KESTREL_ANNOTATION(try_acquire_capability(__VA_ARGS__))
#define RELEASE(...) KESTREL_ANNOTATION(release_capability(__VA_ARGS__))
#define EXCLUDES(...) KESTREL_ANNOTATION(locks_excluded(__VA_ARGS__))
#define NO_THREAD_SAFETY_ANALYSIS KESTREL_ANNOTATION(no_thread_safety_analysis)
