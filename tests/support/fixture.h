// The ground that the tests of the model stand on.
#pragma once

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/model_world.h"
#include "tests/support/sectors.h"

using lines = std::vector<std::string>;

// Every test begins with an empty `j`; at its end every expected library call has come. All of
// `j`'s parts are the doubles below.
class model_test : public testing::Test {
protected:
    static constexpr std::uint32_t device = 0x11; // of the usual chip

    call_log& log = world().log;
    scripted_library& library = world().library;
    scripted_registry& registry = world().registry;
    scripted_hotplug& hotplug = world().hotplug;
    scripted_pauses& pause = world().pause;
    scripted_clock& clock = world().clock;
    scripted_threads& threads = world().threads;
    table_lookup& texts = world().texts;
    scripted_volumes& volumes = world().volumes;
    recording_window& view = world().view;

    void SetUp() override;
    void TearDown() override;

    // Attaches a bridge, without touching `j`.
    void attach(std::uint32_t handle, const registered_bridge& bridge,
                std::optional<memory_disk> disk0 = {}, std::optional<memory_disk> disk1 = {});
    // Attaches the usual bridge and takes it into `j` as a scan with both readings would, as the
    // current one, with its metadata read. The log is empty afterwards.
    krchip& take_chip(std::optional<memory_disk> disk0, std::optional<memory_disk> disk1,
                      bool firewire = false);
    // No bridge is attached and none is in `j`.
    void forget_all();
    // What the window does when it is told to select the first of its list.
    void let_the_window_select();
};

// The usual disks: 2014 sectors each, so that their metadata lies at 1999.
identify_block disk_a();
identify_block disk_b();
controller_t usb_identity(std::int32_t location);
controller_t firewire_identity(std::uint64_t guid);

// Two members of an array of `mode` that name each other.
memory_disk member_a(int mode, const metadata_sector* instead = nullptr);
memory_disk member_b(int mode, const metadata_sector* instead = nullptr);
