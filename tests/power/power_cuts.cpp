#include "tests/power/power_cuts.h"

#include <algorithm>

namespace {

// What a sector may hold; the last of the whole ones was written last.
struct sector_versions {
    std::size_t port = 0;
    std::uint64_t lba = 0;
    bool is_record = false;
    std::vector<sector_bytes> whole;
};

struct sector_choice {
    sector_bytes data{};
    bool torn = false;
};

sector_bytes torn_write(const sector_bytes& later, const sector_bytes& earlier) {
    constexpr std::size_t written = 256; // bytes
    sector_bytes sector = earlier;
    std::copy_n(later.begin(), written, sector.begin());
    return sector;
}

std::vector<sector_choice> choices_of(const sector_versions& sector) {
    std::vector<sector_choice> choices;
    for (const sector_bytes& version : sector.whole) {
        choices.push_back({version, false});
    }
    const std::size_t whole = sector.is_record ? choices.size() : 0;
    for (std::size_t later = 1; later < whole; ++later) {
        for (std::size_t earlier = 0; earlier < later; ++earlier) {
            const sector_bytes torn = torn_write(sector.whole[later], sector.whole[earlier]);
            if (torn != sector.whole[later] && torn != sector.whole[earlier]) {
                choices.push_back({torn, true});
            }
        }
    }
    return choices;
}

// The disks while their last writes are not yet lasting.
class unsettled_disks {
public:
    explicit unsettled_disks(const disk_pair& start) : disks_(start) {
        for (std::size_t port = 0; port < start.size(); ++port) {
            if (start[port]) {
                watch(port, 0, false);
                watch(port, record_address(*start[port]), true);
            }
        }
    }

    void apply(const disk_event& event) {
        if (event.is_flush) {
            flush(event.port);
        } else if (sector_versions* const watched = find(event)) {
            watched->whole.push_back(event.data);
        } else {
            disks_.at(event.port).value().sectors[event.lba] = event.data;
        }
    }

    void visit_cuts(const std::function<void(const power_cut&)>& visit) const {
        visit_from(0, {disks_, false}, visit);
    }

private:
    void watch(std::size_t port, std::uint64_t lba, bool is_record) {
        sectors_.push_back({port, lba, is_record, {sector_of(*disks_.at(port), lba)}});
    }

    sector_versions* find(const disk_event& event) {
        const auto found = std::find_if(sectors_.begin(), sectors_.end(), [&](const auto& one) {
            return one.port == event.port && one.lba == event.lba;
        });
        return found == sectors_.end() ? nullptr : &*found;
    }

    void flush(std::size_t port) {
        for (sector_versions& sector : sectors_) {
            if (sector.port == port) {
                sector.whole.erase(sector.whole.begin(), sector.whole.end() - 1);
            }
        }
    }

    void visit_from(std::size_t index, const power_cut& so_far,
                    const std::function<void(const power_cut&)>& visit) const {
        if (index == sectors_.size()) {
            visit(so_far);
            return;
        }
        const sector_versions& sector = sectors_[index];
        for (const sector_choice& choice : choices_of(sector)) {
            power_cut next = so_far;
            next.disks.at(sector.port).value().sectors[sector.lba] = choice.data;
            next.torn = next.torn || choice.torn;
            visit_from(index + 1, next, visit);
        }
    }

    disk_pair disks_;
    std::vector<sector_versions> sectors_;
};

} // namespace

event_recorder::event_recorder(scripted_library& library) : library_(library) {
    library_.on_call([this](const library_call& call) {
        const auto port = static_cast<std::size_t>(call.port);
        if (call.record) {
            events_.push_back({false, port, call.lba, *call.record});
        } else if (call.name == "krFlushHDDCache") {
            events_.push_back({true, port, 0, {}});
        }
    });
}

event_recorder::~event_recorder() {
    library_.on_call(nullptr);
}

void for_each_cut(const disk_pair& start, const disk_events& events,
                  const std::function<void(const power_cut&)>& visit) {
    unsettled_disks disks(start);
    disks.visit_cuts(visit);
    for (const disk_event& event : events) {
        disks.apply(event);
        disks.visit_cuts(visit);
    }
}
