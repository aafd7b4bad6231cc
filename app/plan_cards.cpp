#include "app/plan_cards.h"

#include <QBoxLayout>
#include <QFrame>
#include <QLabel>

#include "app/data_arrow.h"
#include "app/panel_texts.h"
#include "app/placing.h"
#include "app/plain_text.h"
#include "app/plan_text.h"
#include "app/text_field.h"

namespace {

constexpr int card_width = 224;
constexpr int card_least_height = 168;
constexpr int line_height = 18;
constexpr int line_distance = 2;

struct tone_look {
    const char* fate; // of the card, for the style
    const char* tone; // of the words
    const char* icon;
};

tone_look look_of(fate_tone tone) {
    switch (tone) {
    case fate_tone::kept:
        return {"stays", "busy", "status-info"};
    case fate_tone::lost:
        return {"lost", "err", "status-error"};
    case fate_tone::calm:
        break;
    }
    return {"", "quiet", "status-none"};
}

QLayout* make_card_head(const plan_card& card) {
    constexpr int bay_height = 22;
    constexpr int size_height = 20;
    auto* texts = new QVBoxLayout;
    texts->setSpacing(line_distance);
    texts->addWidget(
        one_line_text(one_line(card.bay), bay_height, "caption", card.present ? "" : "quiet"));
    texts->addWidget(card.present
                         ? one_line_text(one_line(card.size), size_height, "value", "quiet")
                         : one_line_text(one_line(card.model), size_height, "value", "faint"));
    auto* head = new QHBoxLayout;
    head->setSpacing(12);
    head->addWidget(panel_picture(card.present ? "disk" : "disk-missing", 38, 44));
    head->addLayout(texts, 1);
    return head;
}

void add_device(QVBoxLayout* column, const plan_card& card) {
    if (!card.present) {
        column->addSpacing(2 * line_height + line_distance);
        return;
    }
    column->addWidget(one_line_text(one_line(card.model), line_height, "fine"));
    column->addSpacing(line_distance);
    column->addWidget(one_line_text(one_line(card.serial), line_height, "fine", "quiet"));
}

QLayout* make_note(const char* icon, QLabel* words) {
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    row->addWidget(panel_picture(icon, 16, 16), 0, Qt::AlignTop);
    row->addWidget(words, 1);
    return row;
}

QFrame* make_card(const plan_card& card, const char* name) {
    const tone_look look = look_of(card.tone);
    auto* frame = with_role_at_once(new QFrame, "card");
    frame->setObjectName(QLatin1String(name));
    frame->setProperty("fate", look.fate);
    frame->setAccessibleName(one_line(as_line(card)));
    frame->setFixedWidth(card_width);
    frame->setMinimumHeight(card_least_height);
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(15, 12, 11, 13);
    column->setSpacing(0);
    column->addLayout(make_card_head(card));
    column->addSpacing(10);
    add_device(column, card);
    column->addSpacing(14);
    column->addLayout(make_note(look.icon, wrapped_text(one_line(card.fate), "fate", look.tone)));
    for (const std::string& warning : card.warnings) {
        column->addSpacing(8);
        column->addLayout(
            make_note("status-warn", wrapped_text(one_line(warning), "fine", "warn")));
    }
    column->addStretch();
    return frame;
}

QLayout* make_between(const plan_view& plan) {
    auto* column = new QVBoxLayout;
    column->setContentsMargins(10, 0, 10, 0);
    column->setSpacing(6);
    column->addStretch();
    if (plan.arrow != plan_arrow::none) {
        auto* word = wrapped_text(one_line(plan.arrow_word), "fate", "err");
        word->setAlignment(Qt::AlignCenter);
        column->addWidget(word);
        auto* arrow = new data_arrow(plan.arrow == plan_arrow::to_disk2);
        arrow->setObjectName(QStringLiteral("plan_arrow"));
        column->addWidget(arrow);
    }
    column->addStretch();
    return column;
}

} // namespace

QWidget* make_plan_cards(const plan_view& plan) {
    auto* cards = new QWidget;
    // The arrow means the bays as they stand, whichever way the language is written.
    cards->setLayoutDirection(Qt::LeftToRight);
    auto* row = new QHBoxLayout(cards);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(make_card(plan.cards[0], "plan_card_1"));
    row->addLayout(make_between(plan), 1);
    row->addWidget(make_card(plan.cards[1], "plan_card_2"));
    return cards;
}
