#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "model/krtool.h"
#include "model/monitors.h"
#include "tests/support/fixture.h"

namespace {

using map_entries = std::vector<std::pair<std::uint64_t, std::int32_t>>;

class Scan : public model_test {
protected:
    bool scan() {
        const gate_scope work(j.gate);
        return j.scandevices();
    }

    void attach_usb(std::uint32_t handle, std::int32_t product, std::int32_t location) {
        attach(handle, usb_bridge(0x1111, product, location, u"SN"));
    }

    static std::vector<std::uint32_t> devices() {
        std::vector<std::uint32_t> result;
        for (const krchip& chip : j.chips) {
            result.push_back(chip.device);
        }
        return result;
    }

    // A chip without anything behind it.
    static krchip& put_chip(std::uint32_t handle, std::int32_t location) {
        j.add_controller(usb_identity(location), handle);
        j.chips.back().connection_open = 1;
        return j.chips.back();
    }

    static void flush() {
        const gate_scope work(j.gate);
        EXPECT_TRUE(j.flush_chips());
    }
};

class ControllerMap : public Scan {};
class Flush : public Scan {};

using handles = std::vector<std::uint32_t>;

} // namespace

TEST_F(Scan, WithoutBridgesSucceedsAndOpensNothing) {
    EXPECT_TRUE(scan());
    EXPECT_EQ(log.take(), lines{"getDeviceList(count 0) = 0"});
    EXPECT_TRUE(j.chips.empty());
    EXPECT_TRUE(j.controller_map.empty());
}

TEST_F(Scan, AsksForTheListThenForIdentitiesThenOpens) {
    attach_usb(0x11, 2, 0x14100000);
    attach(0x12, firewire_bridge(0xABCDEF));
    EXPECT_TRUE(scan());
    EXPECT_EQ(log.take(from_library),
              (lines{"getDeviceList(count 0) = 0", "openConnection(0x11) = 0",
                     "openConnection(0x12) = 0"}));
    EXPECT_EQ(devices(), (handles{0x11, 0x12}));
    EXPECT_EQ(j.chips[0].connection_open, 1);
    EXPECT_EQ(j.chips[1].connection_open, 1);
}

TEST_F(Scan, TakesAUsbIdentityFromFourLevelsUp) {
    registered_bridge bridge = usb_bridge(0x1111, 0x2222, 0x14100000, u"ABC123");
    bridge.numbers["GUID"] = 77;
    attach(0x11, bridge);
    scan();
    const controller_t& identity = j.chips.at(0).identity;
    EXPECT_FALSE(identity.firewire);
    EXPECT_EQ(identity.vendor_id, 0x1111U);
    EXPECT_EQ(identity.product_id, 0x2222U);
    EXPECT_EQ(identity.location_id, 0x14100000U);
    EXPECT_EQ(identity.id, 0x14100000U);
    EXPECT_EQ(identity.serial, "ABC123");
}

TEST_F(Scan, TakesAFirewireIdentityFromFourLevelsUp) {
    attach(0x11, firewire_bridge(0x8000123456789ABC));
    scan();
    const controller_t& identity = j.chips.at(0).identity;
    EXPECT_TRUE(identity.firewire);
    EXPECT_EQ(identity.guid, 0x8000123456789ABCU);
    EXPECT_EQ(identity.id, 0x8000123456789ABCU);
    EXPECT_EQ(identity.serial, "");
}

TEST_F(Scan, GivesAFirewireBridgeNoSerialNumberOfTheUsbBridgeBeforeIt) {
    attach_usb(0x11, 2, 0x14100000);
    attach(0x12, firewire_bridge(0xABCDEF));
    scan();
    EXPECT_EQ(j.chips.at(0).identity.serial, "SN");
    EXPECT_EQ(j.chips.at(1).identity.serial, "");
}

TEST_F(Scan, TakesAMissingPropertyAsZeroOrEmpty) {
    attach(0x11, {});
    registered_bridge firewire = firewire_bridge(0);
    firewire.numbers.clear();
    attach(0x12, firewire);
    scan();
    const controller_t& usb = j.chips.at(0).identity;
    EXPECT_EQ(usb.vendor_id + usb.product_id + usb.location_id + usb.id, 0U);
    EXPECT_EQ(usb.serial, "");
    EXPECT_EQ(j.chips.at(1).identity.guid, 0U);
}

