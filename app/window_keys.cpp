#include "app/window_keys.h"

#include <QKeySequence>
#include <QPushButton>
#include <QShortcut>
#include <array>

#include "app/action_tip.h"
#include "app/controller.h"
#include "app/controller_box.h"
#include "app/gated_tab_bar.h"
#include "app/krview.h"
#include "app/localised.h"
#include "app/tab_view.h"
#include "app/window_extras.h"

namespace {

// Letters, arrows and keys with a name are on every keyboard. A digit may need Shift on some, so
// none is told from another by Shift alone; and the disks have function keys, the left bay the left
// one, with Shift against slips.
constexpr QKeyCombination list_key = Qt::Key_F4;
constexpr std::array<QKeyCombination, 2> tab_keys = {Qt::CTRL | Qt::Key_1, Qt::CTRL | Qt::Key_2};

struct button_key {
    QPushButton* button;
    QKeyCombination key;
};

} // namespace

// A shortcut sleeps while its widget is hidden or disabled.
void connect_keys(controller& window) {
    tab_view* tabs = window.tabview;
    for (int tab = 0; tab < static_cast<int>(tab_keys.size()); ++tab) {
        new QShortcut(tab_keys[static_cast<std::size_t>(tab)], tabs,
                      [tabs, tab] { tabs->user_asks_for(tab); });
    }
    controller_box* box = window.controllerselectbox;
    new QShortcut(list_key, box, [box] { box->open(); });
    new QShortcut(Qt::Key_F1, window.mainview, [&window] { window.show_guide(); });
}

void give_keys(controller& window) {
    const std::array<button_key, 12> keys = {{
        {window.refresh_button, Qt::Key_F5},
        {window.mainguibutton, Qt::ALT | Qt::Key_1},
        {window.showdiskguibutton, Qt::ALT | Qt::Key_2},
        {window.confirmbutton, Qt::CTRL | Qt::Key_N},
        {window.clearconfigbutton, Qt::CTRL | Qt::Key_Delete},
        {window.cleardisk0button, Qt::SHIFT | Qt::Key_F7},
        {window.cleardisk1button, Qt::SHIFT | Qt::Key_F8},
        {window.rebuild0to1button, Qt::CTRL | Qt::Key_Right},
        {window.rebuild1to0button, Qt::CTRL | Qt::Key_Left},
        {window.extras->warmbootbutton, Qt::SHIFT | Qt::Key_F9},
        {window.minimizebutton, Qt::CTRL | Qt::Key_M},
        {window.closebutton, Qt::CTRL | Qt::Key_Q},
    }};
    for (const button_key& one : keys) {
        set_key(one.button, one.key);
    }
    constexpr std::array<const char*, 2> tabs = {"configuration_tab", "rebuild"};
    for (std::size_t tab = 0; tab < tabs.size(); ++tab) {
        const QString name = localised(tabs[tab]);
        window.tabview->bar()->setTabToolTip(static_cast<int>(tab),
                                             name_and_key(name, tab_keys[tab]));
    }
}
