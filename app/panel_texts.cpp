#include "app/panel_texts.h"

#include "app/pictures.h"
#include "app/placing.h"
#include "app/spoken_parts.h"
#include "app/text_field.h"

QLabel* wrapped_text(const QString& text, const char* role, const char* tone) {
    auto* label = with_role_at_once(new QLabel, role, tone);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setWordWrap(true);
    label->setText(text);
    return label;
}

text_field* one_line_text(const QString& text, int height, const char* role, const char* tone) {
    auto* field = with_role_at_once(new text_field(nullptr), role, tone);
    field->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    field->setFixedHeight(height);
    field->set_value(text);
    return field;
}

QLabel* panel_picture(const char* name, int width, int height) {
    const QSize size(width, height);
    auto* label = new QLabel;
    label->setFixedSize(size);
    tell_picture(label, {}); // the words beside it say it
    label->setPixmap(picture_icon(QStringLiteral("%1.png").arg(QLatin1String(name))).pixmap(size));
    return label;
}