TEST_F(Scan, TakesABridgeThatTheRegistryDoesNotKnowAsAUsbBridgeOfZeros) {
    library.add_bridge(0x11);
    EXPECT_TRUE(scan());
    EXPECT_FALSE(j.chips.at(0).identity.firewire);
    EXPECT_EQ(j.chips.at(0).identity.id, 0U);
}

TEST_F(Scan, CutsASerialNumberToNinetyNineCharacters) {
    attach(0x11, usb_bridge(1, 2, 3, std::u16string(150, u'S')));
    attach(0x12, usb_bridge(1, 2, 4, u"not ASCII: \u00e4"));
    scan();
    EXPECT_EQ(j.chips.at(0).identity.serial, std::string(99, 'S'));
    EXPECT_EQ(j.chips.at(1).identity.serial, "");
}

TEST_F(Scan, FindsTwoEntriesOfOneUsbBridgeOnce) {
    attach_usb(0x11, 2, 0x14100000);
    attach_usb(0x12, 2, 0x14100000);
    scan();
    EXPECT_EQ(devices(), handles{0x11});
    EXPECT_EQ(log.take(from_library),
              (lines{"getDeviceList(count 0) = 0", "openConnection(0x11) = 0"}));
}

TEST_F(Scan, FindsTwoProductsAtOneLocationAsTwoChipsInScanOrder) {
    attach_usb(0x12, 3, 0x14100000);
    attach_usb(0x11, 2, 0x14100000);
    scan();
    EXPECT_EQ(devices(), (handles{0x12, 0x11}));
    EXPECT_EQ(j.controller_map, (map_entries{{0x14100000, 0}, {0x14100000, 1}}));
}

TEST_F(Scan, KeepsAUsbAndAFirewireBridgeOfTheSameKeyApart) {
    attach_usb(0x11, 2, 0x1000);
    attach(0x12, firewire_bridge(0x1000));
    scan();
    EXPECT_EQ(devices(), (handles{0x11, 0x12}));
}

// A field of the other bus kind may hold what the entry before left: it means nothing.
TEST_F(Scan, RecognisesABridgeWhateverStoodBeforeItInTheList) {
    attach(0x11, firewire_bridge(0x5000));
    attach_usb(0x12, 2, 0x14100000);
    scan();
    controller_t plain = usb_identity(0x14100000);
    plain.vendor_id = 0x1111;
    EXPECT_TRUE(j.controller_exists(plain));
    EXPECT_TRUE(j.controller_exists(firewire_identity(0x5000)));
}

TEST_F(Scan, ThatGetsNoListHasNoChips) {
    attach_usb(0x11, 2, 0x14100000);
    scan();
    library.with_bridges([](memory_enclosure& all) { all.list_status = 1; });
    EXPECT_FALSE(scan());
    EXPECT_TRUE(j.chips.empty());
    EXPECT_EQ(j.controller_map.size(), 1U) << "the old map stays when the scan gives up";
}

TEST_F(Scan, TakesANegativeListStatusAsAFailureToo) {
    library.with_bridges([](memory_enclosure& all) { all.list_status = -1; });
    EXPECT_FALSE(scan());
}

TEST_F(Scan, ReadsNoMoreThanTheListHolds) {
    attach_usb(0x11, 2, 0x14100000);
    library.with_bridges([](memory_enclosure& all) { all.list_count = 100000; });
    library.answer_all("openConnection(0x0)", {0});
    EXPECT_TRUE(scan());
    // The rest of the list is zeros: one more bridge, of handle 0, that nobody knows.
    EXPECT_EQ(devices(), (handles{0x11, 0}));
}

TEST_F(Scan, TakesANegativeCountAsNone) {
    attach_usb(0x11, 2, 0x14100000);
    library.with_bridges([](memory_enclosure& all) { all.list_count = -1; });
    EXPECT_TRUE(scan());
    EXPECT_TRUE(j.chips.empty());
}

TEST_F(Scan, FindsTwoHundredAndFiftySixBridges) {
    for (std::uint32_t i = 0; i < 256; ++i) {
        attach_usb(i + 1, 2, static_cast<std::int32_t>(256 - i));
    }
    EXPECT_TRUE(scan());
    EXPECT_EQ(j.chips.size(), 256U);
    EXPECT_EQ(j.controller_map.front(), (std::pair<std::uint64_t, std::int32_t>(1, 255)));
}

