#include "tests/ui/test_main.h"

#include <QApplication>
#include <QEvent>
#include <gmock/gmock.h>

#include "app/look.h"
#include "app/ui_bridge.h"

ui_bridge& test_bridge() {
    static ui_bridge bridge;
    return bridge;
}

namespace {

#if defined(__SANITIZE_THREAD__)
// The toolkit paints large areas with threads of its own, whose hand-overs the thread sanitizer
// cannot see into. So its tests have windows that are never painted on the screen.
class unpainted final : public QObject {
protected:
    bool eventFilter(QObject* /*receiver*/, QEvent* event) override {
        return event->type() == QEvent::UpdateRequest || event->type() == QEvent::Expose;
    }
};
#endif

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    apply_look(application);
    apply_language(QStringLiteral("en"));
#if defined(__SANITIZE_THREAD__)
    unpainted screen;
    application.installEventFilter(&screen);
#endif
    test_bridge();
    return RUN_ALL_TESTS();
}
