// A box with a title.
#pragma once

#include <QFrame>

class text_field;

// Interface thread.
class titled_box final : public QFrame {
public:
    explicit titled_box(QWidget* parent);

    // Where the title stands, in the box.
    void place_title(const QRect& place);
    void set_title(const QString& title);
    QString title() const;

private:
    text_field* title_;
};
