// A change that events overtake while its questions are open, and one whose safety copy is missing.
#include <QPushButton>
#include <gmock/gmock.h>

#include "tests/ui/change_window.h"

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class swapped : public change_window {
protected:
    // Nothing at all may follow the confirmation.
    void expect_nothing_done(QPushButton* button, const std::function<void()>& meanwhile) {
        take_mirror();
        panels.while_open([this, meanwhile] {
            meanwhile();
            log.clear();
        });
        press(button);
        panels.while_open({});
        EXPECT_THAT(log.lines(), IsEmpty()) << button->objectName().toStdString();
        EXPECT_THAT(take_outlets(), IsEmpty());
    }
};

TEST_F(swapped, DiskUnderAnOpenPanelMeansThatNothingIsWritten) {
    for (QPushButton* button : all_buttons()) {
        for (const int port : {0, 1}) {
            expect_nothing_done(button, [this, port] {
                change_disk(port, [](krdisk& disk) { disk.identify_serial_raw[3] ^= 1; });
            });
            expect_nothing_done(button, [this, port] {
                change_disk(port, [](krdisk& disk) { disk.present = 0; });
            });
        }
    }
}

TEST_F(swapped, ControllerUnderAnOpenPanelMeansThatNothingIsWritten) {
    for (QPushButton* button : all_buttons()) {
        expect_nothing_done(button, [] {
            const lock_scope lock(j.records);
            j.current = j.chips[0].identity = usb_identity(0x99);
        });
        expect_nothing_done(button, [] {
            const lock_scope lock(j.records);
            j.chips.clear();
        });
    }
}

TEST_F(swapped, ArrayThatIsNoMirrorAnyMoreUnderAnOpenPanelIsNotDeleted) {
    expect_nothing_done(window->clearconfigbutton, [] {
        const lock_scope lock(j.records);
        j.chips[0].raid_mode = mode_raid0;
    });
}

TEST_F(swapped, DiskThatToldNobodyIsFoundOutAndEverythingIsReadAgain) {
    for (QPushButton* button : all_buttons()) {
        for (const std::size_t port : {0U, 1U}) {
            for (const bool pulled : {true, false}) {
                take_mirror();
                panels.while_open([this, pulled, port] {
                    library.with_bridges([pulled, port](memory_enclosure& all) {
                        const memory_disk other(port == 0 ? disk_b() : disk_a());
                        all.bridge(device).disks[port] =
                            pulled ? std::nullopt : std::optional(other);
                    });
                    panels.while_open({});
                });
                press(button);
                // Only what every reading of a lone mirror member does comes after it.
                EXPECT_THAT(until("getDeviceList"), Each(Not(HasSubstr("krSet"))));
                EXPECT_EQ(log.count("copy "), 0U) << button->objectName().toStdString();
                EXPECT_EQ(log.count("getDeviceList"), 1U) << "the window shows what is there now";
            }
        }
    }
}

TEST_F(swapped, DiskExchangedWhileAMonitorsPanelHoldsUpTheChangeIsFoundOut) {
    take_mirror();
    threads.reset(); // the thread for hot-plug events stays away
    {
        const gate_scope work(j.gate);
        j.chips[0].start_raid1_timer();
    }
    ASSERT_EQ(threads.waiting(), 1U);
    // While the change waits for the timer to end.
    pause.on_nth(1, [this] {
        library.with_bridges(
            [](memory_enclosure& all) { all.bridge(device).disks[1] = memory_disk(disk_a()); });
        threads.run_next();
    });
    press(window->clearconfigbutton);
    EXPECT_THAT(until("getDeviceList"), Each(Not(HasSubstr("krSet"))));
}

class without_copy : public change_window {
protected:
    const std::string question = "panel warning [warning] ui_copy_failed (ok) (cancel)";

    void SetUp() override {
        change_window::SetUp();
        copies.trouble = "no space";
    }
};

TEST_F(without_copy, TheUserIsToldAndAskedAndMayStop) {
    panels.answer(panel_default);
    panels.answer(panel_second);
    press(window->clearconfigbutton);
    EXPECT_THAT(talk(), ElementsAre(asked, "copy not kept", question));
    EXPECT_EQ(writes(), 0U);
    EXPECT_EQ(log.count("getDeviceList"), 1U) << "which starts the monitors again";
}

TEST_F(without_copy, TheUserMayGoOn) {
    press(window->clearconfigbutton);
    EXPECT_THAT(talk(), ElementsAre(asked, "copy not kept", question));
    EXPECT_EQ(writes(), 130U);
}

TEST_F(without_copy, DiskSwappedUnderTheSecondQuestionMeansThatNothingIsWritten) {
    int open = 0;
    panels.while_open([&] {
        if (++open == 2) {
            change_disk(0, [](krdisk& disk) { disk.identify_serial_raw[0] ^= 1; });
        }
    });
    press(window->clearconfigbutton);
    EXPECT_EQ(open, 2);
    EXPECT_EQ(writes(), 0U);
}

TEST_F(without_copy, DiskExchangedUnderTheSecondQuestionIsFoundOut) {
    int open = 0;
    panels.while_open([&] {
        if (++open == 2) {
            library.with_bridges(
                [](memory_enclosure& all) { all.bridge(device).disks[1] = memory_disk(disk_a()); });
        }
    });
    press(window->clearconfigbutton);
    EXPECT_EQ(writes(), 0U);
    EXPECT_EQ(log.count("getDeviceList"), 1U);
}

TEST_F(without_copy, VolumeMountedUnderTheSecondQuestionIsFoundOut) {
    int open = 0;
    panels.while_open([&] {
        if (++open == 2) {
            volumes.mount(device, "/media/a");
        }
    });
    press(window->clearconfigbutton);
    EXPECT_EQ(open, 3) << "and told";
    EXPECT_EQ(writes(), 0U);
    EXPECT_EQ(log.count("getDeviceList"), 1U) << "which starts the monitors again";
}

} // namespace
