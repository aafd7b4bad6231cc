#include "model/rescan.h"

#include <gtest/gtest.h>
#include <string>

#include "device/hotplug.h"
#include "model/krtool.h"
#include "tests/support/fixture.h"

namespace {

constexpr std::uint32_t what_matters =
    from_library | from_window | from_pauses | from_hotplug | from_tree | from_diagnostics;

// The calls of one bridge, 0x11, with two disks that form a stripe, from the scan to the tree.
const lines reading = {
    "getDeviceList(count 0) = 0",
    "openConnection(0x11) = 0",
    "update_controller_list()",
    "krGetRegister(0x11, 512, 4, 0x7095) = 0",
    "sleep(2000ms) locked",
    "krGetRegister(0x11, 512, 4, 0x709d) = 0",
    "krGetDiskIdentify(0x11, 512, 0) = 0",
    "trace(\"disk 0 gave a response\")",
    "krGetDiskIdentify(0x11, 512, 1) = 0",
    "trace(\"disk 1 gave a response\")",
    "trace(\"reading raid info for chip 0\")",
    "krGetRaidInfo(0x11, 512, 1999, 0, 1) = 0",
    "krGetRaidInfo(0x11, 512, 1999, 1, 1) = 0",
    "cleartree()",
    "addchipFirewire(false)",
    "addraid(0, \"Bridge (SN: SN)\")",
    "adddisk(0, \"M0: DISK A\", true)",
    "adddisk(0, \"M1: DISK B\", true)",
    "refreshtree()",
    "expandtree()",
};

lines joined(std::initializer_list<lines> pieces) {
    lines all;
    for (const lines& piece : pieces) {
        all.insert(all.end(), piece.begin(), piece.end());
    }
    return all;
}

class Rescan : public model_test {
protected:
    void SetUp() override {
        model_test::SetUp();
        gNotifyPort = &hotplug;
        gRunLoop = &hotplug;
        gAddedIter = scripted_hotplug::iterator;
    }

    void attach_stripe(std::uint32_t handle, std::int32_t location) {
        attach(handle, usb_bridge(1, 2, location, u"SN"), member_a(1), member_b(1));
    }

    void detach(std::uint32_t handle) {
        registry.remove(handle);
        library.with_bridges([handle](memory_enclosure& all) {
            std::erase_if(all.bridges, [&](const auto& entry) { return entry.first == handle; });
        });
    }

    // A rescan that nobody looks at.
    void settle() {
        let_the_window_select();
        DeviceAdded(nullptr, 0);
        log.clear();
    }

    static void remove(std::uint32_t type) { DeviceRemoved(nullptr, 0x11, type, nullptr); }
};

class Notification : public Rescan {
protected:
    // What the thread writes on the two streams.
    std::string errors;
    std::string output;

    void run_thread() {
        testing::internal::CaptureStderr();
        testing::internal::CaptureStdout();
        start_device_notification(nullptr);
        output = testing::internal::GetCapturedStdout();
        errors = testing::internal::GetCapturedStderr();
    }
};

} // namespace

TEST_F(Rescan, WithTheSelectedBridgeStillThereFollowsTheWholeOrder) {
    attach_stripe(0x11, 0x14100000);
    j.current = usb_identity(0x14100000);
    j.warm_boot_pending = true;
    DeviceAdded(nullptr, 0);
    EXPECT_EQ(
        log.take(what_matters),
        joined({{"cleargui()", "clear_controller_list()", "startworking()", "trace(\"Dev Added\")"},
                reading,
                {"trace(\"Conn open made true\")", "update_raid_information()",
                 "trace(\"Dev Add finished\")", "stopworking()"}}));
    EXPECT_FALSE(j.warm_boot_pending);
}

TEST_F(Rescan, WithoutASelectionSelectsTheFirstOfTheList) {
    attach_stripe(0x11, 0x14100000);
    DeviceAdded(nullptr, 0);
    EXPECT_EQ(
        log.take(what_matters),
        joined({{"cleargui()", "clear_controller_list()", "startworking()", "trace(\"Dev Added\")"},
                reading,
                {"select_first_controller()", "trace(\"Dev Add finished\")", "stopworking()"}}));
}

