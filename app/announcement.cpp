#include "app/announcement.h"

announcement::announcement(QWidget* window) : QWidget(window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(1, 1);
    hide();
}

// Qt 6.4 has no announcement of its own; what does get through is a notification that comes up.
void announcement::say(const QString& text) {
    if (text != accessibleName()) {
        hide();
        setAccessibleName(text);
        show();
    }
}

void announce(QWidget* about, const QString& text) {
    QWidget* window = about->window();
    for (QObject* child : window->children()) {
        if (auto* herald = dynamic_cast<announcement*>(child); herald != nullptr) {
            herald->say(text);
            return;
        }
    }
    (new announcement(window))->say(text);
}
