// A desk as it was left, and pairs of disks in a wanted state.
#include "enclosure/desk.h"
#include "enclosure/names.h"
#include "enclosure/problem.h"

#include <algorithm>

namespace enclosure {

namespace {

constexpr std::uint64_t stock_sectors = 3'907'029'168; // 2 TB
constexpr int second_bay = 1;

std::string stock_name(const std::string& enclosure, int bay) {
    return enclosure + (bay == 0 ? "-a" : "-b");
}

std::string blank_name(const std::string& enclosure) {
    return enclosure + "-new";
}

// The disk that a broken array was given in place of its second one.
bool holds_blank(const cabinet& what) {
    const std::shared_ptr<disk>& second = what.disks().at(second_bay);
    return second && second->name() == blank_name(what.settings().name);
}

} // namespace

void desk::restore_disk(const std::string& name, const identify_block& identity) {
    disks_.emplace(name, std::make_shared<disk>(disk::open(name, identity, image_of(name))));
}

void desk::restore_unknown_disk(const std::string& name, const std::string& why) {
    disks_.emplace(name, std::make_shared<disk>(disk::unknown(name, why)));
}

void desk::restore_next_handle(std::uint32_t next) {
    next_handle_ = std::max({next_handle_, next, first_handle});
}

void desk::restore_enclosure(const former_cabinet& former, moment now) {
    const std::string& name = former.settings.name;
    auto made = std::make_unique<cabinet>(former.settings);
    for (int bay = 0; bay < ports; ++bay) {
        const std::string& in_bay = former.disks[static_cast<std::size_t>(bay)];
        const auto known = disks_.find(in_bay);
        const bool twice = bay > 0 && in_bay == former.disks[0];
        if (known != disks_.end() && !twice && !place_of(in_bay)) {
            made->insert(bay, known->second);
        }
    }
    made->bridge_chip().copy().set_rate(former.rate, now);
    made->bridge_chip().restore_unfilled(former.unfilled);
    made->restore_last_handle(former.last_handle);
    cabinet& what = *cabinets_.emplace(name, std::move(made)).first->second;
    watcher_.enclosure_added(name);
    if (former.plugged) {
        return_to_bus(what, now, former.copy);
    }
}

std::shared_ptr<disk> desk::stocked_disk(const std::string& name) {
    if (!disks_.contains(name)) {
        disk_label label;
        label.model = "Kestrel Example Disk";
        label.serial = name.substr(name.size() - std::min<std::size_t>(name.size(), 20));
        label.sectors = stock_sectors;
        add_disk(name, build_identify(label));
    }
    return disks_.at(name);
}

// Before anything is changed: are the disks to be had that are going to be put in?
void desk::check_supply(const cabinet& what, scenario state) const {
    const std::string& enclosure = what.settings().name;
    const bool exchanged = holds_blank(what);
    for (int bay = 0; bay < ports; ++bay) {
        if (!what.disks().at(bay) || (bay == second_bay && exchanged)) {
            check_name("disk", stock_name(enclosure, bay));
            check_is_free(stock_name(enclosure, bay));
        }
    }
    if (state == scenario::broken && !exchanged) {
        check_name("disk", blank_name(enclosure));
        check_is_free(blank_name(enclosure));
    }
}

void desk::arrange(const std::string& enclosure, scenario state) {
    cabinet& what = cabinet_named(enclosure);
    if (what.plugged()) {
        throw problem("enclosure '" + enclosure + "' is plugged in; 'krenclosure unplug " +
                      enclosure + "' first");
    }
    check_supply(what, state);
    if (holds_blank(what)) {
        pull(enclosure, second_bay);
    }
    for (int bay = 0; bay < ports; ++bay) {
        if (!what.disks().at(bay)) {
            insert(enclosure, bay, stocked_disk(stock_name(enclosure, bay))->name());
        }
    }
    write_records(state, *what.disks().at(0), *what.disks().at(1));
    what.bridge_chip().forget_copy();
    watcher_.enclosure_changed(enclosure);
    if (state == scenario::degraded || state == scenario::broken) {
        pull(enclosure, second_bay);
    }
    if (state == scenario::broken) {
        const std::shared_ptr<disk> blank = stocked_disk(blank_name(enclosure));
        insert(enclosure, second_bay, blank->name());
        erase_record(*blank);
    }
}

} // namespace enclosure
