#include "enclosure/desk.h"

#include "enclosure/names.h"
#include "enclosure/problem.h"

#include <algorithm>
#include <system_error>

namespace enclosure {

namespace {

constexpr std::size_t most_enclosures = 256; // as many as a device list has room for
constexpr std::size_t most_disks = 1024;

// Between two looks at a copy that is limited by its rate.
constexpr moment copy_interval = std::chrono::milliseconds(20);

constexpr std::int64_t first_location = 0x14100000;
constexpr std::int64_t location_step = 0x00100000;
constexpr std::uint64_t first_guid = 0x004B520000000001;

void check_bay(int bay) {
    if (!is_port(bay)) {
        throw problem("there is no bay " + std::to_string(bay) + "; take 0 or 1");
    }
}

// The first of start, start + step ... that `taken` does not hold.
template<class Number, class Taken> Number first_free(Number start, Number step, Taken taken) {
    while (taken(start)) {
        start += step;
    }
    return start;
}

} // namespace

desk::desk(std::filesystem::path folder, desk_watcher& watcher)
    : folder_(std::move(folder)), watcher_(watcher) {}

cabinet& desk::cabinet_named(const std::string& name) const {
    const auto found = cabinets_.find(name);
    if (found == cabinets_.end()) {
        throw problem("there is no enclosure '" + printable(name) +
                      "'; 'krenclosure list' shows those there are");
    }
    return *found->second;
}

const std::shared_ptr<disk>& desk::disk_named(const std::string& name) const {
    const auto found = disks_.find(name);
    if (found == disks_.end()) {
        throw problem("there is no disk '" + printable(name) +
                      "'; 'krenclosure list' shows those there are");
    }
    return found->second;
}

std::filesystem::path desk::image_of(const std::string& disk) const {
    return folder_ / (disk + ".img");
}

std::optional<desk::place> desk::place_of(const std::string& name) const {
    for (const auto& [enclosure, what] : cabinets_) {
        for (int bay = 0; bay < ports; ++bay) {
            const std::shared_ptr<disk>& there = what->disks().at(bay);
            if (there && there->name() == name) {
                return place{enclosure, bay};
            }
        }
    }
    return std::nullopt;
}

void desk::assign_place(cabinet_settings& settings) const {
    const auto taken = [this](auto member, auto value) {
        return std::any_of(cabinets_.begin(), cabinets_.end(), [&](const auto& entry) {
            return entry.second->settings().*member == value;
        });
    };
    if (settings.bus == bus_kind::usb && !settings.location) {
        settings.location = static_cast<std::int32_t>(
            first_free(first_location, location_step, [&](std::int64_t location) {
                return taken(&cabinet_settings::location,
                             std::optional(static_cast<std::int32_t>(location)));
            }));
    }
    if (settings.bus == bus_kind::firewire && !settings.guid) {
        settings.guid = first_free(first_guid, std::uint64_t{1}, [&](std::uint64_t guid) {
            return taken(&cabinet_settings::guid, std::optional(guid));
        });
    }
}

void desk::add_enclosure(cabinet_settings settings) {
    check_settings(settings);
    if (cabinets_.contains(settings.name)) {
        throw problem("enclosure '" + settings.name +
                      "' exists already; take another name or remove it first");
    }
    if (cabinets_.size() >= most_enclosures) {
        throw problem("there are 256 enclosures already; remove one first");
    }
    assign_place(settings);
    const std::string name = settings.name;
    cabinets_.emplace(name, std::make_unique<cabinet>(std::move(settings)));
    watcher_.enclosure_added(name);
    watcher_.enclosure_changed(name);
}

void desk::remove_enclosure(const std::string& name) {
    cabinet& what = cabinet_named(name);
    if (what.plugged()) {
        throw problem("enclosure '" + name + "' is plugged in; 'krenclosure unplug " + name +
                      "' first");
    }
    cabinets_.erase(name);
    watcher_.enclosure_removed(name);
}

void desk::add_disk(const std::string& name, const identify_block& identity) {
    check_name("disk", name);
    if (disks_.contains(name)) {
        throw problem("disk '" + name + "' exists already; take another name or remove it first");
    }
    if (disks_.size() >= most_disks) {
        throw problem("there are 1024 disks already; remove one first");
    }
    disks_.emplace(name, std::make_shared<disk>(disk::create(name, identity, image_of(name))));
    watcher_.disk_added(name);
}

void desk::remove_disk(const std::string& name) {
    disk_named(name);
    check_is_free(name);
    disks_.erase(name);
    std::error_code ignored; // a missing image is no reason to keep the disk
    std::filesystem::remove(image_of(name), ignored);
    watcher_.disk_removed(name);
}

void desk::check_is_free(const std::string& name) const {
    if (const auto where = place_of(name)) {
        throw problem("disk '" + name + "' is in bay " + std::to_string(where->bay) + " of '" +
                      where->enclosure + "'; pull it first");
    }
}

void desk::insert(const std::string& enclosure, int bay, const std::string& name) {
    check_bay(bay);
    cabinet& what = cabinet_named(enclosure);
    const std::shared_ptr<disk>& which = disk_named(name);
    check_is_free(name);
    if (const auto& there = what.disks().at(bay)) {
        throw problem("bay " + std::to_string(bay) + " of '" + enclosure + "' holds disk '" +
                      there->name() + "'; pull it first");
    }
    what.insert(bay, which);
    watcher_.enclosure_changed(enclosure);
}

std::string desk::pull(const std::string& enclosure, int bay) {
    check_bay(bay);
    cabinet& what = cabinet_named(enclosure);
    if (!what.disks().at(bay)) {
        throw problem("bay " + std::to_string(bay) + " of '" + enclosure +
                      "' is empty; there is nothing to pull");
    }
    std::string name = what.pull(bay)->name();
    watcher_.enclosure_changed(enclosure);
    return name;
}

std::uint32_t desk::take_handle() {
    if (next_handle_ > last_handle) {
        throw problem("every bridge handle has been used; remove the saved state and begin anew");
    }
    const std::uint32_t handle = next_handle_++;
    watcher_.next_handle_changed(next_handle_);
    return handle;
}

void desk::put_on_bus(cabinet& what, moment now, const std::optional<kept_copy>& before) {
    what.plug(take_handle(), now, before);
    watcher_.enclosure_changed(what.settings().name);
    if (const std::optional<bridge> seen = what.on_the_bus()) {
        watcher_.bridge_arrived(*seen);
    }
}

// Without a handle left for it, a bridge stays away as if it had been unplugged.
void desk::return_to_bus(cabinet& what, moment now, const std::optional<kept_copy>& before) {
    if (next_handle_ <= last_handle) {
        put_on_bus(what, now, before);
    } else {
        what.unplug();
        watcher_.enclosure_changed(what.settings().name);
    }
}

void desk::leave_bus(cabinet& what) {
    if (const std::optional<bridge> seen = what.on_the_bus()) {
        watcher_.bridge_departed(seen->handle);
    }
}

std::uint32_t desk::plug(const std::string& enclosure, moment now) {
    cabinet& what = cabinet_named(enclosure);
    if (what.export_number()) {
        throw problem("enclosure '" + enclosure + "' is exported; 'krenclosure unexport " +
                      enclosure + "' first");
    }
    if (what.plugged()) {
        throw problem("enclosure '" + enclosure + "' is plugged in already; unplug it first");
    }
    put_on_bus(what, now);
    return *what.handle();
}

void desk::unplug(const std::string& enclosure) {
    cabinet& what = cabinet_named(enclosure);
    if (!what.plugged()) {
        throw problem("enclosure '" + enclosure + "' is not plugged in; plug it in first");
    }
    leave_bus(what);
    what.unplug();
    watcher_.enclosure_changed(enclosure);
}

void desk::warm_boot(const std::string& enclosure, moment now) {
    cabinet& what = cabinet_named(enclosure);
    if (!what.handle()) {
        throw problem("enclosure '" + enclosure + "' is not on the bus; plug it in first");
    }
    leave_bus(what);
    what.begin_restart(now);
    watcher_.enclosure_changed(enclosure);
}

void desk::power_cut(const std::string& enclosure, moment now) {
    cabinet& what = cabinet_named(enclosure);
    if (!what.plugged()) {
        throw problem("enclosure '" + enclosure + "' is not plugged in; plug it in first");
    }
    leave_bus(what);
    const bool lost = what.cut_power(now);
    watcher_.enclosure_changed(enclosure);
    if (!lost) {
        throw problem("an image file of '" + enclosure +
                      "' cannot be written; look at its disk space");
    }
}

void desk::set_rate(const std::string& enclosure, std::uint64_t bytes_per_second, moment now) {
    if (bytes_per_second > mirror_copy::highest_rate) {
        throw problem("that rate is out of range; take up to 1000 MB/s or 'unlimited'");
    }
    cabinet_named(enclosure).bridge_chip().copy().set_rate(bytes_per_second, now);
    watcher_.enclosure_changed(enclosure);
}

void desk::add_fault(const std::string& enclosure, const fault_rule& rule) {
    cabinet_named(enclosure).faults().add(rule);
}

std::size_t desk::clear_faults(const std::string& enclosure) {
    fault_stack& faults = cabinet_named(enclosure).faults();
    const std::size_t count = faults.size();
    faults.clear();
    return count;
}

// A copy that a write has thrown back must not go on later where it was before.
scsi_reply desk::execute_on(cabinet& what, byte_view cdb, byte_view data_out,
                            std::uint32_t allocation) {
    const std::optional<copy_progress> before = what.bridge_chip().copy().progress();
    scsi_reply reply = what.bridge_chip().execute(cdb, data_out, allocation);
    if (what.bridge_chip().copy().progress() != before) {
        watcher_.enclosure_changed(what.settings().name);
    }
    return reply;
}

std::optional<scsi_reply> desk::execute(std::uint32_t handle, byte_view cdb, byte_view data_out,
                                        std::uint32_t allocation) {
    for (const auto& [name, what] : cabinets_) {
        if (what->handle() == handle) {
            return execute_on(*what, cdb, data_out, allocation);
        }
    }
    return std::nullopt;
}

bool desk::advance_cabinet(cabinet& what, moment now) {
    if (what.returns_at() && *what.returns_at() <= now) {
        return_to_bus(what, now);
    }
    if (!what.handle()) {
        return false;
    }
    if (what.bridge_chip().take_restart_request()) {
        warm_boot(what.settings().name, now);
        return what.returns_at() <= now;
    }
    const bool was_copying = what.bridge_chip().copy().running();
    const bool more = what.bridge_chip().advance(now);
    if (was_copying && !what.bridge_chip().copy().running()) {
        watcher_.enclosure_changed(what.settings().name);
    }
    return more;
}

bool desk::advance(moment now) {
    bool more = false;
    for (const auto& [name, what] : cabinets_) {
        more = advance_cabinet(*what, now) || more;
    }
    return more;
}

std::optional<moment> desk::next_event(moment now) const {
    std::optional<moment> next;
    for (const auto& [name, what] : cabinets_) {
        std::optional<moment> mine = what->returns_at();
        if (what->bridge_chip().copy().running()) {
            mine = now + copy_interval;
        }
        if (mine && (!next || *mine < *next)) {
            next = mine;
        }
    }
    return next;
}

std::vector<bridge> desk::bridges() const {
    std::vector<bridge> found;
    for (const auto& [name, what] : cabinets_) {
        if (const std::optional<bridge> seen = what->on_the_bus()) {
            found.push_back(*seen);
        }
    }
    std::sort(found.begin(), found.end(),
              [](const bridge& a, const bridge& b) { return a.handle < b.handle; });
    return found;
}

} // namespace enclosure
