// Everybody at once: rescans from several threads, departures, monitors, operations and readers of
// the selected chip. That no two calls of the library meet, and that every call is made with the
// right locks held, is watched by the library and the window themselves.
#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

#include "device/hotplug.h"
#include "model/krtool.h"
#include "model/monitors.h"
#include "model/rescan.h"
#include "model/system_services.h"
#include "model/wake_point.h"
#include "tests/support/fixture.h"
#include "tests/support/selected_chip.h"

namespace {

constexpr int rounds = 200;

class RescanStorm : public model_test {
protected:
    detached_threads real;
    wake_point begin;
    std::vector<std::thread> crowd;

    void SetUp() override {
        model_test::SetUp();
        threads.run_for_real(real);
        pause.hurry();
        log.keep_only(0);
        let_the_window_select();
        // The display starts the poller of a chip that wants one.
        view.on("update_raid_information", [] {
            const std::optional<chip_snapshot> copy = j.current_chip();
            if (copy && copy->chip.polling) {
                start_wanted_poller(copy->place);
            }
        });
        view.on("refresh", [] { DeviceAdded(nullptr, 0); });
    }

    // A mirror that the chip is copying, on 0x11, and a healthy one on 0x12.
    void attach_mirrors() {
        metadata_sector marked = metadata_of(2, 0, 1900, disk_b());
        marked.flags = 0x80;
        attach(0x11, usb_bridge(1, 2, 1), member_a(2, &marked), member_b(2));
        attach(0x12, usb_bridge(1, 2, 2), member_a(2), member_b(2));
        library.with_bridges([](memory_enclosure& all) {
            all.bridge(0x11).readings = {{0, 1900, 5}};
        });
    }

    // Runs `body` on a thread of its own, `rounds` times, once the whole crowd is there.
    void join_in(const std::function<void()>& body) {
        crowd.emplace_back([this, body] {
            begin.wait();
            for (int i = 0; i < rounds; ++i) {
                body();
            }
        });
    }

    void let_loose() { begin.wake(); }

    void await_crowd() {
        for (std::thread& thread : crowd) {
            thread.join();
        }
        crowd.clear();
    }

    static void select(std::int32_t location) {
        const gate_scope work(j.gate);
        select_enclosure(usb_identity(location));
        ctrller->update_raid_information();
    }

    static void expect_whole_copy() {
        const std::optional<chip_snapshot> copy = j.current_chip();
        if (!copy) {
            return;
        }
        ASSERT_EQ(copy->chip.disks.size(), 2U);
        const std::string& model = copy->chip.disks[0].model;
        EXPECT_TRUE(model.empty() || model == "DISK A") << quoted(model);
        EXPECT_EQ(copy->chip.device, copy->chip.identity.location_id == 1 ? 0x11U : 0x12U);
    }
};

} // namespace

TEST_F(RescanStorm, OfArrivalsDeparturesAndRefreshesEndsWithBothBridgesListed) {
    attach_mirrors();
    join_in([] { DeviceAdded(nullptr, 0); });
    join_in([] { DeviceRemoved(nullptr, 0x11, message_terminated, nullptr); });
    join_in([] { ctrller->refresh(); });
    join_in(expect_whole_copy);
    let_loose();
    await_crowd();
    end_monitors(threads);
    EXPECT_EQ(j.chips.size(), 2U);
    EXPECT_EQ(j.controller_map.size(), 2U);
}

TEST_F(RescanStorm, WithSelectionsAndMonitorsEnds) {
    attach_mirrors();
    DeviceAdded(nullptr, 0);
    join_in([] { DeviceAdded(nullptr, 0); });
    join_in([] { select(1); });
    join_in([] { select(2); });
    join_in(expect_whole_copy);
    join_in([] { start_wanted_poller(j.current_place()); });
    let_loose();
    await_crowd();
    end_monitors(threads);
    EXPECT_EQ(j.chips.size(), 2U);
}

TEST_F(RescanStorm, WithFinishingRebuildsNeverWritesToTheOtherBridge) {
    attach_mirrors();
    library.with_bridges([](memory_enclosure& all) {
        all.bridge(0x11).readings = {{0, 1900, 1900}};
    });
    const sector_bytes before = library.sector(0x12, 0, 1999);
    DeviceAdded(nullptr, 0);
    join_in([] { DeviceAdded(nullptr, 0); });
    join_in([] { select(1); });
    join_in([] { select(2); });
    let_loose();
    await_crowd();
    end_monitors(threads);
    EXPECT_EQ(hex_dump(library.sector(0x12, 0, 1999)), hex_dump(before));
}

TEST_F(RescanStorm, WithBridgesComingAndGoingEnds) {
    attach_mirrors();
    DeviceAdded(nullptr, 0);
    join_in([this] {
        library.with_bridges(
            [](memory_enclosure& all) { std::swap(all.bridges.front(), all.bridges.back()); });
        DeviceAdded(nullptr, 0);
    });
    join_in([] { DeviceRemoved(nullptr, 0x12, 0, nullptr); });
    join_in([] { select(2); });
    join_in(expect_whole_copy);
    let_loose();
    await_crowd();
    end_monitors(threads);
    EXPECT_EQ(j.chips.size(), 2U);
}

TEST_F(RescanStorm, WithOneSwapReportAfterAnotherEnds) {
    attach_mirrors();
    DeviceAdded(nullptr, 0);
    select(2);
    std::atomic<int> refreshed{0};
    view.on("refresh", [&refreshed] {
        DeviceAdded(nullptr, 0);
        ++refreshed;
    });
    join_in(expect_whole_copy);
    join_in(expect_whole_copy);
    let_loose();
    for (int swap = 1; swap <= 30; ++swap) {
        library.with_bridges([swap](memory_enclosure& all) {
            all.bridge(0x12).disks[1] =
                swap % 2 == 0 ? std::optional(member_b(2)) : std::optional<memory_disk>();
        });
        while (refreshed < swap) {
            std::this_thread::yield();
        }
    }
    await_crowd();
    end_monitors(threads);
    EXPECT_EQ(j.chips.size(), 2U);
}
