#include "app/use_text.h"

#include <algorithm>
#include <utility>

#include "app/display_text.h"
#include "app/panel.h"
#include "app/plain_text.h"

namespace {

constexpr std::size_t most_lines = 4;

bool has(const std::vector<volume_use>& uses, volume_use_kind kind) {
    return std::any_of(uses.begin(), uses.end(),
                       [kind](const volume_use& use) { return use.kind == kind; });
}

// What helps against a use of this kind.
const char* remedy_key(volume_use_kind kind) {
    switch (kind) {
    case volume_use_kind::mounted:
        return "ui_remedy_unmount";
    case volume_use_kind::swap:
        return "ui_remedy_swapoff";
    case volume_use_kind::held:
        return "ui_remedy_release";
    case volume_use_kind::open:
        return "ui_remedy_close";
    case volume_use_kind::unchecked:
        break;
    }
    return "ui_remedy_reconnect";
}

// Sentences of Chinese and Japanese follow each other without a blank.
void add_sentence(std::string& text, const std::string& sentence) {
    text += text.ends_with("。") ? sentence : " " + sentence;
}

std::string message_of(const std::vector<volume_use>& uses, const text_lookup& texts) {
    const bool in_use = uses.front().kind != volume_use_kind::unchecked; // which comes last
    std::string message = texts.text(in_use ? "ui_volume_in_use" : "ui_volume_unchecked");
    for (const auto kind : {volume_use_kind::mounted, volume_use_kind::swap, volume_use_kind::held,
                            volume_use_kind::open, volume_use_kind::unchecked}) {
        if (has(uses, kind)) {
            add_sentence(message, texts.text(remedy_key(kind)));
        }
    }
    add_sentence(message, texts.text("ui_try_again"));
    return message;
}

std::string line_of(const volume_use& use, const text_lookup& texts) {
    const std::string where = one_line(use.where).toStdString();
    switch (use.kind) {
    case volume_use_kind::mounted:
        return filled(texts.text("ui_use_mounted"), {use.device, where});
    case volume_use_kind::swap:
        return filled(texts.text("ui_use_swap"), {use.device});
    case volume_use_kind::held:
    case volume_use_kind::open:
        return filled(texts.text("ui_use_held"), {use.device, where});
    case volume_use_kind::unchecked:
        break;
    }
    return {};
}

} // namespace

use_view describe(const std::vector<volume_use>& uses, const text_lookup& texts) {
    use_view view;
    view.message = message_of(uses, texts);
    const auto known =
        static_cast<std::size_t>(std::count_if(uses.begin(), uses.end(), [](const volume_use& use) {
            return use.kind != volume_use_kind::unchecked;
        }));
    const std::size_t shown = known > most_lines ? most_lines - 1 : known;
    for (std::size_t at = 0; at < shown; ++at) {
        view.lines.push_back(line_of(uses[at], texts));
    }
    if (shown < known) {
        view.lines.push_back(filled(texts.text("ui_uses_more"), {std::to_string(known - shown)}));
    }
    return view;
}

void refuse_instead(panel_request& question, const std::vector<volume_use>& uses,
                    const text_lookup& texts) {
    use_view refusal = describe(uses, texts);
    question.message = std::move(refusal.message);
    question.lines = std::move(refusal.lines);
    question.buttons.resize(1);
    if (question.plan) {
        question.plan->heading = filled(texts.text("ui_plan_refused"), {question.plan->heading});
        question.plan->arrow = plan_arrow::none; // nothing is overwritten, and nobody is to fear it
        for (plan_card& card : question.plan->cards) {
            card.tone = fate_tone::calm;
            card.warnings.clear();
        }
    }
}
