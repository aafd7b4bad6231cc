// The ground that the tests of the window stand on.
#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/controller.h"
#include "app/treeview.h"
#include "model/system_services.h"
#include "tests/support/fixture.h"
#include "tests/ui/recording_notices.h"
#include "tests/ui/scripted_copies.h"
#include "tests/ui/scripted_panels.h"

// A system of any version.
class scripted_version final : public version_query {
public:
    std::int32_t major = 10;
    std::int32_t minor = 6;
    std::int32_t bug_fix = 0;
    std::vector<version_part> asked;

    std::int32_t number(version_part part) override;
};

// A window over the doubles of the model's tests, which has started up; its thread for hot-plug
// events waits and is never run. Texts are their keys. The test runs on the interface thread.
class window_test : public model_test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Makes the window and starts it up.
    void open_window();
    // A window of its own, with the users' panels when no others are given. It is not started up.
    std::unique_ptr<controller> new_window(panel_answers* answers);

    // What was written to the outlets since the last call.
    lines take_outlets();
    // The panels so far, taken from the log.
    lines take_panels();

    // Attaches a bridge and takes it into `j`, as the current one, with these disks.
    krchip& show_chip(const std::function<void(krchip&)>& prepare);
    // Runs on a thread of its own and serves the window until it has ended.
    void on_other_thread(const std::function<void()>& body);
    // Serves the window until the condition holds.
    void serve_until(const std::function<bool()>& condition);

    call_log worker_log;
    detached_threads real_threads;
    scripted_threads workers{worker_log};
    scripted_version version;
    scripted_panels panels{world().log};
    scripted_copies copies{world().log};
    recording_notices desktop;
    treeview tree_data{world().texts};
    std::unique_ptr<controller> window;
    lines outlet_log;
    copy_pace::time_point time{}; // that the window reads
};

// A disk that is there.
void put_disk(krdisk& disk, std::uint64_t capacity, int mode = 0, std::uint64_t raid_capacity = 0);