TEST_F(Scan, EndsTheProcessWhenABridgeCannotBeOpened) {
    texts.set("error_open_device", "Cannot open");
    attach_usb(0x11, 2, 1);
    attach_usb(0x12, 2, 2);
    library.answer_nth("openConnection(0x11)", 1, {5});
    EXPECT_THROW(scan(), process_ended);
    EXPECT_EQ(log.take(from_library | from_window),
              (lines{"getDeviceList(count 0) = 0", "openConnection(0x11) = 5",
                     "show_error_and_exit(\"Cannot open\")"}));
    EXPECT_EQ(j.chips.at(0).connection_open, 1) << "open, whatever the result";
}

TEST_F(Scan, ForgetsEverythingOfTheScanBeforeButTheSelection) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    chip.disks[0].rebuild_mark = 1;
    scan();
    EXPECT_EQ(j.chips.at(0).disks[0].present, 0);
    EXPECT_EQ(j.chips.at(0).disks[0].rebuild_mark, 0);
    EXPECT_TRUE(j.current == usb_identity(0x14100000));
}

TEST_F(Scan, ClosesTheOldConnectionBeforeItAsksForTheList) {
    take_chip(std::nullopt, std::nullopt);
    scan();
    EXPECT_EQ(log.take(from_library | from_window | from_pauses),
              (lines{"stopprogressbar()", "closeConnection(0x11) = 0", "getDeviceList(count 0) = 0",
                     "openConnection(0x11) = 0"}));
}

TEST_F(Scan, MakesAnOldPlaceNameNothing) {
    attach_usb(0x11, 2, 1);
    scan();
    j.current = j.chips.at(0).identity;
    const chip_place before = j.current_place();
    EXPECT_TRUE(j.with_chip(before, [](const krchip&) {}));
    scan();
    EXPECT_FALSE(j.with_chip(before, [](const krchip&) { FAIL() << "an old place was used"; }));
    EXPECT_TRUE(j.with_chip(j.current_place(), [](const krchip&) {}));
}

TEST_F(Scan, OfASelectionThatHasGoneGivesNoPlaceAndNoCopy) {
    attach_usb(0x11, 2, 1);
    scan();
    EXPECT_EQ(j.current_place().index, -1);
    EXPECT_FALSE(j.current_chip().has_value());
    EXPECT_FALSE(j.curr_chip_exists());
    EXPECT_FALSE(j.with_chip(j.current_place(), [](const krchip&) {}));
    const gate_scope work(j.gate);
    EXPECT_EQ(j.selected(), nullptr);
}

TEST_F(ControllerMap, FindsTheFirstMatch) {
    put_chip(0x11, 1);
    put_chip(0x12, 2);
    put_chip(0x13, 2);
    EXPECT_EQ(j.get_controller_num(usb_identity(2)), 1);
    EXPECT_EQ(j.get_controller_num(usb_identity(3)), -1);
    EXPECT_TRUE(j.controller_exists(usb_identity(1)));
    EXPECT_FALSE(j.controller_exists(firewire_identity(1)));
}

TEST_F(ControllerMap, OfACopyTellsWhereItWasTaken) {
    put_chip(0x11, 1);
    put_chip(0x12, 2);
    j.current = usb_identity(2);
    const std::optional<chip_snapshot> copy = j.current_chip();
    ASSERT_TRUE(copy.has_value());
    EXPECT_EQ(copy->place.index, 1);
    EXPECT_EQ(copy->chip.device, 0x12U);
    EXPECT_TRUE(j.curr_chip_exists());
}

TEST_F(ControllerMap, AppendsAnEmptyChipOfTheGivenDeviceAndIdentity) {
    EXPECT_TRUE(j.add_controller(firewire_identity(7), 0x33));
    const krchip& chip = j.chips.at(0);
    EXPECT_EQ(chip.device, 0x33U);
    EXPECT_EQ(chip.identity.guid, 7U);
    EXPECT_EQ(chip.connection_open, 0);
    EXPECT_EQ(chip.disks.size(), 2U);
    EXPECT_FALSE(chip.polling || chip.poller_alive || chip.raid1_timer_on ||
                 chip.raid1_timer_alive);
    EXPECT_EQ(chip.raid_mode, 0);
}

