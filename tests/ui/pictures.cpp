// Writes pictures of the window in its states: ui_pictures FOLDER [LANGUAGE].
#include <QApplication>
#include <QTimer>
#include <QTranslator>

#include "app/krview.h"
#include "app/main_window.h"
#include "app/string_table.h"
#include "app/tab_view.h"
#include "tests/ui/test_main.h"
#include "tests/ui/window_test.h"

namespace {

constexpr std::uint64_t two_terabytes = 3'907'029'168;

class pictures : public window_test {
protected:
    void SetUp() override {
        const QStringList arguments = QCoreApplication::arguments();
        ASSERT_GT(arguments.size(), 1) << "ui_pictures FOLDER [LANGUAGE]";
        folder = arguments[1];
        language = arguments.value(2, QStringLiteral("en"));
        install_language(translator, language);
        string_table table;
        table.load(translated);
        model_test::SetUp(); // NOLINT(bugprone-parent-virtual-call): texts come before the window
        for (const auto keys : {designed_keys(), window_keys()}) {
            for (const std::string_view key : keys) {
                texts.set(std::string(key), table.text(key));
            }
        }
        workers.run_for_real(real_threads);
        window = new_window(&panels);
        window->awakeFromNib();
        window->applicationDidFinishLaunching();
    }

    void take(const char* name) {
        window->update_raid_information();
        save(name);
    }

    void save(const char* name) {
        QCoreApplication::processEvents();
        EXPECT_TRUE(window->mainview->grab().save(folder + QLatin1Char('/') + language +
                                                  QLatin1Char('-') + QLatin1String(name) +
                                                  QStringLiteral(".png")));
    }

    void disks(krchip& chip, int mode0, int mode1) {
        put_disk(chip.disks[0], two_terabytes, mode0, two_terabytes - 16);
        put_disk(chip.disks[1], two_terabytes, mode1, two_terabytes - 16);
        chip.disks[0].model = chip.disks[1].model = "WDC WD20EFRX-68EUZN0";
        chip.disks[0].serial = "WD-WCC4M0XJ2K7L";
        chip.disks[1].serial = "WD-WCC4M5PR81TC";
        chip.raid_mode = mode0;
        chip.raid_capacity = two_terabytes - 16;
    }

    // Asks for a change of the current chip and saves the panel over the window.
    void save_panel(const char* name, array_change what, int mode, const char* question) {
        const std::optional<chip_snapshot> current = j.current_chip();
        const change_plan plan =
            plan_change(what, mode, &current->chip, "Kestrel Duo (S/N: ABC123)");
        ask(name, {panel_kind::warning,
                   translated("warning"),
                   translated(question),
                   {translated("ok"), translated("cancel")},
                   describe(plan, true, texts)});
    }

    void ask(const char* name, const panel_request& request) {
        window->update_controller_list();
        window->update_raid_information();
        input_guard guard;
        QTimer visit;
        visit.setSingleShot(true);
        QObject::connect(&visit, &QTimer::timeout, window->mainview, [this, name, &guard] {
            save(name);
            dismiss_topmost_panel(guard);
        });
        visit.start();
        run_panel(window->mainview, guard, request);
    }