TEST_F(Rescan, TakesEveryArrivedBridgeBeforeItScans) {
    attach_stripe(0x11, 0x14100000);
    attach(0x12, usb_bridge(1, 2, 0x14200000));
    hotplug.arrived = {0x11, 0x12};
    DeviceAdded(nullptr, scripted_hotplug::iterator);
    const lines all = log.take(from_hotplug | from_library | from_diagnostics);
    const lines expected = {"trace(\"Dev Added\")",
                            "next(0x77)",
                            "add_interest_notification(0x11)",
                            "next(0x77)",
                            "add_interest_notification(0x12)",
                            "next(0x77)",
                            "getDeviceList(count 0) = 0",
                            "openConnection(0x11) = 0",
                            "openConnection(0x12) = 0"};
    EXPECT_EQ(lines(all.begin(), all.begin() + 9), expected);
    EXPECT_TRUE(hotplug.watches(0x11));
    EXPECT_TRUE(hotplug.watches(0x12));
}

TEST_F(Rescan, PrintsARefusedInterestAndGoesOn) {
    attach_stripe(0x11, 0x14100000);
    attach(0x12, usb_bridge(1, 2, 0x14200000));
    hotplug.arrived = {0x11, 0x12};
    hotplug.refused[0x11] = static_cast<std::int32_t>(0xE00002C2);
    testing::internal::CaptureStdout();
    DeviceAdded(nullptr, scripted_hotplug::iterator);
    const std::string output = testing::internal::GetCapturedStdout();
    EXPECT_EQ(output, "IOServiceAddInterestNotification returned 0xe00002c2.\ntree built");
    EXPECT_FALSE(hotplug.watches(0x11));
    EXPECT_TRUE(hotplug.watches(0x12));
    EXPECT_EQ(j.chips.size(), 2U);
}

TEST_F(Rescan, WithoutAnIteratorAsksForNoArrivals) {
    DeviceAdded(nullptr, 0);
    EXPECT_EQ(log.take(from_hotplug), lines{});
}

TEST_F(Rescan, WithNothingAttachedSelectsNothing) {
    let_the_window_select();
    DeviceAdded(nullptr, 0);
    EXPECT_EQ(log.take(from_library | from_window),
              (lines{"cleargui()", "clear_controller_list()", "startworking()",
                     "getDeviceList(count 0) = 0", "update_controller_list()", "refreshtree()",
                     "expandtree()", "select_first_controller()", "update_raid_information()",
                     "stopworking()"}));
}

TEST_F(Rescan, GoesOnAfterAFailedScan) {
    attach_stripe(0x11, 0x14100000);
    library.with_bridges([](memory_enclosure& all) { all.list_status = 1; });
    DeviceAdded(nullptr, 0);
    EXPECT_EQ(log.take(from_library | from_window),
              (lines{"cleargui()", "clear_controller_list()", "startworking()",
                     "getDeviceList(count 0) = 1", "update_controller_list()", "refreshtree()",
                     "expandtree()", "select_first_controller()", "stopworking()"}));
}

TEST_F(Rescan, HoldsTheGateFromTheFirstStepToTheLast) {
    attach_stripe(0x11, 0x14100000);
    j.current = usb_identity(0x14100000);
    for (const char* operation : {"cleargui", "update_controller_list", "stopworking"}) {
        view.on(operation, [] { EXPECT_TRUE(j.gate.held_here()); });
    }
    DeviceAdded(nullptr, 0);
    EXPECT_FALSE(j.gate.held_here());
}

TEST_F(Rescan, DegradesTheSelectedMirrorHalfAndStartsItsTimer) {
    attach(0x11, usb_bridge(1, 2, 0x14100000), member_a(2));
    j.current = usb_identity(0x14100000);
    DeviceAdded(nullptr, 0);
    const lines all = log.take(what_matters | from_threads);
    const lines tail(all.end() - 8, all.end());
    EXPECT_EQ(tail,
              (lines{"trace(\"Conn open made true\")",
                     "krSetRaidInfo(0x11, KR 2 0 00, 512, 1999, 0, 1) = 0",
                     "krGetRaidInfo(0x11, 512, 1999, 0, 1) = 0", "krFlushHDDCache(0x11, 0) = 0",
                     "thread started", "update_raid_information()", "trace(\"Dev Add finished\")",
                     "stopworking()"}));
}

TEST_F(Rescan, WritesToNoOtherBridgeThanTheSelectedOne) {
    attach(0x11, usb_bridge(1, 2, 1), member_a(2));
    attach(0x12, usb_bridge(1, 2, 2), member_a(2));
    j.current = usb_identity(2);
    DeviceAdded(nullptr, 0);
    EXPECT_EQ(log.count("krSetRaidInfo(0x11"), 0U);
    EXPECT_EQ(log.count("krSetRaidInfo(0x12"), 1U);
}

