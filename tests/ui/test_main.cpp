#include "tests/ui/test_main.h"

#include <QApplication>
#include <gmock/gmock.h>

#include "app/look.h"
#include "app/ui_bridge.h"

ui_bridge& test_bridge() {
    static ui_bridge bridge;
    return bridge;
}

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    apply_look(application);
    test_bridge();
    return RUN_ALL_TESTS();
}
