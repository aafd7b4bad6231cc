// Changes of the array: asked for, confirmed, carried out.
#include "app/button_reasons.h"
#include "app/controller.h"
#include "app/controller_box.h"
#include "app/display_text.h"
#include "app/radio_matrix.h"
#include "app/safety_copy.h"
#include "app/scene.h"
#include "app/scene_outlook.h"
#include "app/use_text.h"
#include "app/window_extras.h"
#include "device/volume_uses.h"
#include "model/krtool.h"

namespace {

// Rows 0 to 2 are RAID 0, RAID 1 and span; row 3 and no row (-1) are modes that delete.
int mode_of_row(int row) {
    const int number = row + 1;
    return number < 3 ? number : row + 2;
}

} // namespace

void controller::confirm() {
    const int mode = mode_of_row(raidconfigradiobutton->selected_row());
    const change_plan plan = plan_for_selected(array_change::create, mode);
    if (!granted("all_data_lost", plan)) {
        return;
    }
    const outcome end = carry_out(plan, [this, mode](std::int32_t chip) {
        cleargui();
        disablegui(false);
        return with_scenes([chip, mode] { return j.build_raid(chip, mode, true); });
    });
    report_and_refresh(end, "raid_create_error");
}

void controller::clearconfiguration() {
    const change_plan plan = plan_for_selected(array_change::clear_array, 0);
    if (!granted("all_data_lost", plan)) {
        return;
    }
    const outcome end = carry_out(plan, [this](std::int32_t chip) {
        cleargui();
        return with_scenes([chip] { return j.clear_raid(chip); });
    });
    report_and_refresh(end, "raid_delete_error");
}

// The blanked window says what goes on. Nobody else shows anything while the caller has the gate.
bool controller::with_scenes(const std::function<bool()>& operation) {
    ui([this] { show_changing_scene(*this); });
    const bool done = operation();
    if (done) {
        ui([this] { show_restarting_scene(*this); });
    }
    return done;
}

void controller::rebuild0to1() {
    rebuild(array_change::rebuild0to1, "disk1_to_disk2");
}

void controller::rebuild1to0() {
    rebuild(array_change::rebuild1to0, "disk2_to_disk1");
}

void controller::rebuild(array_change direction, const char* question) {
    const change_plan plan = plan_for_selected(direction, 0);
    if (!granted(question, plan)) {
        return;
    }
    const outcome end = carry_out(plan, [direction](std::int32_t) {
        krchip* chip = j.selected();
        return chip != nullptr && chip->rebuild(direction == array_change::rebuild1to0);
    });
    report_and_refresh(end, "rebuild_error");
}

void controller::cleardisk0() {
    cleardisk(array_change::clear_disk0, false);
}

void controller::cleardisk1() {
    cleardisk(array_change::clear_disk1, true);
}

void controller::cleardisk(array_change what, bool port) {
    if (!j.has_chips()) {
        return;
    }
    const change_plan plan = plan_for_selected(what, 0);
    if (!granted("all_data_lost", plan) || !plan.disks[port ? 1 : 0].present) {
        return;
    }
    const outcome end = carry_out(plan, [port](std::int32_t) {
        krchip* chip = j.selected();
        return chip != nullptr && chip->clear_disk(port);
    });
    if (end == outcome::failed) {
        report("raid_info_delete_error");
    }
}

void controller::warmboot() {
    const controller_t named = extras->restart_target;
    std::vector<volume_use> uses;
    bool stopped = false; // the monitors, and nothing else
    as_body([&] {
        const gate_scope gate(j.gate);
        // The list may have changed while the click waited.
        if (j.chips.empty() || !(j.chips.front().identity == named)) {
            return;
        }
        uses = j.with.volumes.of(j.chips.front().device);
        if (!uses.empty()) {
            return;
        }
        disablegui(false);
        ui([this] { show_reasons(*this, reasons_while_restarting(j.with.texts)); });
        uses = restart_first();
        stopped = !uses.empty();
    });
    refuse(uses);
    if (stopped) {
        refresh();
    }
}

// A monitor may hold the restart up with a panel for as long as nobody answers, and the volume may
// be mounted meanwhile: the last look comes after that.
std::vector<volume_use> controller::restart_first() {
    krchip& first = j.chips.front();
    if (first.has_monitors()) {
        first.stop_monitors();
        if (std::vector<volume_use> late = j.with.volumes.of(first.device); !late.empty()) {
            return late;
        }
    }
    j.warm_boot();
    return {};
}

