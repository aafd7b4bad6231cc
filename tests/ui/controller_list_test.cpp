// The controller list and the change of the selection.
#include <QAbstractItemView>
#include <QPushButton>
#include <QStackedWidget>
#include <gmock/gmock.h>

#include "app/controller_box.h"
#include "app/controller_entry.h"
#include "app/text_field.h"
#include "tests/ui/window_test.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

TEST(controller_entry, OfAUsbBridgeHasTwoBlanksBeforeItsSerialNumber) {
    controller_t identity;
    identity.serial = "ABC123";
    EXPECT_EQ(controller_entry_text(identity, "Kestrel Duo"), "Kestrel Duo  (S/N: ABC123)");
}

TEST(controller_entry, OfAFireWireBridgeHasItsGuidInHexadecimal) {
    controller_t identity;
    identity.firewire = true;
    identity.guid = 0x50770E0000A1B2;
    EXPECT_EQ(controller_entry_text(identity, "Tower"), "Tower  (GUID: 50770E0000A1B2)");
    identity.guid = 0;
    EXPECT_EQ(controller_entry_text(identity, "Tower"), "Tower  (GUID: )");
}

TEST(controller_entry, MayBeNamedByAnything) {
    EXPECT_EQ(controller_entry_text({}, "<b>\xFF"), "<b>\xC3\xBF  (S/N: )");
}

class list : public window_test {
protected:
    // Two bridges, of which the second sorts first.
    void attach_two() {
        attach(0x11, usb_bridge(1, 2, 0x200, u"SECOND"), memory_disk(disk_a()), std::nullopt);
        attach(0x12, usb_bridge(1, 2, 0x100, u"FIRST"), std::nullopt, memory_disk(disk_b()));
    }
    QStringList entries() const {
        QStringList all;
        for (int i = 0; i < window->controllerselectbox->count(); ++i) {
            all += window->controllerselectbox->itemText(i);
        }
        return all;
    }
    QString text() const { return window->controllerselectbox->currentText(); }
    // As the user does it.
    void choose(int entry) {
        window->controllerselectbox->setCurrentIndex(entry);
        Q_EMIT window->controllerselectbox->activated(entry);
    }
    std::uint64_t current() const {
        const lock_scope lock(j.records);
        return j.current.location_id;
    }
};

TEST_F(list, WithoutChipsIsEmptyAndShowsNothing) {
    window->controllerselectbox->set_text("left over");
    window->update_controller_list();
    EXPECT_EQ(entries(), QStringList());
    EXPECT_EQ(text(), QString());
    EXPECT_THAT(log.lines(from_pauses), ElementsAre("sleep(2000ms)"));
}

TEST_F(list, ClearedWithoutChipsShowsNothing) {
    window->controllerselectbox->set_text("left over");
    window->clear_controller_list();
    EXPECT_EQ(text(), QString());
}

TEST_F(list, ClearedWithChipsKeepsItsText) {
    attach_two();
    window->refresh();
    const QString before = text();
    EXPECT_NE(before, QString());
    window->clear_controller_list();
    EXPECT_EQ(entries(), QStringList());
    EXPECT_EQ(text(), before);
}

TEST_F(list, ShowsABridgeByNameAndSerialNumber) {
    attach(0x11, usb_bridge(1, 2, 0x200, u"ABC123"));
    window->refresh();
    EXPECT_EQ(entries(), QStringList{"Bridge  (S/N: ABC123)"});
}

TEST_F(list, IsInTheOrderOfTheControllerMap) {
    attach_two();
    window->refresh();
    EXPECT_EQ(entries(), (QStringList{"Bridge  (S/N: FIRST)", "Bridge  (S/N: SECOND)"}));
}

TEST_F(list, WaitsTwoSecondsBetweenEmptyingAndFilling) {
    attach_two();
    window->refresh();
    int entries_meanwhile = -1;
    log.clear();
    pause.on_nth(1, [&] { entries_meanwhile = window->controllerselectbox->count(); });
    window->update_controller_list();
    EXPECT_EQ(entries_meanwhile, 0);
    EXPECT_EQ(entries().size(), 2);
    EXPECT_THAT(log.lines(from_pauses), ElementsAre("sleep(2000ms)"));
}

TEST_F(list, FirstEntryBecomesCurrentAfterAScan) {
    attach_two();
    window->refresh();
    EXPECT_EQ(current(), 0x100U);
    EXPECT_EQ(text(), QStringLiteral("Bridge  (S/N: FIRST)"));
    EXPECT_EQ(window->disk1modelfield->text(), QStringLiteral("DISK B"));
}

TEST_F(list, SelectingTheFirstOfNoneOnlyUpdatesTheDisplay) {
    window->select_first_controller();
    const lines written = take_outlets();
    EXPECT_EQ(written.front(), "tree: hidden");
    EXPECT_THAT(written, Not(Contains("guitab: selects 0")));
}

