#include "app/radio_matrix.h"

#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QMouseEvent>
#include <QRadioButton>
#include <array>
#include <utility>

#include "app/action_tip.h"
#include "app/pictures.h"
#include "app/spoken_parts.h"
#include "app/styling.h"
#include "app/text_field.h"

namespace {

constexpr int row_height = 46;
constexpr int row_distance = 49;
constexpr int row_width = 384;
constexpr std::array<const char*, radio_matrix::rows> glyphs = {"mode-raid0.png", "mode-raid1.png",
                                                                "mode-span.png", "mode-none.png"};

} // namespace

radio_matrix::radio_matrix(QWidget* parent) : QWidget(parent) {
    for (int row = 0; row < rows; ++row) {
        rows_.push_back(make_row(row));
        group_.addButton(rows_.back().button, row);
    }
    // Not idClicked: assistive programs toggle a row and do not click it.
    connect(&group_, &QButtonGroup::idToggled, this, [this](int row, bool checked) {
        show_choice();
        if (checked && row != settled_) {
            take_choice(row);
        }
    });
    select_row(0);
}

void radio_matrix::set_delegate(std::function<bool()> chosen) {
    chosen_ = std::move(chosen);
}

void radio_matrix::set_row_text(int row, const QString& name, const QString& meaning) {
    const row_widgets& widgets = rows_[static_cast<std::size_t>(row)];
    widgets.name->set_value(name);
    widgets.meaning->set_value(meaning);
    widgets.button->setAccessibleName(name);
    set_tip(widgets.button, QString(), meaning);
}

void radio_matrix::set_in_use_text(const QString& text) {
    in_use_text_ = text;
}

void radio_matrix::set_in_use(std::optional<int> row) {
    for (int other = 0; other < rows; ++other) {
        const row_widgets& widgets = rows_[static_cast<std::size_t>(other)];
        if (row == other) {
            put_behind_name(widgets);
        }
        widgets.in_use->set_value(row == other ? in_use_text_ : QString());
        const QString meaning = widgets.meaning->text();
        set_tip(widgets.button, QString(),
                row == other ? QStringLiteral("%1 (%2)").arg(meaning, in_use_text_) : meaning);
    }
}

int radio_matrix::selected_row() const {
    return group_.checkedId();
}

QWidget* radio_matrix::button(int row) const {
    return group_.button(row);
}

void radio_matrix::click_row(int row) {
    group_.button(row)->click();
}

void radio_matrix::select_row(int row) {
    settled_ = row;
    if (row >= 0) {
        group_.button(row)->setChecked(true);
        return;
    }
    group_.setExclusive(false);
    for (QAbstractButton* button : group_.buttons()) {
        button->setChecked(false);
    }
    group_.setExclusive(true);
}

// The whole row is the target.
bool radio_matrix::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        for (const row_widgets& row : rows_) {
            const auto* release = static_cast<QMouseEvent*>(event);
            if (receiver == row.frame && release->button() == Qt::LeftButton &&
                row.frame->rect().contains(release->position().toPoint())) {
                row.button->setFocus(Qt::MouseFocusReason);
                row.button->click();
                return true;
            }
        }
    }
    return event->type() == QEvent::MouseButtonPress;
}

radio_matrix::row_widgets radio_matrix::make_row(int row) {
    auto* frame = new QFrame(this);
    frame->setProperty("role", "radiorow");
    frame->setGeometry(0, row_distance * row, row_width, row_height);
    frame->installEventFilter(this);
    auto* button = new QRadioButton(frame);
    button->setObjectName(QStringLiteral("raidconfigradiobutton_row%1").arg(row));
    button->setGeometry(10, 14, 18, 18);
    auto* glyph = new QLabel(frame);
    glyph->setPixmap(
        picture_icon(QLatin1String(glyphs[static_cast<std::size_t>(row)])).pixmap(40, 24));
    glyph->setGeometry(40, 11, 40, 24);
    tell_picture(glyph, {});
    auto* name = new text_field(frame);
    name->setProperty("role", "rowname");
    name->setGeometry(90, 4, 290, 20);
    auto* meaning = new text_field(frame);
    meaning->setProperty("role", "small");
    meaning->setGeometry(90, 24, 292, 16);
    auto* in_use = new text_field(frame);
    in_use->setProperty("role", "tag");
    in_use->setProperty("tone", "busy");
    in_use->resize(0, 0); // until it says something
    return {frame, button, name, meaning, in_use};
}

void radio_matrix::put_behind_name(const row_widgets& row) {
    constexpr int gap = 8;
    row.name->ensurePolished();
    const int name_width = row.name->fontMetrics().horizontalAdvance(row.name->text());
    const QRect name = row.name->geometry();
    row.in_use->setGeometry(name.left() + name_width + gap, name.top(),
                            name.width() - name_width - gap, name.height());
    row.in_use->fit_text(Qt::AlignLeft);
}

void radio_matrix::take_choice(int row) {
    const int before = std::exchange(settled_, row);
    if (chosen_ && !chosen_()) {
        select_row(before);
    }
}

void radio_matrix::show_choice() {
    for (const row_widgets& row : rows_) {
        restyle(row.frame, "chosen", row.button->isChecked());
    }
}
