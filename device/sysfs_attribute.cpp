#include "device/sysfs_attribute.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace {

constexpr std::size_t longest = 255;

bool is_printable(char c) {
    return c >= ' ' && c <= '~';
}

bool says_gone(int error) {
    return error == ENOENT || error == ENOTDIR || error == ENODEV || error == ENXIO;
}

// As much as is there, but for what is beyond the longest text and its line's end.
sysfs_reading content_of(int file) {
    std::array<char, longest + 2> bytes{};
    std::size_t size = 0;
    while (size < bytes.size()) {
        const ssize_t got = ::read(file, bytes.data() + size, bytes.size() - size);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            return {{}, !says_gone(errno)};
        }
        if (got == 0) {
            break;
        }
        size += static_cast<std::size_t>(got);
    }
    return {{bytes.data(), size}, size == 0};
}

} // namespace

sysfs_reading read_sysfs_attribute(const std::string& folder, const char* name) {
    const int file = ::open((folder + "/" + name).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0) {
        return {{}, !says_gone(errno)};
    }
    sysfs_reading reading = content_of(file);
    ::close(file);
    std::string& text = reading.text;
    if (text.ends_with('\n')) {
        text.pop_back();
    }
    const bool sound =
        text.size() <= longest && std::all_of(text.begin(), text.end(), is_printable);
    if (!sound) {
        text.clear();
    }
    return reading;
}

std::string sysfs_attribute(const std::string& folder, const char* name) {
    return read_sysfs_attribute(folder, name).text;
}
