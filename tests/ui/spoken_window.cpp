#include "tests/ui/spoken_window.h"

#include <QApplication>
#include <QEvent>
#include <QPushButton>
#include <QTimer>
#include <QVariantAnimation>
#include <algorithm>
#include <map>

#include "app/krview.h"
#include "app/look.h"
#include "app/radio_matrix.h"
#include "app/string_table.h"

namespace {

constexpr std::uint64_t two_terabytes = 3'907'029'168;

void stamp(krdisk& disk, const char* digits) {
    std::copy_n(digits, 14, disk.raid_time.begin());
}

void raid0(krchip& chip) {
    chip.raid_valid = 1;
    chip.raid_capacity *= 2;
}

void raid1(krchip& chip) {
    chip.raid_valid = 1;
}

void without_second(krchip& chip) {
    chip.disks[0].raid1_orphan = 1;
    chip.disks[1].present = 0;
}

void fresh_second(krchip& chip) {
    chip.disks[0].raid1_orphan = 1;
    chip.rebuild_possible = 1;
}

void small_second(krchip& chip) {
    fresh_second(chip);
    chip.disks[1].capacity = chip.disks[0].raid_capacity - 344;
}

void diverged(krchip& chip) {
    chip.rebuild_possible = 1;
    chip.disks[0].rebuild_role = 1;
    chip.disks[1].rebuild_role = 2;
    stamp(chip.disks[0], "20261121085500");
    stamp(chip.disks[1], "20261114180200");
}

void half(krchip& chip) {
    chip.disks[0].member_mismatch = 1;
}

void halves(krchip& chip) {
    chip.disks[0].member_mismatch = 1;
    chip.disks[1].member_mismatch = 1;
}

void rebuilding(krchip& chip) {
    chip.raid_valid = 1;
    chip.rebuild_possible = 1;
    chip.rebuild_pending = 1;
    chip.disks[0].rebuild_mark = 1;
    chip.polling = true;
}

struct chip_state {
    int mode0;
    int mode1;
    void (*prepare)(krchip& chip);
};

const std::map<std::string, chip_state>& chip_states() {
    static const std::map<std::string, chip_state> states = {
        {"no-disks",
         {0, 0, [](krchip& chip) { chip.disks[0].present = chip.disks[1].present = 0; }}},
        {"one-disk", {0, 0, [](krchip& chip) { chip.disks[0].present = 0; }}},
        {"unconfigured", {0, 0, [](krchip&) {}}},
        {"raid0", {mode_raid0, mode_raid0, raid0}},
        {"raid1", {mode_raid1, mode_raid1, raid1}},
        {"span", {mode_span, mode_span, raid0}},
        {"degraded", {mode_raid1, 0, without_second}},
        {"fresh-disk", {mode_raid1, 0, fresh_second}},
        {"small-disk", {mode_raid1, 0, small_second}},
        {"diverged", {mode_raid1, mode_raid1, diverged}},
        {"broken-stripe", {mode_raid0, 0, half}},
        {"broken-halves", {mode_span, mode_raid0, halves}},
        {"rebuild", {mode_raid1, mode_raid1, rebuilding}},
    };
    return states;
}

} // namespace

void spoken_window::SetUp() {}

void spoken_window::open_in(const QString& language) {
    ASSERT_TRUE(install_language(translator_, language)) << language.toStdString();
    apply_language(language);
    model_test::SetUp(); // NOLINT(bugprone-parent-virtual-call): texts come before the window
    string_table table;
    table.load(translated);
    for (const auto keys : {designed_keys(), window_keys()}) {
        for (const std::string_view key : keys) {
            texts.set(std::string(key), table.text(key));
        }
    }
    open_window();
    open_ = true;
}

void spoken_window::close() {
    window_test::TearDown();
    QCoreApplication::removeTranslator(&translator_);
    open_ = false;
}

void spoken_window::TearDown() {
    if (open_) {
        close();
    }
}

std::vector<std::string> spoken_window::state_names() {
    std::vector<std::string> names = {"empty",    "closed",         "silent",
                                      "scanning", "diverged-hover", "rebuild-stalled",
                                      "info",     "kind-not-chosen"};
    for (const auto& [name, state] : chip_states()) {
        names.push_back(name);
    }
    return names;
}