TEST_F(Rescan, StopsTheTimerOfTheOldRecordsBeforeTheNewScan) {
    attach(0x11, usb_bridge(1, 2, 1), member_a(2), member_b(2));
    j.current = usb_identity(1);
    settle();
    EXPECT_EQ(threads.waiting(), 1U);
    pause.on_nth(2, [this] { threads.run_next(); });
    DeviceAdded(nullptr, 0);
    const lines all = log.take(from_library | from_window | from_pauses | from_threads);
    const lines head(all.begin(), all.begin() + 8);
    EXPECT_EQ(head, (lines{"cleargui()", "clear_controller_list()", "startworking()", "sleep(10ms)",
                           "sleep(10ms)", "stopprogressbar()", "closeConnection(0x11) = 0",
                           "getDeviceList(count 0) = 0"}));
    EXPECT_EQ(threads.waiting(), 1U) << "the new records have a timer of their own";
}

TEST_F(Rescan, RepeatedWhileTwoArriveStillListsEachOnce) {
    attach_stripe(0x11, 1);
    settle();
    attach_stripe(0x12, 2);
    DeviceAdded(nullptr, 0);
    DeviceAdded(nullptr, 0);
    EXPECT_EQ(j.chips.size(), 2U);
    EXPECT_TRUE(j.current == usb_identity(1));
}

TEST_F(Rescan, ABridgeMovedToAnotherSocketIsAnotherOne) {
    attach_stripe(0x11, 1);
    settle();
    detach(0x11);
    attach_stripe(0x12, 2);
    DeviceAdded(nullptr, 0);
    EXPECT_EQ(log.count("select_first_controller()"), 1U);
    EXPECT_TRUE(j.current == usb_identity(2));
}

TEST_F(Rescan, OfADepartureWaitsEightSecondsThenReadsEverything) {
    attach_stripe(0x11, 0x14100000);
    j.current = usb_identity(0x14100000);
    remove(message_terminated);
    EXPECT_EQ(log.take(what_matters),
              joined({{"trace(\"Dev Removed\")", "cleargui()", "startworking()", "sleep(8000ms)"},
                      reading,
                      {"update_raid_information()", "stopworking()"}}));
}

TEST_F(Rescan, OfADepartureHoldsTheGateOnlyAfterTheWait) {
    attach_stripe(0x11, 0x14100000);
    pause.on_nth(1, [] { EXPECT_FALSE(j.gate.held_here()); });
    view.on("update_controller_list", [] { EXPECT_TRUE(j.gate.held_here()); });
    remove(message_terminated);
    EXPECT_FALSE(j.gate.held_here());
}

TEST_F(Rescan, OfTheSelectedBridgesDepartureForgetsItAndSelectsTheFirst) {
    attach_stripe(0x11, 1);
    attach(0x12, usb_bridge(1, 2, 2));
    j.current = usb_identity(1);
    settle();
    detach(0x11);
    controller_t seen;
    view.on("select_first_controller", [&seen] { seen = j.current; });
    remove(message_terminated);
    EXPECT_EQ(seen.product_id, 0U);
    EXPECT_EQ(seen.id, 0U);
    EXPECT_EQ(seen.vendor_id, 1U) << "vendor and location stay";
    const lines all = log.take(from_window);
    EXPECT_EQ(lines(all.end() - 2, all.end()),
              (lines{"select_first_controller()", "stopworking()"}));
    EXPECT_EQ(j.chips.size(), 1U);
}

TEST_F(Rescan, OfAnotherBridgesDepartureKeepsTheSelection) {
    attach_stripe(0x11, 1);
    attach(0x12, usb_bridge(1, 2, 2));
    j.current = usb_identity(1);
    settle();
    detach(0x12);
    remove(message_terminated);
    EXPECT_TRUE(j.current == usb_identity(1));
    EXPECT_EQ(log.count("update_raid_information()"), 1U);
    EXPECT_EQ(log.count("select_first_controller()"), 0U);
}

TEST_F(Rescan, OfADepartureDoesNotEmptyTheListNorTouchTheWarmBootMark) {
    attach_stripe(0x11, 1);
    j.warm_boot_pending = true;
    remove(0);
    EXPECT_EQ(log.count("clear_controller_list()"), 0U);
    EXPECT_EQ(log.count("sleep(8000ms)"), 1U);
    EXPECT_TRUE(j.warm_boot_pending);
}

TEST_F(Rescan, OfADeliberateRestartIgnoresTheDeparture) {
    attach_stripe(0x11, 1);
    j.warm_boot_pending = true;
    remove(message_terminated);
    EXPECT_EQ(log.take(), lines{"trace(\"Dev Removed\")"});
}

TEST_F(Rescan, OfAnyOtherMessageDoesNothing) {
    for (const std::uint32_t type : {1U, 0xE0000011U, 0xE0000030U, 0xFFFFFFFFU}) {
        remove(type);
        EXPECT_EQ(log.take(), lines{"trace(\"Dev Removed\")"}) << "type " << hex(type);
    }
}

