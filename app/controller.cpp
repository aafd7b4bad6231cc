// Start-up, shutdown and what all of the controller stands on.
#include "app/controller.h"

#include <QPushButton>
#include <QTreeView>
#include <utility>

#include "app/controller_box.h"
#include "app/focus_memory.h"
#include "app/gated_tab_bar.h"
#include "app/krview.h"
#include "app/main_window.h"
#include "app/panel_notice.h"
#include "app/plain_text.h"
#include "app/radio_matrix.h"
#include "app/tree_model.h"
#include "app/treeview.h"
#include "app/ui_bridge.h"
#include "app/window_contents.h"
#include "app/window_extras.h"
#include "model/exit_gate.h"
#include "model/krtool.h"
#include "model/rescan.h"

namespace {

constexpr int status_fatal = 3;

} // namespace

controller::controller(const window_parts& parts)
    : extras(std::make_unique<window_extras>()),
      bridge_(parts.bridge),
      system_(parts.system),
      copies_(parts.copies),
      desktop_(parts.desktop),
      tree_data_(parts.tree),
      runner_(parts.bridge, guard_, parts.workers, [this] { obey_remembered_exit(); }),
      own_panels_(guard_),
      panels_(parts.panels != nullptr ? *parts.panels : own_panels_),
      tree_model_(std::make_unique<tree_model>()),
      now_(parts.now) {

    build_window_contents(*this);
    own_panels_.show_over(mainview);
    guard_.always_serve(minimizebutton, true);
    guard_.always_serve(closebutton, false);
    tabview->set_delegate(
        [this](const tab_item& item) { return tab_gate_.shouldSelectTabViewItem(item); });
    tabview->serve_user_only_while([this] { return idle(); });
    connect_actions();
    watch_pace();
    focus_ = std::make_unique<focus_memory>(
        guard_, std::vector<QWidget*>{tabview->bar(), showdiskguibutton, mainguibutton});
    desktop_.when_opened([this](const std::string& token) { bring_to_front(token); });
}

controller::~controller() {
    delete (mainwindow != nullptr ? static_cast<QWidget*>(mainwindow) : mainview);
}

void controller::awakeFromNib() {
    mainview->awakeFromNib();
    cleargui();
    setGUIStrings();
    controllerselectbox->set_delegate([this] {
        if (idle()) {
            comboBoxSelectionDidChange();
        } else {
            show_current_entry();
        }
    });
    raidconfigradiobutton->set_delegate([this] {
        const bool obeyed = idle();
        if (obeyed) {
            radio_changed();
        }
        return obeyed;
    });
    configuretab->identifier = 0;
    rebuildtab->identifier = tabviewdel::rebuild_identifier;
}

void controller::applicationDidFinishLaunching() {
    create_window();
    ctrller = this;
    if (!j.with.threads.start([] { start_device_notification(nullptr); })) {
        show_error_and_exit("Error creating device notification thread");
        return;
    }
    tree_model_->set_heading(one_line(localised("ui_devices")));
    tree->setModel(tree_model_.get());
    load_dialog_words();
}

void controller::create_window() {
    constexpr int left = 100;
    constexpr int bottom = 100;
    mainwindow = new main_window([this] { close_wanted(); });
    mainwindow->setObjectName(QStringLiteral("mainwindow"));
    mainwindow->setWindowTitle(QStringLiteral("Kestrel RAID"));
    mainview->setParent(mainwindow);
    mainview->setGeometry(mainwindow->rect());
    mainview->show();
    mainview->setFocus();
    mainwindow->place_from_bottom_left(left, bottom);
    mainwindow->bring_to_front({});
}

void controller::load_dialog_words() {
    s_ok = localised("ok");
    s_cancel = localised("cancel");
    s_warning = localised("warning");
    s_error = localised("error");
    s_attention = localised("attention");
}

bool controller::check_OS_version() {
    return is_10_6_or_later(system_);
}

void controller::leave(int status) {
    desktop_.hand_over();
    j.with.exit.leave(status);
}

void controller::exitprogram() {
    if (guard_.working()) {
        exit_remembered_ = true;
        return;
    }
    leave(0);
}

// An open panel is closed first; whoever opened it then goes its way.
void controller::close_wanted() {
    if (guard_.topmost_panel() == nullptr) {
        exitprogram();
        return;
    }
    exit_remembered_ = true;
    dismiss_topmost_panel(guard_);
}

void controller::obey_remembered_exit() {
    if (exit_remembered_ && !guard_.working()) {
        exit_remembered_ = false;
        leave(0);
    }
}

void controller::show_error_and_exit(const std::string& /*message*/) {
    ui([this] {
        const std::string error = localised("error");
        // The list may still name a bridge that this is not about.
        notify_and_ask({panel_kind::error, error, error, {localised("ok")}}, error,
                       urgency::critical);
        leave(status_fatal);
    });
}

void controller::ui(const std::function<void()>& step) {
    bridge_.run(step);
}

void controller::as_body(const std::function<void()>& body) {
    if (!runner_.run(body)) {
        show_error_and_exit("Error creating worker thread");
    }
}

void controller::inform(const std::string& title, const std::string& message, urgency how) {
    ui([&] {
        if (exit_remembered_) {
            obey_remembered_exit();
            return; // nobody is to be asked on the way out
        }
        // Panels may come before the dialog words have been loaded.
        const std::string ok = s_ok.empty() ? localised("ok") : s_ok;
        tell({panel_kind::attention, title, message, {ok}}, how);
        obey_remembered_exit();
    });
}

// What the user asks for in the window is asked about there alone; this is for what comes unasked.
int controller::tell(const panel_request& message, urgency how) {
    const QString enclosure = controllerselectbox->currentText();
    const std::string text =
        enclosure.isEmpty() ? message.message : message.message + "\n" + enclosure.toStdString();
    return notify_and_ask(message, text, how);
}

int controller::notify_and_ask(const panel_request& message, const std::string& text, urgency how) {
    const panel_notice outside(
        desktop_, mainwindow,
        {message.title, text, localised("ui_open_window"), how == urgency::critical});
    return panels_.ask(message);
}

std::string controller::localised(const char* key) const {
    return j.with.texts.text(key);
}
