// Every outlet of the controller is there, under its name, and of its kind.
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeView>
#include <concepts>
#include <gtest/gtest.h>
#include <set>

#include "app/controller_box.h"
#include "app/krview.h"
#include "app/level_indicator.h"
#include "app/main_window.h"
#include "app/radio_matrix.h"
#include "app/text_field.h"
#include "app/titled_box.h"
#include "app/working_indicator.h"
#include "tests/ui/window_test.h"

namespace {

class outlets : public window_test {
protected:
    // The member itself has to be of this kind, not of one derived from it.
    template<class Kind, std::same_as<Kind*> Member> void expect(const char* name, Member widget) {
        ASSERT_NE(widget, nullptr) << name;
        EXPECT_EQ(widget->objectName(), QLatin1String(name));
        EXPECT_EQ(widget->window(), window->mainwindow) << name;
        EXPECT_TRUE(widgets.insert(widget).second) << name << " is another outlet as well";
    }
    void expect_tab(const tab_item* item, int index) const {
        ASSERT_NE(item, nullptr);
        EXPECT_EQ(item, window->tabview->item(index));
        EXPECT_EQ(item->index, index);
        EXPECT_NE(item->page, nullptr);
    }

    std::set<const QWidget*> widgets;
};

// In the order of their declaration.
TEST_F(outlets, AreAllThereUnderTheirNames) {
    expect<main_window>("mainwindow", window->mainwindow);
    expect<QStackedWidget>("guitab", window->guitab);
    expect<krview>("mainview", window->mainview);
    expect_tab(window->configuretab, 0);
    expect_tab(window->rebuildtab, 1);
    expect<text_field>("disk0modelfield", window->disk0modelfield);
    expect<text_field>("disk1modelfield", window->disk1modelfield);
    expect<text_field>("disk0serialfield", window->disk0serialfield);
    expect<text_field>("disk1serialfield", window->disk1serialfield);
    expect<text_field>("disk0modefield", window->disk0modefield);
    expect<text_field>("disk1modefield", window->disk1modefield);
    expect<text_field>("disk0sizefield", window->disk0sizefield);
    expect<text_field>("disk1sizefield", window->disk1sizefield);
    expect<text_field>("disk0picmodefield", window->disk0picmodefield);
    expect<text_field>("disk1picmodefield", window->disk1picmodefield);
    expect<text_field>("disk0caplabel", window->disk0caplabel);
    expect<text_field>("disk1caplabel", window->disk1caplabel);
    expect<text_field>("disk0label", window->disk0label);
    expect<text_field>("disk1label", window->disk1label);
    expect<text_field>("disk0oldnewlabel", window->disk0oldnewlabel);
    expect<text_field>("disk1oldnewlabel", window->disk1oldnewlabel);
    expect<text_field>("disk0cappicture", window->disk0cappicture);
    expect<text_field>("disk1cappicture", window->disk1cappicture);
    expect<text_field>("raidmodelabel", window->raidmodelabel);
    expect<radio_matrix>("raidconfigradiobutton", window->raidconfigradiobutton);
    expect<titled_box>("raid_config_radio_box", window->raid_config_radio_box);
    expect<titled_box>("raid_status_box", window->raid_status_box);
    expect<text_field>("disk1_rebuild_static_label", window->disk1_rebuild_static_label);
    expect<text_field>("disk2_rebuild_static_label", window->disk2_rebuild_static_label);
    expect<text_field>("disk1_info_static_label", window->disk1_info_static_label);
    expect<text_field>("disk2_info_static_label", window->disk2_info_static_label);
    expect<text_field>("disk1_SN_static_label", window->disk1_SN_static_label);
    expect<text_field>("disk2_SN_static_label", window->disk2_SN_static_label);
    expect<text_field>("disk1_mode_static_label", window->disk1_mode_static_label);
    expect<text_field>("disk2_mode_static_label", window->disk2_mode_static_label);
    expect<text_field>("disk1_physize_static_label", window->disk1_physize_static_label);
    expect<text_field>("disk2_physize_static_label", window->disk2_physize_static_label);
    expect<QPushButton>("twotbcheckbox", window->twotbcheckbox);
    expect<tab_view>("tabview", window->tabview);
    expect_tab(window->rebuildbutton, 1);
    expect_tab(window->configurebutton, 0);
    expect<QPushButton>("rebuild0to1button", window->rebuild0to1button);
    expect<QPushButton>("rebuild1to0button", window->rebuild1to0button);
    expect<QPushButton>("confirmbutton", window->confirmbutton);
    expect<QPushButton>("cleardisk0button", window->cleardisk0button);
    expect<QPushButton>("cleardisk1button", window->cleardisk1button);
    expect<QPushButton>("clearconfigbutton", window->clearconfigbutton);
    expect<QPushButton>("showdiskguibutton", window->showdiskguibutton);
    expect<QPushButton>("mainguibutton", window->mainguibutton);
    expect<QPushButton>("minimizebutton", window->minimizebutton);
    expect<QPushButton>("closebutton", window->closebutton);
    expect<text_field>("rebuilddisk0field", window->rebuilddisk0field);
    expect<text_field>("rebuilddisk1field", window->rebuilddisk1field);
    expect<text_field>("percentagefield", window->percentagefield);
    expect<text_field>("rebuildlabel", window->rebuildlabel);
    expect<QTreeView>("tree", window->tree);
    expect<controller_box>("controllerselectbox", window->controllerselectbox);
    expect<level_indicator>("levelindicator", window->levelindicator);
    expect<working_indicator>("workingindicator", window->workingindicator);
    expect<QPushButton>("refresh_button", window->refresh_button);
    EXPECT_EQ(window->s_ok, "ok");
    EXPECT_EQ(window->s_cancel, "cancel");
    EXPECT_EQ(window->s_warning, "warning");
    EXPECT_EQ(window->s_attention, "attention");
    EXPECT_EQ(window->s_error, "error");
}

TEST_F(outlets, OfTheTabsAreKnownByTheirIdentifiers) {
    EXPECT_EQ(window->configuretab->identifier, 0);
    EXPECT_EQ(window->rebuildtab->identifier, tabviewdel::rebuild_identifier);
}

} // namespace
