// Writes pictures of the window in its states: ui_pictures FOLDER [LANGUAGE].
#include <QApplication>
#include <QDir>
#include <QPainter>

#include "app/guide.h"
#include "app/krview.h"
#include "app/string_table.h"
#include "app/use_text.h"
#include "tests/ui/spoken_window.h"

namespace {

constexpr std::uint64_t two_terabytes = 3'907'029'168;

// The arguments that are left for this program.
QString folder() {
    return QCoreApplication::arguments().value(1, QStringLiteral("."));
}

QString language() {
    return QCoreApplication::arguments().value(2, QStringLiteral("en"));
}

// At more than a pixel to the point the name says so.
void save_picture(const QPixmap& picture, const QString& name) {
    ASSERT_TRUE(QDir().mkpath(folder()));
    const double ratio = qApp->devicePixelRatio();
    const QString suffix = ratio > 1.0 ? QStringLiteral("@%1x").arg(ratio) : QString();
    EXPECT_TRUE(picture.save(QStringLiteral("%1/%2%3.png").arg(folder(), name, suffix)))
        << folder().toStdString();
}

class pictures : public spoken_window {
protected:
    void SetUp() override { open_in(language()); }

    void disks(krchip& chip, int mode0, int mode1) { prepare_disks(chip, mode0, mode1); }

    void save(const QString& name) {
        settle();
        save_picture(window->mainview->grab(), language() + QLatin1Char('-') + name);
    }

    // Asks for a change of the current chip and saves the panel over the window.
    void save_panel(const QString& name, array_change what, int mode, const char* question) {
        const std::optional<chip_snapshot> current = j.current_chip();
        const change_plan plan =
            plan_change(what, mode, &current->chip, "Kestrel Duo (S/N: ABC123)", {});
        ask(name, {panel_kind::warning,
                   translated("warning"),
                   translated(question),
                   {translated("ok"), translated("cancel")},
                   describe(plan, true, texts)});
    }

    void ask(const QString& name, const panel_request& request) {
        window->update_controller_list();
        window->update_raid_information();
        save_open(name, [&](input_guard& guard) { run_panel(window->mainview, guard, request); });
    }

    // Saves what `open` opens over the window, and closes it.
    void save_open(const QString& name, const std::function<void(input_guard& guard)>& open) {
        visit_dialog(open, [this, &name](const QWidget&) { save(name); });
    }
};

TEST_F(pictures, EveryState) {
    for (const std::string& state : state_names()) {
        show_state(state);
        save(QString::fromStdString(state));
    }
}

// The two states with the most text, in every language on one sheet each.
class sheet : public spoken_window {
protected:
    void SetUp() override {}

