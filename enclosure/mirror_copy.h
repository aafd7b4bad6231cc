// The copy of one mirror member to the other, carried out by the chip on its own.
#pragma once

#include "enclosure/bays.h"
#include "enclosure/fault_stack.h"
#include "enclosure/volume.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace enclosure {

struct copy_progress {
    int source = 0;
    std::uint64_t sectors = 0; // to be copied, from 0 on
    std::uint64_t done = 0;    // of them

    bool operator==(const copy_progress&) const = default;
};

// Copies in pieces, at a rate measured on the clock that is handed in. It reads the source and
// writes the target only within the area it was given. A piece that fails is tried again at the
// next call: a passing fault heals, a lasting one holds the copy where it is.
class mirror_copy {
public:
    static constexpr std::uint64_t unlimited = 0;
    static constexpr std::uint64_t usual_rate = 200'000'000;     // bytes per second
    static constexpr std::uint64_t highest_rate = 1'000'000'000; // bytes per second

    mirror_copy(bays& disks, fault_stack& path) : disks_(disks), path_(path) {}

    // Copies from `from.done` on. Sectors without data on the source count like others.
    void begin(const copy_progress& from, moment now);

    // Ends a copy; its progress stays as it is.
    void stop() { running_ = false; }

    // Forgets the last copy.
    void forget();

    // Forgets it in favour of one that a later begin() is to begin.
    void expect(int source, std::uint64_t sectors);

    // Copies again from `lba` on if it was beyond; a copy that has ended stays so.
    void go_back_to(std::uint64_t lba);

    // The sectors from 0 on that source and target have alike; 0 without a copy.
    std::uint64_t copied() const { return progress_ ? progress_->done : 0; }

    // A copy that has not come to its end, running or not.
    bool unfinished() const { return progress_ && progress_->done < progress_->sectors; }

    // Makes what was copied lasting, in the target's image file and past all faults. False: the
    // target is not there or its file system refused.
    bool flush_target() const;

    // Bytes per second, or unlimited. Holds from `now` on.
    void set_rate(std::uint64_t bytes_per_second, moment now);
    std::uint64_t rate() const { return rate_; }

    // Copies one piece of what is due at `now`. True: more is due.
    bool advance(moment now);

    bool running() const { return running_; }

    // The running copy, or the last one as it ended.
    const std::optional<copy_progress>& progress() const { return progress_; }

private:
    std::uint64_t due(moment now) const;
    void measure_from(moment now);
    std::uint64_t copy_piece(std::uint64_t limit);
    bool copy_stored(std::uint64_t lba, std::uint64_t count);
    bool clear_target(std::uint64_t lba, std::uint64_t count);

    bays& disks_;
    fault_stack& path_;
    std::optional<copy_progress> progress_;
    bool running_ = false;
    std::uint64_t rate_ = usual_rate;
    moment measured_from_{0};
    std::uint64_t done_then_ = 0;
    std::vector<std::uint8_t> buffer_; // of one piece, kept: new memory costs more than the copying
};

} // namespace enclosure
