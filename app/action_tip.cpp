#include "app/action_tip.h"

#include <QAbstractButton>
#include <QEvent>
#include <QKeySequence>
#include <QString>
#include <QVariant>
#include <QWidget>

#include "app/plain_text.h"

namespace {

// Kept by the control itself, as dynamic properties.
constexpr const char* key_of = "tip_key";
constexpr const char* reason_of = "tip_reason";
constexpr const char* keeper_of = "tip_keeper";

void show_tip(QWidget* control) {
    const auto key = control->property(key_of).value<QKeySequence>();
    if (auto* button = qobject_cast<QAbstractButton*>(control); button != nullptr) {
        button->setShortcut(key);
    }
    const QString name = control->accessibleName();
    const QString reason = control->property(reason_of).toString();
    const QString keys = key.toString(QKeySequence::NativeText);
    if (!control->isEnabled()) {
        set_tip(control, reason.isEmpty() ? name : reason);
    } else if (keys.isEmpty()) {
        set_tip(control, name);
    } else {
        set_tip(control, name_and_key(name, key), keys);
    }
}

// Follows a control as it is enabled and disabled.
class tip_keeper final : public QObject {
public:
    explicit tip_keeper(QWidget* control) : QObject(control), control_(control) {
        control->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* /*control*/, QEvent* event) override {
        if (event->type() == QEvent::EnabledChange) {
            show_tip(control_);
        }
        return false;
    }

private:
    QWidget* control_;
};

void keep_tip(QWidget* control, const char* property, const QVariant& value) {
    control->setProperty(property, value);
    if (!control->property(keeper_of).isValid()) {
        control->setProperty(keeper_of, true);
        new tip_keeper(control);
    }
    show_tip(control);
}

} // namespace

void set_tip(QWidget* widget, const QString& shown, const QString& said) {
    widget->setAccessibleDescription(said);
    widget->setToolTip(tip_text(shown));
}

void set_tip(QWidget* widget, const QString& text) {
    set_tip(widget, text, text);
}

QString name_and_key(const QString& name, const QKeySequence& key) {
    return QStringLiteral("%1 (%2)").arg(name, key.toString(QKeySequence::NativeText));
}

void set_key(QAbstractButton* button, const QKeySequence& key) {
    keep_tip(button, key_of, key);
}

void set_reason(QWidget* control, const QString& reason) {
    keep_tip(control, reason_of, reason);
}
