#include "enclosure/unflushed_writes.h"

namespace enclosure {

void unflushed_writes::note(const disk_image& image, std::uint64_t lba, std::uint64_t count) {
    if (count > room) {
        settle();
        return;
    }
    former_content before{lba, std::vector<std::uint8_t>(count * sector_size)};
    if (!image.read(lba, before.data)) {
        return; // then it cannot be written either
    }
    while (held_ + count > room) {
        held_ -= former_.front().data.size() / sector_size;
        former_.pop_front();
    }
    former_.push_back(std::move(before));
    held_ += count;
}

void unflushed_writes::settle() {
    former_.clear();
    held_ = 0;
}

bool unflushed_writes::undo(disk_image& image) {
    bool done = true;
    for (; !former_.empty(); former_.pop_back()) {
        done = image.write(former_.back().lba, former_.back().data) && done;
    }
    held_ = 0;
    return done;
}

} // namespace enclosure