TEST_F(list, FillingItSelectsNothing) {
    attach_two();
    window->refresh();
    window->update_controller_list();
    EXPECT_EQ(window->controllerselectbox->currentIndex(), -1);
    EXPECT_EQ(text(), QStringLiteral("Bridge  (S/N: FIRST)"));
}

TEST_F(list, ChoosingAnotherEntryShowsItOnTheFirstPage) {
    attach_two();
    window->refresh();
    window->switchguishowdisk();
    take_outlets();
    choose(1);
    EXPECT_EQ(current(), 0x200U);
    EXPECT_EQ(window->guitab->currentIndex(), 0);
    EXPECT_EQ(window->disk0modelfield->text(), QStringLiteral("DISK A"));
    const lines written = take_outlets();
    EXPECT_EQ(
        lines(written.begin(), written.begin() + 7),
        (lines{"levelindicator: hidden", "levelindicator: disabled", "guitab: selects 0",
               "showdiskguibutton: image SysInfo_normal.png",
               "mainguibutton: image RaidST_click.png", "guitab: selects 0", "tree: hidden"}));
}

TEST_F(list, ChoosingTheCurrentEntryChangesNothingAndStopsNoMonitor) {
    attach_two();
    window->refresh();
    {
        const gate_scope work(j.gate);
        const lock_scope lock(j.records);
        j.selected()->raid1_timer_on = true;
    }
    log.clear();
    take_outlets();
    choose(0);
    EXPECT_THAT(take_outlets(), IsEmpty());
    EXPECT_THAT(log.lines(), IsEmpty());
    const gate_scope work(j.gate);
    EXPECT_TRUE(j.selected()->raid1_timer_on);
}

TEST_F(list, ChoosingAnotherEntryWaitsForThePollerOfTheOldChip) {
    attach_two();
    window->refresh();
    const gate_scope before(j.gate);
    {
        const lock_scope lock(j.records);
        j.selected()->polling = true;
        j.selected()->poller_alive = true;
        j.selected()->raid1_timer_on = true;
    }
    std::uint64_t current_meanwhile = 0;
    pause.on_nth(5, [&] {
        const lock_scope lock(j.records);
        current_meanwhile = j.current.location_id;
        j.selected()->poller_alive = false;
    });
    log.clear();
    {
        const gate_pause others_may_work(j.gate);
        choose(1);
    }
    EXPECT_EQ(current_meanwhile, 0x100U);
    EXPECT_EQ(current(), 0x200U);
    EXPECT_EQ(log.lines(from_pauses), lines(5, "sleep(10ms)"));
    const krchip& old = j.chips[static_cast<std::size_t>(j.controller_map[0].second)];
    EXPECT_FALSE(old.polling);
    EXPECT_FALSE(old.raid1_timer_on);
}

TEST_F(list, EntryOfABridgeThatHasMovedInTheMapIsIgnored) {
    attach_two();
    window->refresh();
    {
        const gate_scope work(j.gate);
        const lock_scope lock(j.records);
        std::swap(j.controller_map[0].second, j.controller_map[1].second);
    }
    const QString shown = window->controllerselectbox->currentText();
    choose(1);
    EXPECT_EQ(current(), 0x100U);
    EXPECT_EQ(window->controllerselectbox->currentText(), shown)
        << "the box names the bridge that is acted on";
}

TEST_F(list, EntryBeyondTheMapOrTheChipsIsIgnored) {
    attach_two();
    window->refresh();
    {
        const gate_scope work(j.gate);
        const lock_scope lock(j.records);
        j.chips.clear();
    }
    choose(1);
    {
        const lock_scope lock(j.records);
        j.controller_map.clear();
    }
    choose(1);
    EXPECT_EQ(current(), 0x100U);
}

TEST_F(list, WithoutASelectionDoesNothing) {
    attach_two();
    window->refresh();
    window->update_controller_list();
    take_outlets();
    window->comboBoxSelectionDidChange();
    EXPECT_THAT(take_outlets(), IsEmpty());
}

TEST_F(list, IsRefilledFromAnyThread) {
    attach_two();
    on_other_thread([this] { window->refresh(); });
    EXPECT_EQ(entries().size(), 2);
    EXPECT_EQ(current(), 0x100U);
}

TEST_F(list, RemovalOfTheCurrentBridgeSelectsTheFirstThatIsLeft) {
    attach_two();
    window->refresh();
    library.with_bridges([](memory_enclosure& all) { all.bridges.pop_back(); });
    window->refresh();
    EXPECT_EQ(current(), 0x200U);
    EXPECT_EQ(entries(), QStringList{"Bridge  (S/N: SECOND)"});
}

} // namespace