TEST_F(ControllerMap, SortsByKeyAsAnUnsignedNumber) {
    put_chip(0x11, static_cast<std::int32_t>(0x80000000)); // top bit set: the greatest key
    put_chip(0x12, 0x7FFFFFFF);
    j.add_controller(firewire_identity(0x8000000000000000), 0x13);
    j.add_controller(firewire_identity(5), 0x14);
    const gate_scope work(j.gate);
    EXPECT_TRUE(j.setup_controller_map());
    EXPECT_EQ(
        j.controller_map,
        (map_entries{{5, 3}, {0x7FFFFFFF, 1}, {0x8000000000000000, 2}, {0xFFFFFFFF80000000, 0}}));
}

TEST_F(ControllerMap, IsListedByASignedLocationAfterTheScan) {
    attach_usb(0x11, 2, -0x10000000); // 0xF0000000
    attach_usb(0x12, 2, 0x14100000);
    attach(0x13, firewire_bridge(0x0001D202E0FFFFFF));
    scan();
    EXPECT_EQ(j.controller_map,
              (map_entries{{0x14100000, 1}, {0x0001D202E0FFFFFF, 2}, {0xFFFFFFFFF0000000, 0}}));
}

TEST_F(ControllerMap, OfEqualKeysKeepsScanOrder) {
    for (const std::uint32_t handle : {0x13U, 0x11U, 0x12U}) {
        put_chip(handle, 9);
    }
    const gate_scope work(j.gate);
    j.setup_controller_map();
    EXPECT_EQ(j.controller_map, (map_entries{{9, 0}, {9, 1}, {9, 2}}));
}

TEST_F(Flush, OfNothingCallsNothing) {
    flush();
    EXPECT_EQ(log.take(), lines{});
}

TEST_F(Flush, ClosesEveryOpenConnectionInOrder) {
    put_chip(0x11, 1);
    put_chip(0x12, 2).connection_open = 0;
    put_chip(0x13, 3);
    flush();
    EXPECT_EQ(log.take(from_library),
              (lines{"closeConnection(0x11) = -19", "closeConnection(0x13) = -19"}));
    EXPECT_TRUE(j.chips.empty());
}

TEST_F(Flush, OfAnUnknownSelectionSkipsTheMonitors) {
    put_chip(0x11, 1);
    j.current = usb_identity(99);
    flush();
    EXPECT_EQ(log.take(), lines{"closeConnection(0x11) = -19"});
}

TEST_F(Flush, StopsTheSelectedChipsMonitorsOnceForEveryChip) {
    put_chip(0x11, 1);
    put_chip(0x12, 2);
    j.current = usb_identity(2);
    flush();
    EXPECT_EQ(log.take(), (lines{"stopprogressbar()", "closeConnection(0x11) = -19",
                                 "stopprogressbar()", "closeConnection(0x12) = -19"}));
}

TEST_F(Flush, WaitsForTheTimerInStepsOfTenMilliseconds) {
    krchip& chip = put_chip(0x11, 1);
    j.current = usb_identity(1);
    {
        const gate_scope work(j.gate);
        chip.start_raid1_timer();
    }
    pause.on_nth(3, [this] { threads.run_next(); });
    flush();
    EXPECT_EQ(log.take(), (lines{"thread started", "sleep(10ms)", "sleep(10ms)", "sleep(10ms)",
                                 "stopprogressbar()", "closeConnection(0x11) = -19"}));
}

TEST_F(Flush, DoesNotWaitForThePoller) {
    krchip& chip = put_chip(0x11, 1);
    j.current = usb_identity(1);
    {
        const gate_scope work(j.gate);
        chip.start_polling();
    }
    chip.poller_alive = true;
    log.clear();
    flush();
    EXPECT_EQ(log.take(), (lines{"stopprogressbar()", "closeConnection(0x11) = -19"}));
}

TEST_F(Flush, GivesUpATimerFlagWithoutAThreadAfterTenSeconds) {
    put_chip(0x11, 1).raid1_timer_alive = true;
    j.current = usb_identity(1);
    flush();
    EXPECT_EQ(log.count("sleep(10ms)"), 1000U);
    EXPECT_TRUE(j.chips.empty());
}
