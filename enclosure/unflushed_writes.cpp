#include "enclosure/unflushed_writes.h"

namespace enclosure {

void unflushed_writes::note(const disk_image& image, std::uint64_t lba, std::uint64_t count) {
    if (count > room) {
        settle();
        return;
    }
    std::vector<std::uint8_t> before; // in memory of before: new one costs more than the reading
    while (held_ + count > room) {
        held_ -= former_.front().count;
        before = std::move(former_.front().data);
        former_.pop_front();
    }
    const disk_image::extent there = image.extent_at(lba, count);
    const bool empty = !there.stored && there.count >= count;
    before.resize(empty ? 0 : count * sector_size);
    if (!empty && !image.read(lba, before)) {
        return; // then it cannot be written either
    }
    former_.push_back({lba, count, std::move(before)});
    held_ += count;
}

void unflushed_writes::settle() {
    former_.clear();
    held_ = 0;
}

bool unflushed_writes::undo(disk_image& image) {
    bool done = true;
    for (; !former_.empty(); former_.pop_back()) {
        const auto& [lba, count, data] = former_.back();
        done = (data.empty() ? image.clear(lba, count) : image.write(lba, data)) && done;
    }
    held_ = 0;
    return done;
}

} // namespace enclosure
