#include "app/background.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>

#include "app/pictures.h"

namespace {

// Whole pages only: others share the first and the last one.
void rest(const uchar* pixels, std::size_t size) {
    const auto page = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
    const auto begin = reinterpret_cast<std::uintptr_t>(pixels);
    const std::uintptr_t first = (begin + page - 1) / page * page;
    const std::uintptr_t last = (begin + size) / page * page;
    if (first < last) {
        // Read-only pages of the program's file, as every loader of this system maps them: they
        // are read again when touched. A refusal costs memory, nothing else.
        ::madvise(reinterpret_cast<void*>(first), last - first, MADV_DONTNEED); // NOLINT
    }
}

bool is_background(const QImage& image) {
    return image.constBits() == background(image.devicePixelRatio()).constBits();
}

} // namespace

QImage background(double ratio) {
    return picture(QStringLiteral("RaidGUI_lumen_2.png"), ratio);
}

void rest_background(const QImage& painted) {
    if (!painted.isNull() && is_background(painted)) {
        rest(painted.constBits(), static_cast<std::size_t>(painted.sizeInBytes()));
    }
}