change_plan controller::plan_for_selected(array_change what, int mode) {
    const std::optional<chip_snapshot> current = j.current_chip();
    if (!current) {
        return plan_change(what, mode, nullptr, {}, {});
    }
    const QString enclosure = controllerselectbox->text_of(current->chip.identity);
    std::vector<volume_use> uses;
    as_body([&] { uses = j.with.volumes.of(current->chip.device); });
    return plan_change(what, mode, &current->chip, enclosure.toStdString(), uses);
}

bool controller::granted(const char* question, const change_plan& plan) {
    panel_request request{panel_kind::warning, s_warning, localised(question), {s_ok, s_cancel}};
    if (plan.has_chip) {
        request.plan = describe(plan, check_OS_version(), j.with.texts);
    }
    const bool forbidden = !plan.uses.empty();
    if (forbidden) {
        refuse_instead(request, plan.uses, j.with.texts);
    }
    const bool yes = is_yes(panels_.ask(request)) && !forbidden;
    obey_remembered_exit();
    return yes;
}

controller::outcome controller::carry_out(const change_plan& plan,
                                          const std::function<bool(std::int32_t chip)>& operation) {
    clearance now{outcome::dropped, {}};
    as_body([&] {
        const gate_scope gate(j.gate);
        now = may_begin(plan);
        if (now.end == outcome::done) {
            now.end = operation(j.get_controller_num(j.current)) ? outcome::done : outcome::failed;
        }
    });
    refuse(now.uses);
    if (now.end == outcome::outdated) {
        refresh();
    }
    return now.end;
}

controller::clearance controller::may_begin(const change_plan& plan) {
    clearance now = compare(plan);
    const krchip* chip = j.selected();
    if (now.end != outcome::done || chip == nullptr) {
        return now;
    }
    const std::time_t time = j.with.clock.now();
    const std::string trouble = copies_.keep(safety_copy_text(plan, *chip, time), time);
    if (trouble.empty()) {
        // Writing the copy takes time as well.
        const std::vector<volume_use> late = j.with.volumes.of(chip->device);
        return late.empty() ? now : clearance{outcome::outdated, late};
    }
    if (!goes_on_without_copy(trouble)) {
        return {outcome::outdated, {}};
    }
    clearance again = compare(plan);
    if (!again.uses.empty()) {
        again.end = outcome::outdated; // the first comparison has stopped the monitors
    }
    return again;
}

// What has changed since it was confirmed was not confirmed. A disk that was exchanged may have
// told nobody, so the disks themselves are asked: last, when no monitor's panel can hold up the
// change any more. All that takes time, in which the volume may have been mounted.
controller::clearance controller::compare(const change_plan& plan) {
    krchip* chip = j.selected();
    if (chip == nullptr) {
        return {still_holds(plan, chip, {}) ? outcome::done : outcome::dropped, {}};
    }
    const std::vector<volume_use> uses = j.with.volumes.of(chip->device);
    if (!still_holds(plan, chip, uses)) {
        const bool used_now = still_holds(plan, chip, plan.uses);
        return {outcome::dropped, used_now ? uses : std::vector<volume_use>()};
    }
    if (chip->has_monitors()) {
        chip->stop_monitors();
    }
    if (!chip->same_disks_answer()) {
        return {outcome::outdated, {}};
    }
    const std::vector<volume_use> late = j.with.volumes.of(chip->device);
    return {late.empty() ? outcome::done : outcome::outdated, late};
}

void controller::refuse(const std::vector<volume_use>& uses) {
    if (uses.empty()) {
        return;
    }
    panel_request request{panel_kind::warning, s_warning, {}, {s_ok}};
    refuse_instead(request, uses, j.with.texts);
    // The list may name another bridge than this is about.
    notify_and_ask(request, request.message, urgency::critical);
    obey_remembered_exit();
}

bool controller::goes_on_without_copy(const std::string& trouble) {
    const gate_pause others_may_work(j.gate);
    bool go_on = false;
    ui([&] {
        const panel_request question{panel_kind::warning,
                                     s_warning,
                                     filled(localised("ui_copy_failed"), {trouble}),
                                     {s_ok, s_cancel}};
        go_on = !exit_remembered_ && is_yes(tell(question, urgency::critical));
    });
    return go_on;
}

void controller::report(const char* error) {
    tell({panel_kind::error, s_error, localised(error), {s_ok}}, urgency::critical);
    obey_remembered_exit();
}

void controller::report_and_refresh(outcome end, const char* error) {
    if (end == outcome::failed) {
        report(error);
        refresh();
    }
}
