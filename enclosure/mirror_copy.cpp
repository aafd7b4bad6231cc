#include "enclosure/mirror_copy.h"

#include <algorithm>
#include <vector>

namespace enclosure {

namespace {

constexpr std::uint64_t piece = 2048;         // sectors of data copied at a time: 1 MiB
constexpr std::uint64_t most_empty = 1 << 21; // sectors without data skipped at a time: 1 GiB

// Sectors that a rate yields in a time. A rate of up to 1e9 bytes keeps every product in 64 bits
// for the first 500 years.
std::uint64_t sectors_in(moment time, std::uint64_t bytes_per_second) {
    constexpr std::uint64_t second = 1'000'000'000; // nanoseconds
    const auto elapsed = static_cast<std::uint64_t>(std::max(time, moment{0}).count());
    const std::uint64_t bytes =
        elapsed / second * bytes_per_second + elapsed % second * bytes_per_second / second;
    return bytes / sector_size;
}

} // namespace

void mirror_copy::begin(const copy_progress& from, moment now) {
    progress_ = from;
    running_ = from.done < from.sectors;
    measure_from(now);
}

void mirror_copy::forget() {
    running_ = false;
    progress_.reset();
}

void mirror_copy::expect(int source, std::uint64_t sectors) {
    running_ = false;
    progress_ = copy_progress{source, sectors, 0};
}

void mirror_copy::go_back_to(std::uint64_t lba) {
    if (unfinished()) {
        progress_->done = std::min(progress_->done, lba);
        done_then_ = std::min(done_then_, lba);
    }
}

bool mirror_copy::flush_target() const {
    if (!progress_) {
        return false;
    }
    const std::shared_ptr<disk>& target = disks_.at(1 - progress_->source);
    return target && target->answers() && target->image().flush();
}

void mirror_copy::set_rate(std::uint64_t bytes_per_second, moment now) {
    measure_from(now);
    rate_ = bytes_per_second;
}

void mirror_copy::measure_from(moment now) {
    measured_from_ = now;
    done_then_ = progress_ ? progress_->done : 0;
}

std::uint64_t mirror_copy::due(moment now) const {
    if (rate_ == unlimited) {
        return progress_->sectors;
    }
    const std::uint64_t left = progress_->sectors - done_then_;
    return done_then_ + std::min(left, sectors_in(now - measured_from_, rate_));
}

bool mirror_copy::advance(moment now) {
    if (!running_) {
        return false;
    }
    const std::uint64_t target = due(now);
    if (progress_->done >= target) {
        return false;
    }
    const std::uint64_t copied = copy_piece(target - progress_->done);
    if (copied == 0) {
        measure_from(now);
        return false;
    }
    progress_->done += copied;
    running_ = progress_->done < progress_->sectors;
    return running_ && progress_->done < target;
}

std::uint64_t mirror_copy::copy_piece(std::uint64_t limit) {
    const std::shared_ptr<disk>& source = disks_.at(progress_->source);
    if (!source || !source->answers()) {
        return 0;
    }
    const std::uint64_t lba = progress_->done;
    // Bounded, so that a fault far away does not slow down what lies before it.
    const disk_image::extent next = source->image().extent_at(lba, std::min(limit, most_empty));
    const bool faults = path_.concerns(progress_->source, lba, next.count) ||
                        path_.concerns(1 - progress_->source, lba, next.count);
    if (next.stored || faults) {
        const std::uint64_t count = std::min(next.count, piece);
        return copy_stored(lba, count) ? count : 0;
    }
    return clear_target(lba, next.count) ? next.count : 0;
}

bool mirror_copy::copy_stored(std::uint64_t lba, std::uint64_t count) {
    buffer_.resize(piece * sector_size);
    const byte_room data(buffer_.data(), count * sector_size);
    return path_.perform({io_kind::read, progress_->source, lba, count, data}) &&
           path_.perform({io_kind::write, 1 - progress_->source, lba, count, data});
}

bool mirror_copy::clear_target(std::uint64_t lba, std::uint64_t count) {
    return path_.perform({io_kind::write, 1 - progress_->source, lba, count, {}});
}

} // namespace enclosure
