// The controller list and the change of the selection.
#include <chrono>
#include <optional>

#include "app/controller.h"
#include "app/controller_box.h"
#include "app/controller_entry.h"
#include "app/plain_text.h"
#include "app/scene.h"
#include "app/window_extras.h"
#include "model/krtool.h"

namespace {

std::size_t number_of_chips() {
    const lock_scope lock(j.records);
    return j.chips.size();
}

// A copy of the chip that an entry of the list stands for. A scan that gave up leaves an old map
// behind, so both sizes bound the look-up.
std::optional<krchip> chip_of_entry(std::size_t position) {
    const lock_scope lock(j.records);
    if (position >= j.controller_map.size()) {
        return std::nullopt;
    }
    const auto index = static_cast<std::size_t>(j.controller_map[position].second);
    if (index >= j.chips.size()) {
        return std::nullopt;
    }
    return j.chips[index];
}

bool is_first(const controller_t& identity) {
    const lock_scope lock(j.records);
    return !j.chips.empty() && j.chips.front().identity == identity;
}

} // namespace

void controller::clear_controller_list() {
    const bool nothing = !j.has_chips();
    ui([&] {
        controllerselectbox->remove_all();
        if (nothing) {
            controllerselectbox->set_text(QString());
        }
    });
}

void controller::update_controller_list() {
    as_body([this] {
        clear_controller_list();
        j.with.pause.sleep(std::chrono::seconds(2));
        std::string first;
        controller_t target;
        for (std::size_t i = 0; i < number_of_chips(); ++i) {
            const std::optional<krchip> chip = chip_of_entry(i);
            if (!chip) {
                continue;
            }
            const std::string text = controller_entry_text(chip->identity, chip->get_raid_name());
            ui([&] { controllerselectbox->add_entry(one_line(text), chip->identity); });
            if (is_first(chip->identity)) {
                first = text;
                target = chip->identity;
            }
        }
        ui([&] {
            controllerselectbox->update();
            extras->restart_target = target;
            show_restart_target(*this, first);
        });
    });
}

void controller::select_first_controller() {
    as_body([this] {
        if (!j.has_chips()) {
            update_raid_information();
            return;
        }
        ui([this] { controllerselectbox->select(0); });
        comboBoxSelectionDidChange();
    });
}

void controller::comboBoxSelectionDidChange() {
    as_body([this] {
        if (make_chosen_current()) {
            update_raid_information();
        } else {
            show_current_entry();
        }
    });
}

// A choice that is not carried out must not leave the box naming another bridge than the one that
// is shown and acted on.
void controller::show_current_entry() {
    ui([this] {
        controller_t current;
        {
            const lock_scope lock(j.records);
            current = j.current;
        }
        controllerselectbox->show_entry_of(current);
    });
}

bool controller::make_chosen_current() {
    int position = -1;
    controller_t identity;
    ui([&] {
        position = controllerselectbox->currentIndex();
        if (position >= 0) {
            identity = controllerselectbox->identity(position);
        }
    });
    return position >= 0 && choose(position, identity);
}

// The entry may be older than the list of chips: it counts only while it still stands for the
// bridge that it names.
bool controller::choose(int position, const controller_t& identity) {
    const gate_scope gate(j.gate);
    const std::optional<krchip> chip = chip_of_entry(static_cast<std::size_t>(position));
    if (!chip || !(chip->identity == identity) || chip->identity == j.current) {
        return false;
    }
    if (krchip* old = j.selected(); old != nullptr) {
        old->stop_monitors();
    }
    {
        const lock_scope lock(j.records);
        j.current = chip->identity;
    }
    ui([this] {
        outlets.select(guitab, 0);
        switchguimain();
    });
    j.selected()->select_chip();
    return true;
}
