#include "app/verdict_pill.h"

#include <QLabel>

#include "app/placing.h"
#include "app/spoken_parts.h"
#include "app/styling.h"
#include "app/text_field.h"

namespace {

constexpr int height_of_pill = 24;
constexpr int icon_size = 16;
constexpr int left = 7;
constexpr int gap = 6;
constexpr int right = 11;

QString icon_name(const char* state) {
    const QLatin1String name(state);
    return QStringLiteral("status-%1")
        .arg(name == QLatin1String("err") ? QLatin1String("error") : name);
}

} // namespace

verdict_pill::verdict_pill(QWidget* parent)
    : QFrame(parent), icon_(new QLabel(this)), word_(new text_field(this)) {
    with_role(this, "pill");
    icon_->setGeometry(left, (height_of_pill - icon_size) / 2, icon_size, icon_size);
    tell_picture(icon_, {}); // the word says it
    with_role(word_, "verdict");
    word_->setObjectName(QStringLiteral("verdict"));
}

void verdict_pill::show_verdict(const char* state, const QString& word) {
    restyle(this, "tone", QLatin1String(state));
    set_tone(word_, state);
    show_picture(icon_, icon_name(state), QSize(icon_size, icon_size));
    word_->set_value(word);
    word_->ensurePolished();
    const int word_width = word_->fontMetrics().horizontalAdvance(word) + 1;
    constexpr int word_left = left + icon_size + gap;
    const int edge = geometry().right() + 1;
    const int width = word_left + word_width + right;
    setGeometry(edge - width, y(), width, height_of_pill);
    word_->setGeometry(word_left, 0, word_width, height_of_pill);
}
