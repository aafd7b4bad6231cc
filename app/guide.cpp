#include "app/guide.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>

#include "app/data_arrow.h"
#include "app/display_text.h"
#include "app/overlay.h"
#include "app/panel_texts.h"
#include "app/plain_text.h"
#include "app/text_field.h"

namespace {

constexpr int guide_width = 680;
constexpr int picture_width = 116;
constexpr int step_distance = 16;

struct guide_step {
    const char* heading;
    const char* text;
    std::array<const char*, 2> names; // keys of what the text names
};

// What is left, what is gone, what comes, and what is done with it.
constexpr std::array<guide_step, 4> steps = {{
    {"ui_guide_keep", "ui_guide_keep_text", {"", ""}},
    {"ui_guide_find", "ui_guide_find_text", {"raid_status", "ui_system_information"}},
    {"ui_guide_replace", "ui_guide_replace_text", {"", ""}},
    {"ui_guide_rebuild", "ui_guide_rebuild_text", {"rebuild", ""}},
}};

constexpr int disk_width = 38;
constexpr int disk_height = 44;

QLabel* disk_picture(const char* name) {
    return panel_picture(name, disk_width, disk_height);
}

void add_copy(QHBoxLayout* row) {
    auto* arrow = new data_arrow(true);
    arrow->setFixedWidth(picture_width - 2 * disk_width - 4);
    row->addWidget(disk_picture("disk"));
    row->addWidget(arrow);
    row->addWidget(disk_picture("disk"));
}

QWidget* picture_of(std::size_t step) {
    auto* picture = new QWidget;
    picture->setFixedSize(picture_width, disk_height);
    // The bays are left and right in every language.
    picture->setLayoutDirection(Qt::LeftToRight);
    auto* row = new QHBoxLayout(picture);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    switch (step) {
    case 0:
        row->addWidget(disk_picture("disk-warning"));
        break;
    case 1:
        row->addWidget(disk_picture("disk-warning"));
        row->addWidget(disk_picture("disk-missing"));
        break;
    case 2:
        row->addWidget(disk_picture("disk-warning"));
        row->addWidget(disk_picture("disk"));
        break;
    default:
        add_copy(row);
        break;
    }
    return picture;
}

class guide_dialog final : public overlay_dialog {
public:
    guide_dialog(QWidget* parent, const text_lookup& texts);

private:
    QLayout* make_head() const;
    QLayout* make_step(std::size_t number) const;
    QLayout* make_foot();
    QString localised(const char* key) const { return one_line(texts_.text(key)); }

    const text_lookup& texts_;
};

guide_dialog::guide_dialog(QWidget* parent, const text_lookup& texts)
    : overlay_dialog(parent), texts_(texts) {
    setObjectName(QStringLiteral("guide"));
    setAccessibleName(localised("ui_guide"));
    QVBoxLayout* inner = make_frame();
    inner->setSpacing(step_distance);
    inner->addLayout(make_head());
    for (std::size_t number = 0; number < steps.size(); ++number) {
        inner->addLayout(make_step(number));
    }
    inner->addLayout(make_foot());
    setFixedSize(guide_width, layout()->heightForWidth(guide_width));
}

QLayout* guide_dialog::make_head() const {
    constexpr int title_height = 26;
    auto* row = new QHBoxLayout;
    row->addWidget(one_line_text(localised("ui_guide"), title_height, "title"), 1);
    return row;
}

QLayout* guide_dialog::make_step(std::size_t number) const {
    constexpr int heading_height = 20;
    const guide_step& step = steps[number];
    const std::string text =
        filled(texts_.text(step.text), {texts_.text(step.names[0]), texts_.text(step.names[1])});
    const QString heading =
        QStringLiteral("%1. %2").arg(QString::number(number + 1), localised(step.heading));
    auto* words = new QVBoxLayout;
    words->setSpacing(2);
    words->addWidget(one_line_text(heading, heading_height, "rowname"));
    words->addWidget(wrapped_text(one_line(text), "state", "quiet"));
    words->addStretch();
    auto* row = new QHBoxLayout;
    row->setSpacing(20);
    row->addWidget(picture_of(number), 0, Qt::AlignTop);
    row->addLayout(words, 1);
    return row;
}

QLayout* guide_dialog::make_foot() {
    auto* row = new QHBoxLayout;
    row->setSpacing(20);
    row->addWidget(wrapped_text(localised("ui_guide_no_copy"), "small"), 1);
    QPushButton* close = make_button(texts_.text("ui_close"), "guide_close");
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    row->addWidget(close, 0, Qt::AlignBottom);
    return row;
}

} // namespace

void run_guide(QWidget* window, input_guard& guard, const text_lookup& texts) {
    run_over(window, guard, [&texts](QWidget* parent) { return new guide_dialog(parent, texts); });
}