TEST_F(Rescan, OfADeliberateRestartIsOneWholeRescanWhenTheBridgeReturns) {
    attach_stripe(0x11, 1);
    j.current = usb_identity(1);
    settle();
    j.warm_boot_pending = true;
    remove(message_terminated);
    detach(0x11);
    attach_stripe(0x21, 1); // the same bridge with a new handle
    hotplug.arrived = {0x21};
    DeviceAdded(nullptr, scripted_hotplug::iterator);
    EXPECT_EQ(log.count("sleep(8000ms)"), 0U);
    EXPECT_EQ(log.count("getDeviceList"), 1U);
    EXPECT_TRUE(j.current == usb_identity(1));
    EXPECT_EQ(j.chips.at(0).device, 0x21U);
    EXPECT_FALSE(j.warm_boot_pending);
}

TEST_F(Rescan, AnyArrivalEndsTheWaitForARestart) {
    attach_stripe(0x11, 1);
    j.warm_boot_pending = true;
    DeviceAdded(nullptr, 0);
    log.clear();
    remove(message_terminated);
    EXPECT_EQ(log.count("sleep(8000ms)"), 1U);
}

TEST_F(Notification, WithTwoBridgesAttachedMakesOneScanAndWatchesBoth) {
    attach_stripe(0x11, 0x14100000);
    attach(0x12, usb_bridge(1, 2, 0x14200000));
    hotplug.arrived = {0x11, 0x12};
    let_the_window_select();
    run_thread();
    const lines all = log.take(from_hotplug | from_window);
    const lines expected = {"match(krPeripheralDeviceType00)",
                            "add_matching_notification()",
                            "cleargui()",
                            "clear_controller_list()",
                            "startworking()",
                            "next(0x77)",
                            "add_interest_notification(0x11)",
                            "next(0x77)",
                            "add_interest_notification(0x12)",
                            "next(0x77)",
                            "update_controller_list()",
                            "refreshtree()",
                            "expandtree()",
                            "select_first_controller()",
                            "update_raid_information()",
                            "stopworking()",
                            "run()"};
    EXPECT_EQ(all, expected);
    EXPECT_EQ(errors, "Starting run loop.\n\n");
    EXPECT_EQ(output, "tree built\n---Unexpectedly back from CFRunLoopRun()!");
    EXPECT_EQ(gNotifyPort, &hotplug);
    EXPECT_EQ(gRunLoop, &hotplug);
    EXPECT_EQ(gAddedIter, scripted_hotplug::iterator);
}

TEST_F(Notification, WithNoneAttachedShowsAnEmptyList) {
    let_the_window_select();
    run_thread();
    EXPECT_TRUE(j.chips.empty());
    EXPECT_EQ(log.count("select_first_controller()"), 1U);
    EXPECT_EQ(log.count("update_raid_information()"), 1U);
    EXPECT_EQ(log.count("add_interest_notification"), 0U);
}

TEST_F(Notification, EndsWithItsMessageWhenThereIsNothingToListenTo) {
    hotplug.listening = false;
    run_thread();
    EXPECT_EQ(errors, "IOServiceMatching returned NULL.\n");
    EXPECT_EQ(output, "");
    EXPECT_EQ(log.take(), lines{"match(krPeripheralDeviceType00)"});
}

TEST_F(Notification, HandlesArrivalAndDepartureInItsRunLoop) {
    attach_stripe(0x11, 1);
    hotplug.arrived = {0x11};
    let_the_window_select();
    hotplug.on_run = [this] {
        log.clear();
        attach_stripe(0x12, 2);
        hotplug.arrived = {0x12};
        hotplug.arrive();
        EXPECT_EQ(j.chips.size(), 2U);
        detach(0x12);
        hotplug.message(0x12, message_terminated);
        EXPECT_EQ(j.chips.size(), 1U);
    };
    run_thread();
    EXPECT_EQ(log.count("add_interest_notification(0x12)"), 1U);
    EXPECT_EQ(log.count("sleep(8000ms)"), 1U);
    EXPECT_TRUE(j.current == usb_identity(1));
}

TEST_F(Notification, OfABridgeThatCannotBeOpenedEndsTheProcess) {
    attach_stripe(0x11, 1);
    hotplug.arrived = {0x11};
    library.answer_nth("openConnection", 1, {1});
    EXPECT_THROW(DeviceAdded(nullptr, scripted_hotplug::iterator), process_ended);
    EXPECT_EQ(log.count("show_error_and_exit(\"error_open_device\")"), 1U);
    EXPECT_EQ(log.count("update_controller_list()"), 0U);
}