    QString folder;
    QString language;
    QTranslator translator;
};

TEST_F(pictures, Empty) {
    take("empty");
}

TEST_F(pictures, Unconfigured) {
    show_chip([this](krchip& chip) { disks(chip, 0, 0); });
    take("unconfigured");
}

TEST_F(pictures, Mirror) {
    show_chip([this](krchip& chip) {
        disks(chip, 2, 2);
        chip.raid_valid = 1;
    });
    window->update_controller_list();
    take("raid1");
    tree_data.addchipFirewire(false);
    tree_data.addraid(0, "Kestrel Duo (SN: ABC123)");
    tree_data.adddisk(0, "M0: WDC WD20EFRX-68EUZN0", true);
    tree_data.adddisk(0, "M1: WDC WD20EFRX-68EUZN0", true);
    tree_data.addchipFirewire(true);
    tree_data.adddisk(1, "P0: ST3000DM001-1CH166", false);
    window->refreshtree();
    window->expandtree();
    window->switchguishowdisk();
    save("info");
}

TEST_F(pictures, Degraded) {
    show_chip([this](krchip& chip) {
        disks(chip, 2, 0);
        chip.disks[0].raid1_orphan = 1;
        chip.disks[1].present = 0;
    });
    take("degraded");
}

TEST_F(pictures, Diverged) {
    show_chip([this](krchip& chip) {
        disks(chip, 2, 2);
        chip.rebuild_possible = 1;
        chip.disks[0].rebuild_role = 1;
        chip.disks[1].rebuild_role = 2;
    });
    take("diverged");
}

TEST_F(pictures, Broken) {
    show_chip([this](krchip& chip) {
        disks(chip, 1, 0);
        chip.disks[0].member_mismatch = 1;
    });
    take("broken");
}

TEST_F(pictures, Rebuilding) {
    show_chip([this](krchip& chip) {
        disks(chip, 2, 2);
        chip.raid_valid = 1;
        chip.rebuild_possible = 1;
        chip.rebuild_pending = 1;
        chip.disks[0].rebuild_mark = 1;
        chip.polling = true;
    });
    window->update_raid_information();
    window->updatepoll(1000, 374, false);
    save("rebuild");
}

TEST_F(pictures, ConfirmCreating) {
    show_chip([this](krchip& chip) { disks(chip, 0, 0); });
    save_panel("panel-create", array_change::create, mode_raid1, "all_data_lost");
}

TEST_F(pictures, ConfirmDeletingAStripe) {
    show_chip([this](krchip& chip) {
        disks(chip, 1, 1);
        chip.raid_valid = 1;
    });
    save_panel("panel-delete-stripe", array_change::clear_array, 0, "all_data_lost");
}

TEST_F(pictures, ConfirmDeletingAMirror) {
    show_chip([this](krchip& chip) {
        disks(chip, 2, 2);
        chip.raid_valid = 1;
    });
    save_panel("panel-delete-mirror", array_change::clear_array, 0, "all_data_lost");
}

TEST_F(pictures, ConfirmWiping) {
    show_chip([this](krchip& chip) { disks(chip, 1, 0); });
    save_panel("panel-wipe", array_change::clear_disk1, 0, "all_data_lost");
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
    save_panel("panel-copy-warnings", array_change::rebuild0to1, 0, "disk1_to_disk2");
}

TEST_F(pictures, ConfirmACopy) {
    show_chip([this](krchip& chip) { disks(chip, 2, 2); });
    save_panel("panel-copy", array_change::rebuild0to1, 0, "disk1_to_disk2");
    save_panel("panel-copy-back", array_change::rebuild1to0, 0, "disk2_to_disk1");
}

TEST_F(pictures, ConfirmACopyWithoutItsTarget) {
    show_chip([this](krchip& chip) {
        disks(chip, 0, 2);
        chip.disks[0] = krdisk();
    });
    save_panel("panel-copy-absent", array_change::rebuild1to0, 0, "disk2_to_disk1");
}

TEST_F(pictures, CopyFailure) {
    std::string message = translated("ui_copy_failed");
    message.replace(message.find("%1"), 2,
                    "/home/somebody/.local/state/kestrelraid/safety-copies/"
                    "2026-11-21T08-55-01-WD-WCC4M0XJ2K7L.json: No space left on device");
    ask("panel-copy-failed", {panel_kind::warning,
                              translated("warning"),
                              message,
                              {translated("ok"), translated("cancel")},
                              {}});
}

TEST_F(pictures, Failure) {
    show_chip([this](krchip& chip) { disks(chip, 2, 2); });
    ask("panel-error", {panel_kind::error,
                        translated("error"),
                        translated("rebuild_error"),
                        {translated("ok")},
                        {}});
}

} // namespace
