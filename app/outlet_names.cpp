#include "app/outlet_names.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace {

void append_name(QWidget* widget) {
    const QString name = QStringLiteral("[%1]").arg(widget->objectName());
    const QString said = widget->accessibleDescription();
    if (!widget->objectName().isEmpty() && !said.endsWith(name)) {
        widget->setAccessibleDescription(said.isEmpty() ? name : said + QLatin1Char(' ') + name);
    }
}

} // namespace

outlet_names::outlet_names() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool outlet_names::eventFilter(QObject* receiver, QEvent* event) {
    const bool shown = event->type() == QEvent::Show;
    const bool new_tip = event->type() == QEvent::ToolTipChange;
    if (!receiver->isWidgetType() || !(shown || new_tip)) {
        return false;
    }
    auto* widget = static_cast<QWidget*>(receiver);
    append_name(widget);
    if (shown) {
        // Those that stay hidden are not shown themselves, on a page behind another.
        for (QWidget* inside : widget->findChildren<QWidget*>()) {
            append_name(inside);
        }
    }
    return false;
}
