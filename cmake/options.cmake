# Warnings, hardening and sanitizers that every target of ours is built with.
add_library(kestrel_options INTERFACE)
target_include_directories(kestrel_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(kestrel_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
    $<$<CXX_COMPILER_ID:Clang>:-Wthread-safety>)

if(KESTREL_SANITIZE)
    add_compile_options(-fsanitize=${KESTREL_SANITIZE} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${KESTREL_SANITIZE})
    if(KESTREL_FUZZ)
        add_compile_options(-fsanitize=fuzzer-no-link)
    endif()
else()
    target_compile_options(kestrel_options INTERFACE
        -fstack-protector-strong $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
endif()
# Every symbol is resolved at start, so that a library that lacks one is refused at once.
add_link_options(-Wl,-z,relro,-z,now)

# kestrel_precompile(TARGET HEADERS...): large headers of others, compiled once for the target.
function(kestrel_precompile target)
    if(KESTREL_PCH)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()

# kestrel_precompiled_as(TARGET OWNER): the same headers as the owner, a target of the same kind.
function(kestrel_precompiled_as target owner)
    if(KESTREL_PCH)
        target_precompile_headers(${target} REUSE_FROM ${owner})
    endif()
endfunction()

# kestrel_library(NAME SOURCES...): one static library per folder.
function(kestrel_library name)
    add_library(${name} STATIC ${ARGN})
    target_link_libraries(${name} PUBLIC kestrel_options)
endfunction()
