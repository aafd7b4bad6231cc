#include "enclosure/disk.h"

#include "enclosure/problem.h"

#include <algorithm>

namespace enclosure {

namespace {

// Zeros take no space in the image, whether they came as data or not.
bool all_zero(byte_view data) {
    return std::all_of(data.begin(), data.end(), [](std::uint8_t byte) { return byte == 0; });
}

} // namespace

disk::disk(std::string name, const identify_block& identity)
    : name_(std::move(name)), identity_(identity), sectors_(identify_sectors(identity)) {}

disk disk::create(std::string name, const identify_block& identity,
                  const std::filesystem::path& image) {
    disk made(std::move(name), identity);
    check_disk_size(made.sectors_);
    made.image_ = disk_image::create(image, made.sectors_);
    return made;
}

disk disk::open(std::string name, const identify_block& identity,
                const std::filesystem::path& image) {
    disk found(std::move(name), identity);
    try {
        check_disk_size(found.sectors_);
        found.image_.emplace(image, found.sectors_);
    } catch (const problem& trouble) {
        found.missing_ = trouble.what();
    }
    return found;
}

disk disk::unknown(std::string name, std::string why) {
    disk found(std::move(name), identify_block{});
    found.missing_ = std::move(why);
    return found;
}

bool disk::perform(const io_request& request) {
    if (!image_) {
        return false;
    }
    switch (request.kind) {
    case io_kind::read:
        return request.data.empty() || image_->read(request.lba, request.data);
    case io_kind::write:
        return write(request);
    case io_kind::flush:
        return flush();
    case io_kind::identify:
        std::copy(identity_.begin(), identity_.end(), request.data.begin());
        return true;
    }
    return false;
}

bool disk::write(const io_request& request) {
    unflushed_.note(*image_, request.lba, request.count);
    return all_zero(request.data) ? image_->clear(request.lba, request.count)
                                  : image_->write(request.lba, request.data);
}

bool disk::flush() {
    if (!image_->flush()) {
        return false;
    }
    unflushed_.settle();
    return true;
}

bool disk::lose_unflushed() {
    return !image_ || unflushed_.undo(*image_);
}

} // namespace enclosure
