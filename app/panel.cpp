#include "app/panel.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/input_guard.h"
#include "app/overlay.h"
#include "app/panel_texts.h"
#include "app/placing.h"
#include "app/plain_text.h"
#include "app/plan_cards.h"
#include "app/text_field.h"

namespace {

constexpr QSize least_size(520, 196);
constexpr QSize least_size_with_plan(632, 368);
constexpr int icon_size = 32;
constexpr int title_height = 26;
constexpr int line_height = 18;
constexpr int least_distance = 18; // below the texts
constexpr int plan_distance = 24;  // below the cards
constexpr int plan_after_lines = 8;

const char* icon_of(panel_kind kind) {
    switch (kind) {
    case panel_kind::warning:
        return "panel-warn";
    case panel_kind::error:
        return "panel-error";
    case panel_kind::attention:
        break;
    }
    return "panel-info";
}

// The message with its lines, each as a part of one sentence.
std::string heard(const panel_request& request) {
    std::string text = request.message;
    const char* gap = " ";
    for (const std::string& line : request.lines) {
        text += gap + line;
        gap = "; ";
    }
    return text;
}

class panel_dialog final : public overlay_dialog {
public:
    panel_dialog(QWidget* parent, const panel_request& request);

private:
    QLayout* make_head(const panel_request& request);
    QLayout* make_buttons(const panel_request& request);
};

panel_dialog::panel_dialog(QWidget* parent, const panel_request& request) : overlay_dialog(parent) {
    setObjectName(QStringLiteral("panel"));
    setAccessibleName(one_line(request.title));
    setAccessibleDescription(one_line(heard(request)));
    QVBoxLayout* inner = make_frame();
    inner->setSpacing(0);
    inner->addLayout(make_head(request));
    inner->addSpacing(least_distance);
    inner->addStretch();
    if (request.plan) {
        inner->addWidget(make_plan_cards(*request.plan));
        inner->addSpacing(plan_distance);
    }
    inner->addLayout(make_buttons(request));
    const QSize least = request.plan ? least_size_with_plan : least_size;
    setFixedSize(least.width(), qMax(least.height(), layout()->heightForWidth(least.width())));
}

QLayout* panel_dialog::make_head(const panel_request& request) {
    auto* texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addWidget(one_line_text(one_line(request.title), title_height, "title"));
    texts->addWidget(wrapped_text(plain_lines(request.message), "message"));
    for (const std::string& line : request.lines) {
        texts->addWidget(one_line_text(one_line(line), line_height, ""));
    }
    if (request.plan) {
        texts->addSpacing(request.lines.empty() ? 2 : plan_after_lines);
        texts->addWidget(wrapped_text(one_line(request.plan->heading), "strong"));
    }
    texts->addStretch();
    auto* head = new QHBoxLayout;
    head->setSpacing(20);
    head->addWidget(panel_picture(icon_of(request.kind), icon_size, icon_size), 0, Qt::AlignTop);
    head->addLayout(texts, 1);
    return head;
}

QLayout* panel_dialog::make_buttons(const panel_request& request) {
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    const QString enclosure = request.plan ? one_line(request.plan->enclosure) : QString();
    row->addWidget(one_line_text(enclosure, line_height, "fine", "quiet"), 1);
    const bool two_buttons = request.buttons.size() > 1;
    if (two_buttons) {
        QPushButton* second = make_button(request.buttons[1], "panel_second_button");
        connect(second, &QPushButton::clicked, this, &QDialog::reject);
        row->addWidget(second);
    }
    QPushButton* first = make_button(request.buttons.front(), "panel_default_button");
    first->setDefault(true);
    first->setProperty("kind", two_buttons ? "destructive" : "");
    connect(first, &QPushButton::clicked, this, &QDialog::accept);
    row->addWidget(first);
    return row;
}

} // namespace

int run_panel(QWidget* window, input_guard& guard, const panel_request& request) {
    if (window == nullptr || request.buttons.empty()) {
        return panel_failed;
    }
    const int result = run_over(window, guard, [&](QWidget* parent) {
        QApplication::alert(window);
        return new panel_dialog(parent, request);
    });
    const bool two_buttons = request.buttons.size() > 1;
    return two_buttons && result != QDialog::Accepted ? panel_second : panel_default;
}

void dismiss_topmost_panel(const input_guard& guard) {
    if (auto* panel = qobject_cast<QDialog*>(guard.topmost_panel()); panel != nullptr) {
        panel->reject();
    }
}

int window_panels::ask(const panel_request& request) {
    return run_panel(window_, guard_, request);
}
