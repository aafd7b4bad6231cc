// What the user's buttons do, and the small operations that other threads call back.
#include <QPushButton>
#include <QTimer>
#include <utility>

#include "app/controller.h"
#include "app/guide.h"
#include "app/krview.h"
#include "app/level_indicator.h"
#include "app/main_window.h"
#include "app/plain_text.h"
#include "app/radio_matrix.h"
#include "app/scene.h"
#include "app/text_field.h"
#include "app/window_extras.h"
#include "app/window_keys.h"
#include "app/working_indicator.h"
#include "model/krtool.h"
#include "model/rescan.h"

void controller::on_click(QPushButton* button, std::function<void()> action) {
    QObject::connect(button, &QPushButton::clicked, button,
                     [this, button, act = std::move(action)] {
                         // A key clicks a moment later: the button may have been disabled since.
                         if (idle() && button->isEnabled()) {
                             act();
                         }
                     });
}

void controller::connect_actions() {
    connect_keys(*this);
    on_click(refresh_button, [this] { refresh(); });
    on_click(mainguibutton, [this] { switchguimain(); });
    on_click(showdiskguibutton, [this] { switchguishowdisk(); });
    on_click(confirmbutton, [this] { confirm(); });
    on_click(clearconfigbutton, [this] { clearconfiguration(); });
    on_click(rebuild0to1button, [this] { rebuild0to1(); });
    on_click(rebuild1to0button, [this] { rebuild1to0(); });
    on_click(cleardisk0button, [this] { cleardisk0(); });
    on_click(cleardisk1button, [this] { cleardisk1(); });
    on_click(extras->warmbootbutton, [this] { warmboot(); });
    on_click(extras->status.guide_link, [this] { show_guide(); });
    // These two are obeyed during work as well.
    QObject::connect(minimizebutton, &QPushButton::clicked, minimizebutton,
                     [this] { minimizewindow(); });
    QObject::connect(closebutton, &QPushButton::clicked, closebutton, [this] { exitprogram(); });
}

void controller::refresh() {
    as_body([] { DeviceAdded(nullptr, 0); });
}

void controller::radio_changed() {
    constexpr int row_not_configured = 3;
    if (!j.has_chips()) {
        return;
    }
    if (raidconfigradiobutton->selected_row() == row_not_configured) {
        outlets.set_enabled(confirmbutton, false);
        return;
    }
    const std::optional<chip_snapshot> current = j.current_chip();
    if (current && current->chip.disks[0].present != 0 && current->chip.disks[1].present != 0 &&
        !current->chip.polling) {
        outlets.set_enabled(confirmbutton, true);
    }
}

void controller::disablegui(bool rebuild_only) {
    ui([&] { enable_buttons(rebuild_only, false); });
}

void controller::enablegui(bool rebuild_only) {
    ui([&] { enable_buttons(rebuild_only, true); });
}

void controller::enable_buttons(bool rebuild_only, bool enabled) {
    outlets.set_enabled(rebuild0to1button, enabled);
    outlets.set_enabled(rebuild1to0button, enabled);
    if (!rebuild_only) {
        outlets.set_enabled(confirmbutton, enabled);
        outlets.set_enabled(cleardisk0button, enabled);
        outlets.set_enabled(cleardisk1button, enabled);
        outlets.set_enabled(clearconfigbutton, enabled);
    }
}

void controller::startprogressbar() {
    ui([this] {
        outlets.set_hidden(levelindicator, false);
        outlets.set_enabled(levelindicator, true);
        outlets.set_level(levelindicator, 0.0);
    });
}

void controller::stopprogressbar() {
    ui([this] {
        outlets.set_hidden(levelindicator, true);
        outlets.set_enabled(levelindicator, false);
        forget_pace();
    });
}

void controller::updatepoll(std::uint64_t end, std::uint64_t currlba, bool diskp100) {
    constexpr std::uint64_t most = 200; // a reading beyond twice the end means nothing
    constexpr double whole = 100.0;
    constexpr double until_finished = 99.0;
    double percent = whole;
    if (end != 0) {
        const std::uint64_t hundredfold = currlba * 100;
        if (hundredfold / end > most) {
            return;
        }
        percent = static_cast<double>(hundredfold) / static_cast<double>(end);
    } else if (!diskp100) {
        return; // an idle chip: nothing is known
    }
    if (!diskp100 && percent >= until_finished) {
        percent = until_finished;
    }
    ui([&] {
        outlets.set_level(levelindicator, percent);
        outlets.set_text(percentagefield, QString::number(percent, 'f', 1).toStdString() + "%");
        if (end == 0 || diskp100) {
            forget_pace();
        } else {
            show_pace(*this, pace_.note(end, currlba, now_()));
            pace_watch_->start();
        }
    });
}

// A chip that is not read any more is not told from one that stands still.
void controller::watch_pace() {
    pace_watch_ = new QTimer(mainview);
    pace_watch_->setObjectName(QStringLiteral("pace_watch"));
    pace_watch_->setSingleShot(true);
    pace_watch_->setInterval(copy_pace::stalled_after);
    QObject::connect(pace_watch_, &QTimer::timeout, mainview, [this] {
        pace_view standing;
        standing.stalled = true;
        show_pace(*this, standing);
    });
}

void controller::forget_pace() {
    pace_.forget();
    pace_watch_->stop();
    show_pace(*this, {});
}

void controller::show_message(const std::string& text) {
    ui([&] { inform(s_attention, text, urgency::normal); });
}

void controller::show_hot_swap_message() {
    show_message(localised("hot_swap"));
}

void controller::show_guide() {
    run_guide(mainview, guard_, j.with.texts);
    obey_remembered_exit();
}

void controller::minimizewindow() {
    mainwindow->showMinimized();
}

void controller::bring_to_front(const std::string& token) {
    mainwindow->bring_to_front(token);
}
