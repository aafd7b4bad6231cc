#include "enclosure/in_process_bench.h"

#include "enclosure/problem.h"

#include <stdlib.h>

#include <algorithm>
#include <map>
#include <system_error>

namespace enclosure {

namespace {

std::filesystem::path make_folder() {
    std::string pattern =
        (std::filesystem::temp_directory_path() / "kestrel-bench-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) {
        throw problem("cannot make a temporary folder " + pattern + "; make room for it");
    }
    return pattern;
}

template<class Action> class at_end {
public:
    explicit at_end(Action action) : action_(action) {}
    ~at_end() { action_(); }
    at_end(const at_end&) = delete;
    at_end& operator=(const at_end&) = delete;

private:
    Action action_;
};

} // namespace

// Gathers what happens on the bus until it is told.
class in_process_bench::bench_watcher final : public desk_watcher {
public:
    void bridge_arrived(const bridge& what) override {
        present_[what.handle] = what;
        events_.push_back({true, what});
    }

    void bridge_departed(std::uint32_t handle) override {
        events_.push_back({false, present_[handle]});
        present_.erase(handle);
    }

    void enclosure_added(const std::string&) override {}
    void enclosure_removed(const std::string&) override {}
    void enclosure_changed(const std::string&) override {}
    void disk_added(const std::string&) override {}
    void disk_removed(const std::string&) override {}
    void next_handle_changed(std::uint32_t) override {}

    std::optional<bus_event> take() {
        if (events_.empty()) {
            return std::nullopt;
        }
        bus_event first = std::move(events_.front());
        events_.pop_front();
        return first;
    }

private:
    std::map<std::uint32_t, bridge> present_;
    std::deque<bus_event> events_;
};

// Does something with the desk and then lets happen what follows from it at this moment.
template<class Action> auto in_process_bench::with_desk(Action action) {
    const at_end told{[this] { tell(); }};
    const std::lock_guard lock(mutex_);
    const at_end settled{[this] { settle(); }};
    return action(*desk_);
}

void in_process_bench::settle() {
    while (desk_->advance(now_)) {
    }
}

// A handler may use the bench: what happens then is told by the call that told it.
void in_process_bench::tell() {
    std::unique_lock lock(mutex_);
    if (telling_) {
        return;
    }
    telling_ = true;
    while (const std::optional<bus_event> event = watcher_->take()) {
        const bus_handler handler = handler_;
        lock.unlock();
        if (handler) {
            handler(*event);
        }
        lock.lock();
    }
    telling_ = false;
}

class in_process_bench::bench_transport final : public transport {
public:
    explicit bench_transport(in_process_bench& bench) : bench_(bench) {}

    bridge_listing bridges() override {
        bridge_listing listing;
        for (const bridge& seen : bench_.bridges()) {
            listing.handles.push_back(seen.handle);
        }
        return listing;
    }

    delivery open(std::uint32_t handle) override {
        const std::vector<std::uint32_t> handles = bridges().handles;
        const bool there = std::find(handles.begin(), handles.end(), handle) != handles.end();
        return there ? delivery::answered : delivery::gone;
    }

    void close(std::uint32_t) override {}

