#include "tests/ui/window_test.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <atomic>
#include <thread>

#include "app/ui_bridge.h"
#include "tests/ui/test_main.h"

std::int32_t scripted_version::number(version_part part) {
    asked.push_back(part);
    switch (part) {
    case version_part::major:
        return major;
    case version_part::minor:
        return minor;
    case version_part::bug_fix:
        break;
    }
    return bug_fix;
}

void window_test::SetUp() {
    model_test::SetUp();
    open_window();
}

void window_test::open_window() {
    workers.run_for_real(real_threads);
    window = new_window(&panels);
    window->awakeFromNib();
    window->applicationDidFinishLaunching();
    world().log.clear();
    window->outlets.keep_log(&outlet_log);
}

void window_test::TearDown() {
    workers.await_ends();
    window.reset();
    ctrller = &world().view;
    model_test::TearDown();
}

std::unique_ptr<controller> window_test::new_window(panel_answers* answers) {
    return std::make_unique<controller>(window_parts{test_bridge(), workers, version, copies,
                                                     desktop, tree_data, answers,
                                                     [this] { return time; }});
}

lines window_test::take_outlets() {
    return std::exchange(outlet_log, {});
}

lines window_test::take_panels() {
    lines shown;
    for (const std::string& line : log.take(from_window)) {
        if (line.rfind("panel ", 0) == 0) {
            shown.push_back(line);
        }
    }
    return shown;
}

krchip& window_test::show_chip(const std::function<void(krchip&)>& prepare) {
    krchip& chip = take_chip(std::nullopt, std::nullopt);
    {
        const gate_scope work(j.gate);
        const lock_scope lock(j.records);
        prepare(chip);
    }
    log.clear();
    return chip;
}

void window_test::on_other_thread(const std::function<void()>& body) {
    std::atomic<bool> ended = false;
    std::thread other([&] {
        body();
        test_bridge().run([&ended] { ended = true; });
    });
    serve_until([&ended] { return ended.load(); });
    other.join();
}

void window_test::serve_until(const std::function<bool()>& condition) {
    while (!condition()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void put_disk(krdisk& disk, std::uint64_t capacity, int mode, std::uint64_t raid_capacity) {
    disk.present = 1;
    disk.model = "MODEL";
    disk.serial = "SERIAL";
    disk.capacity = capacity;
    disk.raid_mode = mode;
    disk.raid_capacity = raid_capacity;
}
