#include "app/spoken_parts.h"

#include <QAccessibleWidget>
#include <QFrame>
#include <QLabel>
#include <QPointer>
#include <QStringList>
#include <QVariant>

#include "app/announcement.h"
#include "app/main_window.h"
#include "app/titled_box.h"
#include "app/working_indicator.h"

namespace {

constexpr const char* told_by = "told_by";

class spoken_picture final : public QAccessibleWidget {
public:
    explicit spoken_picture(QWidget* picture) : QAccessibleWidget(picture, QAccessible::Graphic) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? name() : QAccessibleWidget::text(kind);
    }

private:
    QString name() const {
        QStringList words;
        for (const QVariant& one : widget()->property(told_by).toList()) {
            const auto label = one.value<QPointer<QLabel>>();
            if (label && !label->text().isEmpty()) {
                words += label->text();
            }
        }
        return words.join(QLatin1String(", "));
    }
};

bool is_plain_frame(const QWidget* widget) {
    return widget->metaObject() == &QFrame::staticMetaObject;
}

QAccessibleInterface* spoken(const QString& /*class_name*/, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) {
        return nullptr;
    }
    if (const QVariant texts = widget->property(told_by); texts.isValid()) {
        return texts.toList().isEmpty() ? new QAccessibleWidget(widget, QAccessible::Client)
                                        : new spoken_picture(widget);
    }
    if (dynamic_cast<main_window*>(widget) != nullptr) {
        return new QAccessibleWidget(widget, QAccessible::Window);
    }
    if (dynamic_cast<titled_box*>(widget) != nullptr) {
        return new QAccessibleWidget(widget, QAccessible::Grouping);
    }
    if (dynamic_cast<working_indicator*>(widget) != nullptr) {
        return new QAccessibleWidget(widget, QAccessible::Animation);
    }
    if (dynamic_cast<announcement*>(widget) != nullptr) {
        return new QAccessibleWidget(widget, QAccessible::Notification);
    }
    if (is_plain_frame(widget)) {
        // The toolkit's role of a frame is understood as a window's.
        const bool named = !widget->accessibleName().isEmpty();
        return new QAccessibleWidget(widget, named ? QAccessible::Grouping : QAccessible::Client);
    }
    return nullptr;
}

} // namespace

void install_spoken_parts() {
    QAccessible::installFactory(spoken);
}

void tell_picture(QLabel* picture, const QList<QLabel*>& texts) {
    QVariantList kept;
    for (QLabel* text : texts) {
        kept += QVariant::fromValue(QPointer<QLabel>(text));
    }
    picture->setProperty(told_by, kept);
}