    exchange execute(std::uint32_t handle, byte_view cdb, byte_view data_out,
                     std::uint32_t allocation) override {
        return bench_.execute(handle, cdb, data_out, allocation);
    }

private:
    in_process_bench& bench_;
};

in_process_bench::in_process_bench()
    : folder_(make_folder()),
      watcher_(std::make_unique<bench_watcher>()),
      desk_(std::make_unique<desk>(folder_, *watcher_)),
      transport_(std::make_unique<bench_transport>(*this)),
      library_(*transport_) {}

in_process_bench::~in_process_bench() {
    desk_.reset();
    std::error_code ignored; // a temporary folder may already have been cleaned up
    std::filesystem::remove_all(folder_, ignored);
}

exchange in_process_bench::execute(std::uint32_t handle, byte_view cdb, byte_view data_out,
                                   std::uint32_t allocation) {
    return with_desk([&](desk& on) {
        std::optional<scsi_reply> reply = on.execute(handle, cdb, data_out, allocation);
        if (!reply) {
            return exchange{delivery::gone, {}};
        }
        const bool in_time = !reply->unanswered && reply->delay <= answer_limit;
        now_ += in_time ? reply->delay : answer_limit;
        if (!in_time) {
            return exchange{delivery::no_answer, {}};
        }
        return exchange{delivery::answered, std::move(*reply)};
    });
}

void in_process_bench::on_bus_event(bus_handler handler) {
    const std::lock_guard lock(mutex_);
    handler_ = std::move(handler);
}

void in_process_bench::add_enclosure(const cabinet_settings& settings) {
    with_desk([&](desk& on) { on.add_enclosure(settings); });
}

void in_process_bench::add_disk(const std::string& name, const disk_label& label) {
    add_disk(name, build_identify(label));
}

void in_process_bench::add_disk(const std::string& name, const identify_block& identity) {
    with_desk([&](desk& on) { on.add_disk(name, identity); });
}

void in_process_bench::insert(const std::string& enclosure, int bay, const std::string& disk) {
    with_desk([&](desk& on) { on.insert(enclosure, bay, disk); });
}

void in_process_bench::pull(const std::string& enclosure, int bay) {
    with_desk([&](desk& on) { on.pull(enclosure, bay); });
}

std::uint32_t in_process_bench::plug(const std::string& enclosure) {
    return with_desk([&](desk& on) { return on.plug(enclosure, now_); });
}

void in_process_bench::unplug(const std::string& enclosure) {
    with_desk([&](desk& on) { on.unplug(enclosure); });
}

void in_process_bench::warm_boot(const std::string& enclosure) {
    with_desk([&](desk& on) { on.warm_boot(enclosure, now_); });
}

void in_process_bench::power_cut(const std::string& enclosure) {
    with_desk([&](desk& on) { on.power_cut(enclosure, now_); });
}

void in_process_bench::set_rate(const std::string& enclosure, std::uint64_t bytes_per_second) {
    with_desk([&](desk& on) { on.set_rate(enclosure, bytes_per_second, now_); });
}

void in_process_bench::add_fault(const std::string& enclosure, const fault_rule& rule) {
    with_desk([&](desk& on) { on.add_fault(enclosure, rule); });
}

void in_process_bench::clear_faults(const std::string& enclosure) {
    with_desk([&](desk& on) { on.clear_faults(enclosure); });
}

void in_process_bench::arrange(const std::string& enclosure, scenario state) {
    with_desk([&](desk& on) { on.arrange(enclosure, state); });
}

void in_process_bench::advance(moment by) {
    with_desk([&](desk&) { now_ += by; });
}

std::uint32_t in_process_bench::handle_of(const std::string& enclosure) {
    return with_desk([&](desk& on) { return on.enclosure(enclosure).handle().value_or(0); });
}

std::vector<bridge> in_process_bench::bridges() {
    return with_desk([](desk& on) { return on.bridges(); });
}

volume in_process_bench::volume_of(const std::string& enclosure) {
    return with_desk([&](desk& on) { return on.enclosure(enclosure).bridge_chip().presented(); });
}

std::uint64_t in_process_bench::sectors_of(const std::string& disk) {
    return with_desk([&](desk& on) { return on.disks().at(disk)->sectors(); });
}

sector_data in_process_bench::read_image(const std::string& disk, std::uint64_t lba) {
    return with_desk([&](desk& on) {
        sector_data data{};
        if (!on.disks().at(disk)->image().read(lba, data)) {
            throw problem("disk '" + disk + "' has no sector " + std::to_string(lba));
        }
        return data;
    });
}

void in_process_bench::write_image(const std::string& disk, std::uint64_t lba,
                                   const sector_data& data) {
    with_desk([&](desk& on) {
        if (!on.disks().at(disk)->image().write(lba, data)) {
            throw problem("disk '" + disk + "' has no sector " + std::to_string(lba));
        }
    });
}

} // namespace enclosure
