#include "app/outlet_names.h"

#include <QApplication>
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
    QAccessible::installActivationObserver(this);
    if (QAccessible::isActive()) {
        accessibilityActiveChanged(true);
    }
}

outlet_names::~outlet_names() {
    QAccessible::removeActivationObserver(this);
}

void outlet_names::accessibilityActiveChanged(bool active) {
    qApp->removeEventFilter(this);
    if (!active) {
        return;
    }
    qApp->installEventFilter(this);
    for (QWidget* widget : QApplication::allWidgets()) {
        append_name(widget);
    }
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
