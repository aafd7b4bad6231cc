// The implementations of the access library that keep the same contract.
#pragma once

#include "device/linked_library.h"
#include "enclosure/in_process_bench.h"
#include "enclosure/sg_handle.h"
#include "enclosure/sg_transport.h"

#include "tests/enclosure/host_process.h"
#include "tests/support/emulated_sg.h"
#include "tests/support/enclosure_library.h"

#include <cstdint>
#include <string>

// Enclosures in this process.
class in_process_world {
public:
    access_library& library() { return library_; }

    void add_enclosure(const std::string& name, bool firewire);
    void add_disk(const std::string& name, const enclosure::identify_block& identity) {
        bench_.add_disk(name, identity);
    }
    void insert(const std::string& name, int bay, const std::string& disk) {
        bench_.insert(name, bay, disk);
    }
    void pull(const std::string& name, int bay) { bench_.pull(name, bay); }
    std::uint32_t plug(const std::string& name) { return bench_.plug(name); }
    void unplug(const std::string& name) { bench_.unplug(name); }
    void arrange(const std::string& name, enclosure::scenario state) {
        bench_.arrange(name, state);
    }
    void set_unlimited(const std::string& name) {
        bench_.set_rate(name, enclosure::mirror_copy::unlimited);
    }
    void add_failing_reads(const std::string& name) { bench_.add_fault(name, {}); }

    // After a warm boot: the handle that the bridge has come back with.
    std::uint32_t handle_after_restart(const std::string& name, std::uint32_t former);

protected:
    enclosure::in_process_bench& bench() { return bench_; }

private:
    enclosure::in_process_bench bench_;
    enclosure_library library_{bench_.library()};
};

// The same enclosures behind SCSI generic nodes.
class sg_world : private in_process_world {
public:
    access_library& library() { return library_; }

    using in_process_world::add_disk;
    using in_process_world::add_enclosure;
    using in_process_world::add_failing_reads;
    using in_process_world::arrange;
    using in_process_world::insert;
    using in_process_world::pull;
    using in_process_world::set_unlimited;
    using in_process_world::unplug;

    std::uint32_t plug(const std::string& name) {
        return enclosure::sg_handle_of(nodes_.node_of(in_process_world::plug(name)));
    }
    std::uint32_t handle_after_restart(const std::string& name, std::uint32_t former) {
        return enclosure::sg_handle_of(
            nodes_.node_of(in_process_world::handle_after_restart(name, former)));
    }

private:
    emulated_sg nodes_{bench()};
    enclosure::sg_transport way_{nodes_};
    enclosure::bridge_access operations_{way_};
    enclosure_library library_{operations_};
};

// The library that programs link, with a service of the test's own.
class service_world {
public:
    access_library& library() { return library_; }

    void add_enclosure(const std::string& name, bool firewire);
    void add_disk(const std::string& name, const enclosure::identify_block& identity) {
        host_.client().add_disk(name, identity);
    }
    void insert(const std::string& name, int bay, const std::string& disk) {
        host_.client().insert(name, static_cast<std::uint8_t>(bay), disk);
    }
    void pull(const std::string& name, int bay) {
        host_.client().pull(name, static_cast<std::uint8_t>(bay));
    }
    std::uint32_t plug(const std::string& name) { return host_.client().plug(name); }
    void unplug(const std::string& name) { host_.client().unplug(name); }
    void arrange(const std::string& name, enclosure::scenario state) {
        host_.client().arrange(name, std::string(enclosure::name_of(state)));
    }
    void set_unlimited(const std::string& name) {
        host_.client().set_rate(name, enclosure::mirror_copy::unlimited);
    }
    void add_failing_reads(const std::string& name);

    std::uint32_t handle_after_restart(const std::string& name, std::uint32_t former) {
        return host_.wait_for_new_handle(name, former);
    }

    host_process& host() { return host_; }

private:
    host_process host_;
    linked_library library_;
};
