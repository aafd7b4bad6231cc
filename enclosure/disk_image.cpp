#include "enclosure/disk_image.h"

#include "enclosure/problem.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <string>

namespace enclosure {

namespace {

constexpr int open_flags = O_RDWR | O_CLOEXEC | O_NOFOLLOW;

off_t byte_offset(std::uint64_t lba) {
    return static_cast<off_t>(lba * sector_size);
}

// Calls `transfer(at, left)` until all `size` bytes are through; interrupted and short
// transfers go on.
template<class Transfer> bool transfer_all(std::size_t size, off_t offset, Transfer transfer) {
    std::size_t done = 0;
    while (done < size) {
        const ssize_t now = transfer(done, size - done, offset + static_cast<off_t>(done));
        if (now < 0 && errno == EINTR) {
            continue;
        }
        if (now <= 0) {
            return false;
        }
        done += static_cast<std::size_t>(now);
    }
    return true;
}

} // namespace

disk_image disk_image::create(const std::filesystem::path& file, std::uint64_t sectors) {
    file_handle handle(::open(file.c_str(), open_flags | O_CREAT | O_EXCL, 0600));
    if (!handle) {
        throw problem("cannot create image file " + file.string() + ": " + reason() +
                      "; remove it or take another disk name");
    }
    if (::ftruncate(handle.get(), byte_offset(sectors)) != 0) {
        const std::string why = reason();
        ::unlink(file.c_str());
        throw problem("cannot make " + file.string() + " " + std::to_string(sectors) +
                      " sectors long: " + why + "; take a smaller disk");
    }
    return {std::move(handle), sectors};
}

disk_image::disk_image(const std::filesystem::path& file, std::uint64_t sectors)
    : file_(::open(file.c_str(), open_flags)), sectors_(sectors) {
    if (!file_) {
        throw problem("image file " + file.string() + " cannot be opened: " + reason());
    }
    struct stat status {};
    if (::fstat(file_.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
        throw problem("image file " + file.string() + " is no plain file");
    }
    if (status.st_size < byte_offset(sectors)) {
        throw problem("image file " + file.string() + " is shorter than its disk");
    }
}

bool disk_image::holds(std::uint64_t lba, std::uint64_t count) const {
    return lba < sectors_ && count <= sectors_ - lba;
}

bool disk_image::read(std::uint64_t lba, byte_room data) const {
    return holds(lba, data.size() / sector_size) &&
           transfer_all(data.size(), byte_offset(lba),
                        [&](std::size_t at, std::size_t left, off_t offset) {
                            return ::pread(file_.get(), data.data() + at, left, offset);
                        });
}

bool disk_image::write(std::uint64_t lba, byte_view data) {
    return holds(lba, data.size() / sector_size) &&
           transfer_all(data.size(), byte_offset(lba),
                        [&](std::size_t at, std::size_t left, off_t offset) {
                            return ::pwrite(file_.get(), data.data() + at, left, offset);
                        });
}

bool disk_image::clear(std::uint64_t lba, std::uint64_t count) {
    if (!holds(lba, count)) {
        return false;
    }
    if (count == 0 || ::fallocate(file_.get(), FALLOC_FL_PUNCH_HOLE | FALLOC_FL_KEEP_SIZE,
                                  byte_offset(lba), byte_offset(count)) == 0) {
        return true;
    }
    return errno == EOPNOTSUPP && write_zeros(lba, count);
}

bool disk_image::write_zeros(std::uint64_t lba, std::uint64_t count) {
    constexpr sector_data zeros{};
    std::uint64_t done = 0;
    while (done < count) {
        const extent next = extent_at(lba + done, count - done);
        for (std::uint64_t i = 0; next.stored && i < next.count; ++i) {
            if (!write(lba + done + i, zeros)) {
                return false;
            }
        }
        done += next.count;
    }
    return true;
}

bool disk_image::flush() {
    return ::fdatasync(file_.get()) == 0;
}

disk_image::extent disk_image::extent_at(std::uint64_t lba, std::uint64_t limit) const {
    const off_t here = byte_offset(lba);
    const off_t data = ::lseek(file_.get(), here, SEEK_DATA);
    if (data < 0) {
        // ENXIO: nothing stored from here on. Any other failure is met by reading.
        return {errno != ENXIO, limit};
    }
    const off_t first_stored = data - data % static_cast<off_t>(sector_size);
    if (first_stored > here) {
        return {false,
                std::min(limit, static_cast<std::uint64_t>(first_stored - here) / sector_size)};
    }
    const off_t hole = ::lseek(file_.get(), here, SEEK_HOLE);
    if (hole <= here) {
        return {true, limit};
    }
    const auto stored = (static_cast<std::uint64_t>(hole - here) + sector_size - 1) / sector_size;
    return {true, std::min(limit, stored)};
}

} // namespace enclosure
