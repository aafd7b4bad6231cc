// The window controller.
#pragma once

#include <QStackedWidget>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "app/body_runner.h"
#include "app/copy_pace.h"
#include "app/input_guard.h"
#include "app/outlet_writer.h"
#include "app/panel.h"
#include "app/status_display.h"
#include "app/system_version.h"
#include "app/tab_view.h"
#include "app/tabviewdel.h"
#include "device/volume_uses.h"
#include "model/change_plan.h"
#include "model/monitor.h"
#include "model/window.h"

class QPushButton;
class QTimer;
class QTreeView;
class controller_box;
class copy_keeper;
class focus_memory;
class krchip;
class krview;
class level_indicator;
class main_window;
class notices;
class radio_matrix;
class text_field;
class titled_box;
class tree_model;
class treeview;
class ui_bridge;
class working_indicator;
struct controller_t;
struct outlook;
struct window_extras;

// What the controller is given. Everything outlives it.
struct window_parts {
    ui_bridge& bridge;
    thread_starter& workers; // for what the interface thread must not do itself
    version_query& system;
    copy_keeper& copies;             // of the records, before they are changed
    notices& desktop;                // where messages are told while the window is out of sight
    const treeview& tree;            // the data of the device tree; the records lock guards it
    panel_answers* panels = nullptr; // none: the user answers
    std::function<copy_pace::time_point()> now = std::chrono::steady_clock::now;
};

// The operations of `window` may be called by any thread and return when they are done; those
// below them belong to the interface thread. Texts are UTF-8.
class controller final : public window {
public:
    // Builds the window's contents, without a window yet. Interface thread.
    explicit controller(const window_parts& parts);
    ~controller() override;

    // The outlets.
    main_window* mainwindow = nullptr;
    QStackedWidget* guitab = nullptr;
    krview* mainview = nullptr;
    tab_item* configuretab = nullptr;
    tab_item* rebuildtab = nullptr;
    text_field* disk0modelfield = nullptr;
    text_field* disk1modelfield = nullptr;
    text_field* disk0serialfield = nullptr;
    text_field* disk1serialfield = nullptr;
    text_field* disk0modefield = nullptr;
    text_field* disk1modefield = nullptr;
    text_field* disk0sizefield = nullptr;
    text_field* disk1sizefield = nullptr;
    text_field* disk0picmodefield = nullptr;
    text_field* disk1picmodefield = nullptr;
    text_field* disk0caplabel = nullptr;
    text_field* disk1caplabel = nullptr;
    text_field* disk0label = nullptr;
    text_field* disk1label = nullptr;
    text_field* disk0oldnewlabel = nullptr;
    text_field* disk1oldnewlabel = nullptr;
    text_field* disk0cappicture = nullptr;
    text_field* disk1cappicture = nullptr;
    text_field* raidmodelabel = nullptr;
    radio_matrix* raidconfigradiobutton = nullptr;
    titled_box* raid_config_radio_box = nullptr;
    titled_box* raid_status_box = nullptr;
    text_field* disk1_rebuild_static_label = nullptr;
    text_field* disk2_rebuild_static_label = nullptr;
    text_field* disk1_info_static_label = nullptr;
    text_field* disk2_info_static_label = nullptr;
    text_field* disk1_SN_static_label = nullptr;
    text_field* disk2_SN_static_label = nullptr;
    text_field* disk1_mode_static_label = nullptr;
    text_field* disk2_mode_static_label = nullptr;
    text_field* disk1_physize_static_label = nullptr;
    text_field* disk2_physize_static_label = nullptr;
    QPushButton* twotbcheckbox = nullptr;
    tab_view* tabview = nullptr;
    tab_item* rebuildbutton = nullptr;
    tab_item* configurebutton = nullptr;
    QPushButton* rebuild0to1button = nullptr;
    QPushButton* rebuild1to0button = nullptr;
    QPushButton* confirmbutton = nullptr;
    QPushButton* cleardisk0button = nullptr;
    QPushButton* cleardisk1button = nullptr;
    QPushButton* clearconfigbutton = nullptr;
    QPushButton* showdiskguibutton = nullptr;
    QPushButton* mainguibutton = nullptr;
    QPushButton* minimizebutton = nullptr;
    QPushButton* closebutton = nullptr;
    text_field* rebuilddisk0field = nullptr;
    text_field* rebuilddisk1field = nullptr;
    text_field* percentagefield = nullptr;
    text_field* rebuildlabel = nullptr;
    QTreeView* tree = nullptr;
    controller_box* controllerselectbox = nullptr;
    level_indicator* levelindicator = nullptr;
    working_indicator* workingindicator = nullptr;
    QPushButton* refresh_button = nullptr;
    std::string s_ok;
    std::string s_cancel;
    std::string s_warning;
    std::string s_attention;
    std::string s_error;

    // What else is in the window, and the seam of all writes to outlets.
    std::unique_ptr<window_extras> extras;
    outlet_writer outlets;

