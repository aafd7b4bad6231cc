#include "app/background.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>

#include "app/main_window.h"

// background.S
extern "C" const uchar kestrel_background_1x[]; // NOLINT(modernize-avoid-c-arrays)
extern "C" const uchar kestrel_background_2x[]; // NOLINT(modernize-avoid-c-arrays)

namespace {

// What background.S insists on.
static_assert(main_window::width_of_content == 800 && main_window::height_of_content == 630);

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

} // namespace

QImage background(double ratio) {
    const int scale = ratio > 1.0 ? 2 : 1;
    QImage image(scale == 2 ? kestrel_background_2x : kestrel_background_1x,
                 main_window::width_of_content * scale, main_window::height_of_content * scale,
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    return image;
}

void rest_background(const QImage& painted) {
    const uchar* pixels = painted.constBits();
    if (pixels == kestrel_background_1x || pixels == kestrel_background_2x) {
        rest(pixels, static_cast<std::size_t>(painted.sizeInBytes()));
    }
}
