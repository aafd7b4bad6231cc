// A storm over the model: hands on the enclosures, a user at the window, hot-plug events and both
// monitors, all at once on real threads, while pauses take no time.
//
// storm STEPS [SEED]              so many steps; 1 when something is not as it should be
// storm STEPS SEED leave FOLDER   leaves at a random moment by the program's own way, with 0, or
//                                 with 3 when a bridge could not be opened; journal in FOLDER,
//                                 with a line "midway" at that moment
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "device/source_registry.h"
#include "model/exit_gate.h"
#include "model/krtool.h"
#include "model/rescan.h"
#include "model/wake_point.h"
#include "tests/storm/bench_source.h"
#include "tests/storm/figures.h"
#include "tests/storm/journal_library.h"
#include "tests/storm/steps.h"
#include "tests/storm/surroundings.h"
#include "tests/support/selected_chip.h"

namespace {

enclosure::in_process_bench bench;
journal_library library(bench.library());
auto* const source = new bench_source(bench); // the registry's
source_registry registry{std::unique_ptr<bridge_source>(source)};
virtual_pauses no_time(bench);
system_clock wall;
counted_threads threads;
no_log console;
keys_only texts;
exit_gate way_out;
no_volumes volumes;
std::atomic<bool> may_leave{false};
std::atomic<int> failed_opens{0};

// A bridge that went between the list and its opening ends the program, in a long storm it is
// counted.
void on_error() {
    ++failed_opens;
    if (may_leave) {
        way_out.leave(3);
    }
}

storm_window view(on_error);

} // namespace

krtool j(std::make_unique<no_tree>(),
         {library, registry, registry, no_time, wall, threads, console, texts, way_out, volumes});
window* ctrller = &view;

// The measurements' own; a storm has another window.
void no_window::update_controller_list() {}
void no_window::show_error_and_exit(const std::string& /*message*/) {}

namespace {

constexpr int samples = 40;
constexpr int fewest_steps = 4; // a sample in either half

// Two that keep pace with each other.
class pace {
public:
    // Begins a step, once the other has begun nearly as many.
    void step(int mine, const pace& other) {
        constexpr int ahead = 2;
        for (int done = other.done_; done < mine - ahead; done = other.done_) {
            other.done_.wait(done);
        }
        reach(mine);
    }
    void end() { reach(std::numeric_limits<int>::max()); }

private:
    void reach(int steps) {
        done_ = steps;
        done_.notify_all();
    }

    std::atomic<int> done_{0};
};

// What the disks hold as their records at first.
void take_down_records() {
    constexpr std::uint64_t record_distance = 15;
    for (const char* disk : storm_disks) {
        const std::uint64_t lba = bench.sectors_of(disk) - record_distance;
        library.know(lba, bench.read_image(disk, lba).data());
    }
}

void storm(std::uint64_t seed, int steps, figure_log& log) {
    hands at_work(bench, seed);
    take_down_records();
    std::thread notification([] { start_device_notification(nullptr); });
    user at_window(seed + 1);
    pace of_user;
    pace of_hands;
    std::thread person([&, steps] {
        for (int i = 0; i < steps / 2; ++i) {
            of_user.step(i, of_hands);
            at_window.step();
        }
        of_user.end();
    });
    for (int i = 0; i < steps / 2; ++i) {
        of_hands.step(i, of_user);
        at_work.step();
        source->await_backlog(4);
        if (i % (1 + steps / 2 / samples) == 0) {
            log.sample();
        }
    }
    of_hands.end();
    person.join();
    at_work.plug_all();
    source->await_backlog(0);
    registry.stop();
    notification.join();
    std::printf("\n%d rescans, %d changes of an array, %d monitors\n", view.rescans(),
                at_window.changes(), threads.started());
}

bool check(const char* what, bool holds) {
    if (!holds) {
        std::printf("NOT SO: %s\n", what);
    }
    return holds;
}

int ride_out(std::uint64_t seed, int steps) {
    figure_log log;
    storm(seed, steps, log);
    end_monitors(threads);
    DeviceAdded(nullptr, 0);
    end_monitors(threads);
    std::printf("%d steps, seed %llu, %d bridges gone before they were opened\n", steps,
                static_cast<unsigned long long>(seed), failed_opens.load());
    const bool listed = check("every bridge is listed", j.chips.size() == bench.bridges().size());
    const bool free = check("the gate is free", static_cast<bool>(gate_attempt(j.gate)));
    const bool flat = check("descriptors, threads and memory are flat", log.flat());
    return listed && free && flat ? 0 : 1;
}

// Leaves within one of the first calls that move a sector, on a thread of its own as the window
// does.
int leave_midway(std::uint64_t seed, int steps, const std::string& folder) {
    constexpr int calls = 400;
    may_leave = true;
    wake_point now;
    library.write_into(folder + "/journal");
    std::mt19937_64 random(seed);
    library.on_nth(1 + static_cast<int>(random() % calls), [&now] {
        library.note("midway\n");
        now.wake();
    });
    std::thread door([&now] {
        now.wait();
        way_out.leave(0);
    });
    figure_log log;
    storm(seed, steps, log);
    now.wake(); // the storm was over before
    door.join();
    return 1; // nobody comes here: the process has left
}

} // namespace

int main(int count, char** words) {
    const std::vector<std::string> arguments(words + 1, words + count);
    const int steps = arguments.empty() ? 0 : std::stoi(arguments[0]);
    if (steps < fewest_steps) {
        std::fprintf(stderr, "usage: storm STEPS [SEED [leave FOLDER]], at least %d steps\n",
                     fewest_steps);
        return 2;
    }
    const std::uint64_t seed =
        arguments.size() > 1 ? std::stoull(arguments[1]) : std::random_device()();
    std::printf("storm %d %llu\n", steps, static_cast<unsigned long long>(seed));
    return arguments.size() == 4 ? leave_midway(seed, steps, arguments[3]) : ride_out(seed, steps);
}