    void save_sheet(const std::string& state) {
        constexpr int columns = 3;
        constexpr QSize one(800, 630);
        const QStringList languages = our_languages();
        const int rows = (static_cast<int>(languages.size()) + columns - 1) / columns;
        QPixmap all(one.width() * columns, one.height() * rows);
        all.fill(Qt::black);
        QPainter painter(&all);
        for (int place = 0; place < languages.size(); ++place) {
            open_in(languages[place]);
            show_state(state);
            settle();
            const QPixmap shown = window->mainview->grab();
            painter.drawPixmap(
                QRect(QPoint(place % columns * one.width(), place / columns * one.height()), one),
                shown);
            close();
        }
        painter.end();
        save_picture(all, QStringLiteral("languages-") + QString::fromStdString(state));
    }
};

TEST_F(sheet, OfTheRebuild) {
    save_sheet("rebuild");
}

TEST_F(sheet, OfDivergedCopies) {
    save_sheet("diverged-hover");
}

TEST_F(pictures, Guide) {
    show_state("degraded");
    save_open(QStringLiteral("guide"),
              [this](input_guard& guard) { run_guide(window->mainview, guard, texts); });
}

TEST_F(pictures, ConfirmCreating) {
    show_chip([this](krchip& chip) { disks(chip, 0, 0); });
    save_panel(QStringLiteral("panel-create"), array_change::create, mode_raid1, "all_data_lost");
}

TEST_F(pictures, ConfirmDeletingAStripe) {
    show_chip([this](krchip& chip) {
        disks(chip, 1, 1);
        chip.raid_valid = 1;
    });
    save_panel(QStringLiteral("panel-delete-stripe"), array_change::clear_array, 0,
               "all_data_lost");
}

TEST_F(pictures, ConfirmDeletingAMirror) {
    show_chip([this](krchip& chip) {
        disks(chip, 2, 2);
        chip.raid_valid = 1;
    });
    save_panel(QStringLiteral("panel-delete-mirror"), array_change::clear_array, 0,
               "all_data_lost");
}

TEST_F(pictures, ConfirmWiping) {
    show_chip([this](krchip& chip) { disks(chip, 1, 0); });
    save_panel(QStringLiteral("panel-wipe"), array_change::clear_disk1, 0, "all_data_lost");
}

TEST_F(pictures, ConfirmACopyWithWarnings) {
    show_chip([this](krchip& chip) {
        disks(chip, 2, 2);
        chip.disks[0].serial = "W1234567890123456789";
        chip.disks[1].model = "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW";
        chip.disks[1].capacity = chip.disks[0].raid_capacity - 344;
        chip.disks[1].lba48_sectors = two_terabytes;
        chip.disks[1].logical_sector_bytes = 4096;
    });
    save_panel(QStringLiteral("panel-copy-warnings"), array_change::rebuild0to1, 0,
               "disk1_to_disk2");
}

TEST_F(pictures, ConfirmACopy) {
    show_chip([this](krchip& chip) { disks(chip, 2, 2); });
    save_panel(QStringLiteral("panel-copy"), array_change::rebuild0to1, 0, "disk1_to_disk2");
    save_panel(QStringLiteral("panel-copy-back"), array_change::rebuild1to0, 0, "disk2_to_disk1");
}

TEST_F(pictures, ConfirmACopyWithoutItsTarget) {
    show_chip([this](krchip& chip) {
        disks(chip, 0, 2);
        chip.disks[0] = krdisk();
    });
    save_panel(QStringLiteral("panel-copy-absent"), array_change::rebuild1to0, 0, "disk2_to_disk1");
}

class refusals : public pictures {
protected:
    // As the window refuses a change, or, without one, a restart.
    void save_refusal(const QString& name, std::optional<array_change> what,
                      const std::vector<volume_use>& uses) {
        panel_request request{panel_kind::warning, translated("warning"), {}, {translated("ok")}};
        if (what) {
            const std::optional<chip_snapshot> current = j.current_chip();
            request.plan =
                describe(plan_change(*what, 0, &current->chip, "Kestrel Duo (S/N: ABC123)", uses),
                         true, texts);
        }
        refuse_instead(request, uses, texts);
        ask(name, request);
    }

    const volume_use photos{volume_use_kind::mounted, "sdb1", "/media/anna/Photos"};
};

TEST_F(refusals, OfACopyWhileAPartitionIsMounted) {
    show_chip([this](krchip& chip) { disks(chip, 2, 2); });
    save_refusal(QStringLiteral("panel-refused"), array_change::rebuild0to1, {photos});
}

TEST_F(refusals, OfADeletionOfAVolumeWithManyUses) {
    show_chip([this](krchip& chip) { disks(chip, 1, 1); });
    std::vector<volume_use> uses = {
        {volume_use_kind::mounted, "sdb1", "/media/anna/" + std::string(60, 'W') + "/Photos"},
        {volume_use_kind::swap, "sdb2", {}}};
    uses.resize(7, {volume_use_kind::held, "sdb3", "luks-2f1c8a44-8d0e-4a53-9d0b-5d2b1f6d9c11"});
    save_refusal(QStringLiteral("panel-refused-many"), array_change::clear_array, uses);
}

TEST_F(refusals, OfARestart) {
    show_chip([this](krchip& chip) { disks(chip, 2, 2); });
    save_refusal(QStringLiteral("panel-refused-restart"), std::nullopt, {photos});
}

TEST_F(refusals, OfAVolumeThatCannotBeLookedAt) {
    show_chip([this](krchip& chip) { disks(chip, 2, 2); });
    save_refusal(QStringLiteral("panel-refused-unchecked"), array_change::clear_disk0,
                 {{volume_use_kind::unchecked, {}, {}}});
}

TEST_F(pictures, CopyFailure) {
    std::string message = translated("ui_copy_failed");
    message.replace(message.find("%1"), 2,
                    "/home/somebody/.local/state/kestrelraid/safety-copies/"
                    "2026-11-21T08-55-01-EX-0123456789AB.json: No space left on device");
    ask(QStringLiteral("panel-copy-failed"), {panel_kind::warning,
                                              translated("warning"),
                                              message,
                                              {translated("ok"), translated("cancel")},
                                              {}});
}

TEST_F(pictures, Failure) {
    show_chip([this](krchip& chip) { disks(chip, 2, 2); });
    ask(QStringLiteral("panel-error"), {panel_kind::error,
                                        translated("error"),
                                        translated("rebuild_error"),
                                        {translated("ok")},
                                        {}});
}

} // namespace
