#include "app/first_paint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <utility>

namespace {

class first_paint final : public QObject {
public:
    first_paint(QWidget* widget, std::function<void()> action)
        : QObject(widget), action_(std::move(action)) {
        widget->installEventFilter(this);
        painted_.setSingleShot(true);
        connect(&painted_, &QTimer::timeout, this, [this] {
            action_();
            deleteLater();
        });
    }

protected:
    bool eventFilter(QObject* widget, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            widget->removeEventFilter(this);
            painted_.start(0);
        }
        return false;
    }

private:
    std::function<void()> action_;
    QTimer painted_;
};

} // namespace

void after_first_paint(QWidget* widget, std::function<void()> action) {
    new first_paint(widget, std::move(action));
}
