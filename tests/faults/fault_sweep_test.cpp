// Every operation with every one of its library calls struck by every kind of fault in turn.
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <thread>

#include "device/hotplug.h"
#include "model/krtool.h"
#include "model/rescan.h"
#include "model/wake_point.h"
#include "tests/faults/fault_tally.h"
#include "tests/faults/swept_operation.h"
#include "tests/support/change_fixture.h"
#include "tests/support/fault.h"

namespace {

using promise = swept_operation::promise;

// How the operation ended.
struct ending {
    bool result = false;
    bool left = false; // the process, with status 3
};

// Google Test owns it.
fault_tally& the_tally = *new fault_tally;
const testing::Environment* const registered = testing::AddGlobalTestEnvironment(&the_tally);

class Operation : public change_test, public testing::WithParamInterface<swept_operation> {
protected:
    // What the model prints while it works would hide the table.
    void SetUp() override {
        change_test::SetUp();
        testing::internal::CaptureStdout();
    }

    void TearDown() override {
        testing::internal::GetCapturedStdout();
        change_test::TearDown();
    }

    // From the start of the program to the operation's begin, with these disks.
    void begin(const disk_pair& disks) {
        world().reset();
        pulled_out.reset();
        let_the_window_select();
        view.on("refresh", [] { DeviceAdded(nullptr, 0); });
        hotplug.add_matching_notification([](std::uint32_t) {});
        gNotifyPort = &hotplug;
        take_chip(disks[0], disks[1]);
        GetParam().prepare();
        log.clear();
        pause.on_every([this] { run_unwanted_bodies(); });
    }

    // Monitors whose end is waited for run, and so end.
    void run_unwanted_bodies() {
        bool wanted = j.mutex.held_here();
        j.with_chip(j.current_place(), [&wanted](const krchip& chip) {
            wanted = wanted || chip.raid1_timer_on || chip.polling;
        });
        while (!wanted && threads.waiting() > 0) {
            threads.run_next();
        }
    }

    static ending run() {
        try {
            return {GetParam().run(), false};
        } catch (const process_ended& end) {
            EXPECT_EQ(end.status, 3);
            return {false, true};
        }
    }

    void take_bridge_away() {
        library.with_bridges([this](memory_enclosure& all) {
            pulled_out = all.bridge(device);
            all.bridges.clear();
        });
    }

    // The registry tells of the departure on the notification thread, which comes as far as it
    // can while the call hangs.
    void let_hang() {
        take_bridge_away();
        told = std::make_unique<wake_point>();
        view.on("startworking", [this] { told->wake(); });
        notification = std::thread([this] {
            DeviceRemoved(nullptr, device, message_terminated, nullptr);
            told->wake();
        });
        told->wait();
        view.on("startworking", [] {});
    }

    void strike(const fault& kind) {
        struck = true;
        if (kind.what == fault::effect::vanished) {
            take_bridge_away();
        } else if (kind.what == fault::effect::hanging) {
            let_hang();
        }
    }

    void plan(const fault& kind, int nth) {
        struck = false;
        library.with_bridges([this](memory_enclosure& all) { enclosure_before = all; });
        library.on_nth("", nth, [this, &kind] { strike(kind); });
        library.replace_nth("", nth, [this, &kind, nth](const library_call& call, auto& all) {
            struck_call = call.name;
            carries_bytes = call.carries_bytes();
            if (kind.lies()) {
                return lie(kind, nth, call, all, enclosure_before);
            }
            return kind.departs() ? all.answer(call) : library_answer{kind.status};
        });
    }

    void hear_of_departure(const fault& kind) {
        if (notification.joinable()) {
            notification.join();
        } else if (struck && kind.what == fault::effect::vanished) {
            DeviceRemoved(nullptr, device, message_terminated, nullptr);
        }
    }

    disk_pair disks() {
        if (pulled_out) {
            return pulled_out->disks;
        }
        disk_pair now;
        library.with_bridges([&now](memory_enclosure& all) { now = all.bridge(device).disks; });
        return now;
    }

    void expect_free_and_alone() {
        if (krchip* chip = j.selected()) {
            const gate_scope work(j.gate);
            chip->stop_monitors();
        }
        run_unwanted_bodies();
        EXPECT_EQ(threads.waiting(), 0U) << "a thread that nobody ends";
        EXPECT_TRUE(gate_attempt(j.gate)) << "the gate is held";
        const auto take = [](owned_mutex& mutex) { const lock_scope lock(mutex); };
        take(j.records);
        take(j.mutex);
    }

    static sector_bytes sector_of(const memory_disk& disk, std::uint64_t lba) {
        const auto found = disk.sectors.find(lba);
        return found == disk.sectors.end() ? sector_bytes{} : found->second;
    }

