// All enclosures and disks of one user.
#pragma once

#include "enclosure/cabinet.h"
#include "enclosure/scenario.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace enclosure {

// Handles that bridges of a desk get, each once.
inline constexpr std::uint32_t first_handle = 0x4B520001;
inline constexpr std::uint32_t last_handle = 0x4BFFFFFF;

// Hears what happens on a desk, on the thread that caused it. It must not change the desk then.
class desk_watcher {
public:
    desk_watcher() = default;
    virtual ~desk_watcher() = default;
    desk_watcher(const desk_watcher&) = delete;
    desk_watcher& operator=(const desk_watcher&) = delete;

    virtual void enclosure_added(const std::string& name) = 0;
    virtual void enclosure_removed(const std::string& name) = 0;
    virtual void bridge_arrived(const bridge& what) = 0;
    virtual void bridge_departed(std::uint32_t handle) = 0;

    // Something that is worth keeping has changed.
    virtual void enclosure_changed(const std::string& name) = 0;
    virtual void disk_added(const std::string& name) = 0;
    virtual void disk_removed(const std::string& name) = 0;
    virtual void next_handle_changed(std::uint32_t next) = 0;
};

// One thread at a time. Every operation that a person asks for throws problem when it cannot be
// done.
class desk {
public:
    // Image files live in `folder`, which exists.
    desk(std::filesystem::path folder, desk_watcher& watcher);

    void add_enclosure(cabinet_settings settings);
    void remove_enclosure(const std::string& name); // its disks go to the shelf
    void add_disk(const std::string& name, const identify_block& identity);
    void remove_disk(const std::string& name); // with its image; only from the shelf

    void insert(const std::string& enclosure, int bay, const std::string& disk);
    std::string pull(const std::string& enclosure, int bay); // gives the disk's name
    std::uint32_t plug(const std::string& enclosure, moment now);
    void unplug(const std::string& enclosure); // ends an export, too
    void warm_boot(const std::string& enclosure, moment now);
    void power_cut(const std::string& enclosure, moment now); // it comes back as after a restart
    void set_rate(const std::string& enclosure, std::uint64_t bytes_per_second, moment now);
    void add_fault(const std::string& enclosure, const fault_rule& rule);
    std::size_t clear_faults(const std::string& enclosure); // gives how many there were

    // Switches an enclosure on for an export instead of plugging it in, and off again. An export
    // has the lowest number from 1 that is free, also through restarts. It is not kept.
    void check_export(const std::string& enclosure) const;                // could it begin?
    std::uint32_t begin_export(const std::string& enclosure, moment now); // gives the number
    void end_export(const std::string& enclosure);

    // Puts the two disks of an enclosure that is not plugged in into a state; empty bays get
    // disks first, NAME-a, NAME-b or NAME-new. Only the enclosure's own disks are changed.
    void arrange(const std::string& enclosure, scenario state);

    // The bridge's answer; nothing when no bridge has that handle.
    std::optional<scsi_reply> execute(std::uint32_t handle, byte_view cdb, byte_view data_out,
                                      std::uint32_t allocation);

    // Lets time pass: restarts take place and copies go on, each by one piece at most. True:
    // more is due at `now`.
    bool advance(moment now);

    // When advance() is next needed; nothing while nothing is going on.
    std::optional<moment> next_event(moment now) const;

    // In order of their handles.
    std::vector<bridge> bridges() const;

    const cabinet& enclosure(const std::string& name) const { return cabinet_named(name); }
    const std::map<std::string, std::unique_ptr<cabinet>>& enclosures() const { return cabinets_; }
    const std::map<std::string, std::shared_ptr<disk>>& disks() const { return disks_; }

    // The enclosure and bay that a disk is in.
    struct place {
        std::string enclosure;
        int bay;
    };
    std::optional<place> place_of(const std::string& disk) const;

    // Taking up a former state: nothing of it is told to the watcher but arrivals.
    struct former_cabinet {
        cabinet_settings settings;
        std::array<std::string, ports> disks; // empty: empty bay
        bool plugged = false;
        std::uint64_t rate = mirror_copy::usual_rate;
        std::optional<kept_copy> copy;
        std::optional<raw_identity> unfilled; // as chip::unfilled()
        std::uint32_t last_handle = 0;
    };
    void restore_disk(const std::string& name, const identify_block& identity);
    void restore_unknown_disk(const std::string& name, const std::string& why);
    void restore_enclosure(const former_cabinet& former, moment now);
    void restore_next_handle(std::uint32_t next);

private:
    cabinet& cabinet_named(const std::string& name) const;
    const std::shared_ptr<disk>& disk_named(const std::string& name) const;
    std::filesystem::path image_of(const std::string& disk) const;
    void check_is_free(const std::string& disk) const;
    void check_supply(const cabinet& what, scenario state) const;
    void assign_place(cabinet_settings& settings) const;
    std::uint32_t take_handle();
    std::uint32_t free_export_number() const;
    void put_on_bus(cabinet& what, moment now,
                    const std::optional<kept_copy>& before = std::nullopt);
    void return_to_bus(cabinet& what, moment now,
                       const std::optional<kept_copy>& before = std::nullopt);
    void leave_bus(cabinet& what);
    scsi_reply execute_on(cabinet& what, byte_view cdb, byte_view data_out,
                          std::uint32_t allocation);
    bool advance_cabinet(cabinet& what, moment now);
    std::shared_ptr<disk> stocked_disk(const std::string& name);

    std::filesystem::path folder_;
    desk_watcher& watcher_;
    std::map<std::string, std::unique_ptr<cabinet>> cabinets_;
    std::map<std::string, std::shared_ptr<disk>> disks_;
    std::uint32_t next_handle_ = first_handle;
};

} // namespace enclosure
