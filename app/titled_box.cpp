#include "app/titled_box.h"

#include "app/text_field.h"

titled_box::titled_box(QWidget* parent) : QFrame(parent), title_(new text_field(this)) {
    title_->setProperty("role", "boxtitle");
}

void titled_box::place_title(const QRect& place) {
    title_->setGeometry(place);
}

void titled_box::set_title(const QString& title) {
    title_->set_value(title);
    setAccessibleName(title);
}

QString titled_box::title() const {
    return title_->text();
}
