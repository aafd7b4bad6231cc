// What the button that restarts an enclosure does.
#include <QPushButton>
#include <gmock/gmock.h>

#include "app/window_extras.h"
#include "tests/ui/change_window.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using restart = change_window;

TEST_F(restart, DisablesEverythingAndRestartsWithoutAQuestion) {
    read_named_bridge();
    j.warm_boot_pending = false;
    press(window->extras->warmbootbutton);
    EXPECT_THAT(log.lines(from_library), ElementsAre("krWarmBoot(0x11) = 0"));
    EXPECT_THAT(talk(), IsEmpty());
    const lines shown = take_outlets();
    EXPECT_EQ(lines(shown.begin(), shown.begin() + 6), all_disabled);
    EXPECT_TRUE(j.warm_boot_pending);
}

TEST_F(restart, ReachesNoOtherThanTheOneThatIsNamed) {
    read_named_bridge();
    {
        const lock_scope lock(j.records);
        j.chips.front().identity = usb_identity(0x999);
    }
    press(window->extras->warmbootbutton);
    EXPECT_EQ(restarts(), 0U);
    EXPECT_THAT(take_outlets(), IsEmpty());
}

TEST_F(restart, ControlNamesTheFirstOfTheListAndIsOffWithoutOne) {
    EXPECT_FALSE(window->extras->warmbootbutton->isEnabled());
    texts.set("ui_restart_named", "Restart %1");
    read_named_bridge();
    EXPECT_TRUE(window->extras->warmbootbutton->isEnabled());
    EXPECT_THAT(window->extras->warmbootbutton->accessibleName().toStdString(),
                HasSubstr("Restart "));
    EXPECT_THAT(window->extras->warmbootbutton->accessibleName().toStdString(),
                HasSubstr("(S/N: ABC)"));
}

} // namespace