    // Start-up, in this order, and the ends of the process (status 0 and 3).
    void awakeFromNib();
    void applicationDidFinishLaunching();
    bool check_OS_version(); // any thread
    void exitprogram();      // obeyed when running work has ended
    void show_error_and_exit(const std::string& message) override;
    QTreeView* gettree() const { return tree; }

    // Controller list.
    void clear_controller_list() override;
    void update_controller_list() override;
    void select_first_controller() override;
    void comboBoxSelectionDidChange(); // any thread

    // Status display.
    void cleargui() override;
    void update_raid_information() override;
    void refreshgui();
    void showrebuildbuttons() override;

    // Buttons, progress, panels.
    void disablegui(bool rebuild_only) override;
    void enablegui(bool rebuild_only);
    void startworking() override;
    void stopworking() override;
    void startprogressbar() override;
    void stopprogressbar() override;
    void updatepoll(std::uint64_t end, std::uint64_t currlba, bool diskp100) override;
    void show_message(const std::string& text) override;
    void show_hot_swap_message() override;
    void refresh() override;
    void radio_changed();

    // Changes of the array of the selected chip, or, by warmboot(), a restart of the first one.
    void confirm();
    void clearconfiguration();
    void rebuild0to1();
    void rebuild1to0();
    void cleardisk0();
    void cleardisk1();
    void warmboot();

    // Captions and pages.
    void setGUIStrings();
    void switchguimain();
    void switchguishowdisk();
    void minimizewindow();
    // What to do when a disk has failed. Returns when the guide is closed.
    void show_guide();
    // Answers no panel and ends no work; `token`: see main_window.
    void bring_to_front(const std::string& token);

    // Device tree.
    void refreshtree() override;
    void expandtree() override;

    // Whether a body runs or a panel is open, so that actions of the user are not carried out.
    bool idle() const { return guard_.idle(); }

private:
    struct disk_outlets;

    // Of a message that is told on the desktop as well.
    enum class urgency { normal, critical };

    // What became of a change; dropped: what the window shows is no longer what was confirmed;
    // outdated: nothing was done, and the bridges have to be read again.
    enum class outcome { dropped, outdated, done, failed };

    // Whether a change may begin (done), and which uses of the volume are against it.
    struct clearance {
        outcome end;
        std::vector<volume_use> uses;
    };

    void ui(const std::function<void()>& step);
    void as_body(const std::function<void()>& body);
    // Connects a button to an action that is carried out only while the window is idle.
    void on_click(QPushButton* button, std::function<void()> action);
    void connect_actions();
    void inform(const std::string& title, const std::string& message, urgency how);
    int tell(const panel_request& message, urgency how);
    int notify_and_ask(const panel_request& message, const std::string& text, urgency how);
    void watch_pace();
    void forget_pace();
    std::string localised(const char* key) const;
    void create_window();
    void load_dialog_words();
    void leave(int status);
    void close_wanted();
    void obey_remembered_exit();

    void enable_buttons(bool rebuild_only, bool enabled);
    disk_outlets outlets_of_disk(std::size_t port);
    void show_status();
    void apply(const view_state& view, const outlook& now);
    void apply_disk(const disk_view& view, std::size_t port, bool single);
    void apply_array(const view_state& view);
    void show_alerts(const view_state& view, chip_place place);
    void show_rebuild(const krchip& chip, const view_state& view, chip_place place);
    void bring_rebuild_tab(bool gate_grants);

    change_plan plan_for_selected(array_change what, int mode);
    bool with_scenes(const std::function<bool()>& operation);
    bool granted(const char* question, const change_plan& plan);
    outcome carry_out(const change_plan& plan,
                      const std::function<bool(std::int32_t chip)>& operation);
    clearance may_begin(const change_plan& plan);
    static clearance compare(const change_plan& plan);
    // Restarts the first enclosure of the list, unless its volume is used: by whom then. With the
    // gate held and chips there.
    static std::vector<volume_use> restart_first();
    void refuse(const std::vector<volume_use>& uses);
    bool goes_on_without_copy(const std::string& trouble);
    void rebuild(array_change direction, const char* question);
    void cleardisk(array_change what, bool port);
    void report(const char* error);
    void report_and_refresh(outcome end, const char* error);

    void show_current_entry();
    bool make_chosen_current();
    bool choose(int position, const controller_t& identity);

    ui_bridge& bridge_;
    version_query& system_;
    copy_keeper& copies_;
    notices& desktop_;
    const treeview& tree_data_;
    input_guard guard_;
    body_runner runner_;
    window_panels own_panels_;
    panel_answers& panels_;
    tabviewdel tab_gate_;
    std::unique_ptr<focus_memory> focus_;
    std::unique_ptr<tree_model> tree_model_;
    bool exit_remembered_ = false;
    const std::function<copy_pace::time_point()> now_;
    copy_pace pace_;               // of the rebuild that is shown
    QTimer* pace_watch_ = nullptr; // runs out when no reading of it comes any more
};
