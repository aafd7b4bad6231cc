#include "app/style_picture.h"

#include <QIcon>
#include <QPainter>

// An icon finds the picture for dense screens by itself.
void paint_picture(QPainter& painter, const QRect& area, QLatin1String name) {
    QIcon(QStringLiteral(":/%1.png").arg(name)).paint(&painter, area);
}