void spoken_window::show_state(const std::string& name) {
    window->switchguimain();
    registry.set_reached({});
    if (name == "empty") {
        show_without_chips();
    } else if (name == "closed" || name == "silent") {
        registry.set_reached({{"Kestrel Duo", "/dev/sg3", name == "silent"},
                              {"Kestrel Duo Pro", "/dev/sg12", name == "silent"},
                              {"Another", "/dev/sg13", name == "silent"}});
        show_without_chips();
    } else if (name == "scanning") {
        window->cleargui();
        window->startworking();
    } else if (name == "info") {
        show_information();
    } else if (name == "diverged-hover") {
        show_state("diverged");
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(window->rebuild0to1button, &enter);
    } else if (name == "rebuild-stalled") {
        show_rebuild(0);
    } else if (name == "rebuild") {
        show_rebuild(1'000'000);
    } else if (name == "kind-not-chosen") {
        show_state("unconfigured");
        window->raidconfigradiobutton->click_row(3);
    } else {
        const chip_state& state = chip_states().at(name);
        show_chip_state([this, &state](krchip& chip) {
            prepare_disks(chip, state.mode0, state.mode1);
            state.prepare(chip);
        });
    }
}

void spoken_window::show_without_chips() {
    forget_all();
    window->cleargui();
    window->update_raid_information();
}

void spoken_window::settle() {
    serve_until([this] {
        const auto moving = window->mainview->findChildren<QVariantAnimation*>();
        return std::none_of(moving.begin(), moving.end(), [](const QVariantAnimation* one) {
            return one->state() == QAbstractAnimation::Running;
        });
    });
    QCoreApplication::processEvents();
}

void spoken_window::visit_dialog(const std::function<void(input_guard& guard)>& open,
                                 const std::function<void(const QWidget& dialog)>& look) {
    input_guard guard;
    QTimer visit;
    visit.setSingleShot(true);
    QObject::connect(&visit, &QTimer::timeout, window->mainview, [&] {
        look(*guard.topmost_panel());
        dismiss_topmost_panel(guard);
    });
    visit.start();
    open(guard);
}

void spoken_window::prepare_disks(krchip& chip, int mode0, int mode1) {
    put_disk(chip.disks[0], two_terabytes, mode0, two_terabytes - 16);
    put_disk(chip.disks[1], two_terabytes, mode1, two_terabytes - 16);
    chip.disks[0].model = chip.disks[1].model = "EXAMPLE DISK 2000 GB";
    chip.disks[0].serial = "EX-0123456789AB";
    chip.disks[1].serial = "EX-0123456789AC";
    chip.identity.serial = "ABC123";
    chip.raid_mode = mode0;
    chip.raid_capacity = two_terabytes - 16;
}

void spoken_window::show_chip_state(const std::function<void(krchip&)>& prepare) {
    forget_all();
    show_chip(prepare);
    registered_bridge bridge = usb_bridge(1, 2, 0x14100000);
    bridge.name = "Kestrel Duo";
    registry.put(device, bridge);
    window->update_controller_list();
    window->select_first_controller();
    window->stopworking();
    window->update_raid_information();
    window->raidconfigradiobutton->click_row(1);
}

// Follows a rebuild for a while, in which it moves on by that many sectors at each reading.
void spoken_window::show_rebuild(std::uint64_t moved) {
    show_chip_state([this](krchip& chip) {
        prepare_disks(chip, mode_raid1, mode_raid1);
        rebuilding(chip);
    });
    window->showrebuildbuttons();
    constexpr int readings = 10;
    std::uint64_t at = two_terabytes / 100 * 37;
    for (int reading = 0; reading < readings; ++reading) {
        window->updatepoll(two_terabytes, at, false);
        time += std::chrono::seconds(4);
        at += moved;
    }
}

void spoken_window::show_information() {
    show_state("raid1");
    tree_data.cleartree();
    tree_data.addchipFirewire(false);
    tree_data.addraid(0, "Kestrel Duo (SN: ABC123)");
    tree_data.adddisk(0, "M0: EXAMPLE DISK 2000 GB", true);
    tree_data.adddisk(0, "M1: EXAMPLE DISK 2000 GB", true);
    tree_data.addchipFirewire(true);
    tree_data.adddisk(1, "P0: ST3000DM001-1CH166", false);
    window->refreshtree();
    window->expandtree();
    window->switchguishowdisk();
}
