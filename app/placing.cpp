#include "app/placing.h"

void place(QWidget* widget, const QRect& where) {
    QPoint origin(0, 0);
    // The background view is the window's own area, whatever it stands in.
    for (const QWidget* above = widget->parentWidget();
         above != nullptr && above->objectName() != QLatin1String("mainview");
         above = above->parentWidget()) {
        origin += above->pos();
    }
    widget->setGeometry(where.translated(-origin));
}
