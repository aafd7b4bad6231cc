// Enclosures in this process on a virtual clock, for tests.
#pragma once

#include "enclosure/bridge_access.h"
#include "enclosure/desk.h"

#include <chrono>
#include <deque>
#include <filesystem>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace enclosure {

// The same chip, desk and operations as the host service and the access library have, joined
// directly. Image files live in a temporary folder that goes with the bench. Any thread. What
// cannot be done throws problem.
class in_process_bench {
public:
    struct bus_event {
        bool arrived;   // else departed
        bridge subject; // a departed one as it was
    };
    using bus_handler = std::function<void(const bus_event&)>;

    in_process_bench();
    ~in_process_bench();
    in_process_bench(const in_process_bench&) = delete;
    in_process_bench& operator=(const in_process_bench&) = delete;

    // The twelve operations. An answer that takes time moves the clock on by that time, or by
    // the 5 seconds after which a caller gives up.
    bridge_access& library() { return library_; }

    // A command as a host sends it to a bridge on the bus; the clock moves on as above.
    exchange execute(std::uint32_t handle, byte_view cdb, byte_view data_out,
                     std::uint32_t allocation);

    // Arrivals and departures in their order and with no lock held, on a thread that uses the
    // bench at the time. The handler may use the bench.
    void on_bus_event(bus_handler handler);

    void add_enclosure(const cabinet_settings& settings);
    void add_disk(const std::string& name, const disk_label& label);
    void add_disk(const std::string& name, const identify_block& identity);
    void insert(const std::string& enclosure, int bay, const std::string& disk);
    void pull(const std::string& enclosure, int bay);
    std::uint32_t plug(const std::string& enclosure); // gives the handle
    void unplug(const std::string& enclosure);
    void warm_boot(const std::string& enclosure);
    void power_cut(const std::string& enclosure);
    void set_rate(const std::string& enclosure, std::uint64_t bytes_per_second);
    void add_fault(const std::string& enclosure, const fault_rule& rule);
    void clear_faults(const std::string& enclosure);
    void arrange(const std::string& enclosure, scenario state);

    // Moves the clock on, with all that happens meanwhile.
    void advance(moment by);

    // 0 while it is not on the bus.
    std::uint32_t handle_of(const std::string& enclosure);
    std::vector<bridge> bridges();
    volume volume_of(const std::string& enclosure);

    // A disk's sectors, past bays, chip and faults.
    std::uint64_t sectors_of(const std::string& disk);
    sector_data read_image(const std::string& disk, std::uint64_t lba);
    void write_image(const std::string& disk, std::uint64_t lba, const sector_data& data);

private:
    class bench_watcher;
    class bench_transport;

    template<class Action> auto with_desk(Action action);
    void settle();
    void tell();

    std::filesystem::path folder_;
    std::mutex mutex_; // guards everything up to telling_
    std::unique_ptr<bench_watcher> watcher_;
    std::unique_ptr<desk> desk_;
    moment now_{0};
    bus_handler handler_;
    bool telling_ = false;
    std::unique_ptr<bench_transport> transport_;
    bridge_access library_;
};

} // namespace enclosure
