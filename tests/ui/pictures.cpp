// Writes pictures of the window in its states: ui_pictures FOLDER [LANGUAGE].
#include <QApplication>
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
        model_test::SetUp();
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

} // namespace
