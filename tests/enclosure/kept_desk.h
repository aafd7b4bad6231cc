// A desk that is kept, as the host service keeps it; each is one life of the service.
#pragma once

#include "enclosure/state_store.h"

#include "tests/enclosure/quiet_watcher.h"

#include <filesystem>
#include <string>
#include <vector>

class kept_desk : private quiet_watcher {
public:
    explicit kept_desk(const std::filesystem::path& folder)
        : store(folder, [this](const std::string& line) { lines.push_back(line); }),
          on(store.image_folder(), *this) {
        store.load(on, enclosure::moment{0});
    }

    // Lets all of the time until then pass.
    void run(enclosure::moment until) {
        while (on.advance(until)) {
        }
    }

    std::vector<std::string> lines; // what was wrong with the kept state
    enclosure::state_store store;
    enclosure::desk on;

private:
    void enclosure_removed(const std::string& name) override { store.remove_enclosure(name); }
    void enclosure_changed(const std::string& name) override {
        store.save_enclosure(on.enclosure(name));
    }
    void disk_added(const std::string& name) override { store.save_disk(*on.disks().at(name)); }
    void disk_removed(const std::string& name) override { store.remove_disk(name); }
    void next_handle_changed(std::uint32_t next) override { store.save_next_handle(next); }
};