    static bool may_write(std::size_t port, std::uint64_t lba) {
        const swept_operation::reach& reach = GetParam().may_write;
        return reach.ports.at(port) && (lba < reach.first_sectors || lba == usual_metadata);
    }

    // What an operation leaves of a mirror of which it found one half only.
    static sector_bytes degraded(std::size_t port) {
        metadata_sector record;
        record.mode = mode_raid1;
        record.member = static_cast<unsigned char>(port);
        record.capacity = 1900;
        record.time = stamp_at(scripted_clock::start);
        return record.bytes();
    }

    // Sectors are as before or as they should become, and those of the user's as before.
    void expect_whole(const disk_pair& now, bool lied) {
        for (std::size_t port = 0; port < now.size(); ++port) {
            if (!now.at(port)) {
                continue;
            }
            for (const auto& [lba, bytes] : now.at(port)->sectors) {
                const sector_bytes was = sector_of(*before.at(port), lba);
                if (bytes == was) {
                    continue;
                }
                ASSERT_TRUE(may_write(port, lba)) << "port " << port << ", LBA " << lba;
                const bool half = GetParam().may_degrade && bytes == degraded(port);
                ASSERT_TRUE(lied || half || bytes == sector_of(*after.at(port), lba))
                    << "port " << port << ", LBA " << lba << " is neither old nor new";
            }
        }
    }

    static bool same_record(const disk_pair& one, const disk_pair& other, std::size_t port) {
        return sector_of(*one.at(port), usual_metadata) ==
               sector_of(*other.at(port), usual_metadata);
    }

    // After the operation has been repeated.
    outcome expect_accounted_for(const disk_pair& now, bool lied) const {
        outcome found = outcome::usual;
        for (std::size_t port = 0; port < now.size(); ++port) {
            if (!now.at(port) || same_record(now, after, port)) {
                continue;
            }
            EXPECT_TRUE(GetParam().may_degrade) << "otherwise than without a fault";
            if (sector_of(*now.at(port), usual_metadata) == degraded(port)) {
                found = outcome::degraded;
            } else if (!same_record(now, before, port)) {
                EXPECT_TRUE(lied) << "neither old nor new, and no degraded half";
                found = outcome::misread;
            }
        }
        return found;
    }

    // The fault has gone: the same once more, on what it has left. What was made of a lie is known
    // to the program alone, which goes on; after a failure it is started anew.
    void repeat(const fault& kind) {
        library.forget_plans();
        if (kind.lies() && j.selected() != nullptr) {
            GetParam().prepare();
        } else {
            begin(disks());
        }
        EXPECT_TRUE(run().result);
        expect_free_and_alone();
    }

    void expect_bears(const fault& kind, int nth) {
        begin(GetParam().disks);
        plan(kind, nth);
        const ending end = run();
        hear_of_departure(kind);
        if (!struck) {
            return;
        }
        if (kind.lies() && !carries_bytes) {
            return;
        }
        the_tally.count(GetParam().name, kind.name);
        SCOPED_TRACE(kind.name + " in call " + std::to_string(nth) + ", " + struck_call);
        EXPECT_EQ(log.count("show_error_and_exit"), end.left ? 1U : 0U);
        if (!kind.lies()) {
            EXPECT_EQ(end.left, struck_call == "openConnection");
        }
        expect_free_and_alone();
        const disk_pair now = disks();
        expect_whole(now, kind.lies());
        if (end.result && GetParam().promised == promise::records) {
            EXPECT_TRUE(same_record(now, after, 0) && same_record(now, after, 1))
                << "success without its records";
        }
        repeat(kind);
        the_tally.count(GetParam().name, expect_accounted_for(disks(), kind.lies()));
    }

    void learn_how_it_goes() {
        begin(GetParam().disks);
        before = disks();
        EXPECT_TRUE(run().result);
        expect_free_and_alone();
        after = disks();
    }

    disk_pair before;
    disk_pair after; // without a fault
    memory_enclosure enclosure_before;
    std::optional<memory_bridge> pulled_out;
    std::unique_ptr<wake_point> told;
    std::thread notification;
    bool struck = false;
    std::string struck_call;
    bool carries_bytes = false; // the call that was struck
};

std::string name_of(const testing::TestParamInfo<swept_operation>& info) {
    return info.param.name;
}

} // namespace

TEST_P(Operation, BearsEveryFaultOfAnyOneCall) {
    learn_how_it_goes();
    for (const fault& kind : every_fault()) {
        struck = true;
        for (int nth = 1; struck && !HasFailure(); ++nth) {
            expect_bears(kind, nth);
        }
    }
    EXPECT_GT(the_tally.cases(GetParam().name), 0) << "it calls nothing";
}

INSTANTIATE_TEST_SUITE_P(Every, Operation, testing::ValuesIn(every_swept_operation()), name_of);
