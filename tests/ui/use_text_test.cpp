// Why a volume in use keeps a change from being made, in words.
#include "app/use_text.h"

#include <gmock/gmock.h>

#include "app/panel.h"
#include "tests/support/table_lookup.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const volume_use mounted{volume_use_kind::mounted, "sdb1", "/media/a"};
const volume_use swap_area{volume_use_kind::swap, "sdb2", {}};
const volume_use held{volume_use_kind::held, "sdb3", "md0"};
const volume_use open_there{volume_use_kind::open, "sdb4", "ext4"};
const volume_use unchecked{volume_use_kind::unchecked, {}, {}};

class use_text : public testing::Test {
protected:
    void SetUp() override {
        texts.set("ui_use_mounted", "%1 at %2");
        texts.set("ui_use_swap", "%1 swap");
        texts.set("ui_use_held", "%1 by %2");
        texts.set("ui_uses_more", "%1 more");
    }
    std::vector<std::string> lines_of(const std::vector<volume_use>& uses) {
        return describe(uses, texts).lines;
    }
    std::string message_of(const std::vector<volume_use>& uses) {
        return describe(uses, texts).message;
    }

    table_lookup texts;
};

TEST_F(use_text, TellsWhatIsUsedWhereLineByLine) {
    EXPECT_THAT(lines_of({mounted, swap_area, held, open_there}),
                ElementsAre("sdb1 at /media/a", "sdb2 swap", "sdb3 by md0", "sdb4 by ext4"));
}

TEST_F(use_text, NamesARemedyForEachKindOnce) {
    EXPECT_EQ(message_of({mounted, mounted}), "ui_volume_in_use ui_remedy_unmount ui_try_again");
    EXPECT_EQ(message_of({swap_area}), "ui_volume_in_use ui_remedy_swapoff ui_try_again");
    EXPECT_EQ(message_of({open_there}), "ui_volume_in_use ui_remedy_close ui_try_again");
    EXPECT_EQ(message_of({mounted, swap_area, held}),
              "ui_volume_in_use ui_remedy_unmount ui_remedy_swapoff ui_remedy_release "
              "ui_try_again");
}

TEST_F(use_text, SaysWhenItIsNotKnownWhetherThereAreAny) {
    EXPECT_EQ(message_of({unchecked}), "ui_volume_unchecked ui_remedy_reconnect ui_try_again");
    EXPECT_THAT(lines_of({unchecked}), IsEmpty());
    EXPECT_EQ(message_of({held, unchecked}),
              "ui_volume_in_use ui_remedy_release ui_remedy_reconnect ui_try_again");
    EXPECT_THAT(lines_of({held, unchecked}), ElementsAre("sdb3 by md0"));
}

TEST_F(use_text, CountsWhatHasNoRoom) {
    EXPECT_EQ(lines_of({4, mounted}).size(), 4U);
    EXPECT_THAT(lines_of({5, mounted}),
                ElementsAre("sdb1 at /media/a", "sdb1 at /media/a", "sdb1 at /media/a", "2 more"));
    std::vector<volume_use> many(300, mounted);
    many.push_back(unchecked);
    EXPECT_EQ(lines_of(many).back(), "297 more");
}

TEST_F(use_text, HasBlanksForControlsAndNothingElseChanged) {
    EXPECT_THAT(lines_of({{volume_use_kind::mounted, "sdb1", "/a\nb\t\x1B[2J %1 <b>"}}),
                ElementsAre("sdb1 at /a b  [2J %1 <b>"));
    EXPECT_THAT(lines_of({{volume_use_kind::mounted, "sdb1", "/a\xFF"}}),
                ElementsAre("sdb1 at /a\xEF\xBF\xBD"));
}

TEST_F(use_text, PutsNoBlankAfterAFullStopThatBringsItsOwn) {
    texts.set("ui_volume_in_use", "使用中。");
    texts.set("ui_remedy_unmount", "解除。");
    EXPECT_EQ(message_of({mounted}), "使用中。解除。ui_try_again");
}

TEST_F(use_text, MakesARefusalOfAQuestion) {
    panel_request request{panel_kind::warning, "W", "Delete?", {"OK", "Cancel"}};
    refuse_instead(request, {mounted}, texts);
    EXPECT_EQ(request.title, "W");
    EXPECT_EQ(request.message, message_of({mounted}));
    EXPECT_THAT(request.lines, ElementsAre("sdb1 at /media/a"));
    EXPECT_THAT(request.buttons, ElementsAre("OK"));
    EXPECT_FALSE(request.plan.has_value());
}

TEST_F(use_text, SaysOfThePlanThatItIsNotDoneAndLeavesItsWarningsOut) {
    panel_request request{panel_kind::warning, "W", "Delete?", {"OK", "Cancel"}};
    texts.set("ui_plan_refused", "Not done: %1");
    request.plan.emplace().heading = "Deletes the array.";
    request.plan->cards[0].fate = "is lost";
    request.plan->cards[0].tone = fate_tone::lost;
    request.plan->arrow = plan_arrow::to_disk1;
    request.plan->cards[0].warnings = {"Too small."};
    request.plan->cards[1].warnings = {"Odd sectors."};
    refuse_instead(request, {mounted}, texts);
    EXPECT_EQ(request.plan->heading, "Not done: Deletes the array.");
    EXPECT_EQ(request.plan->cards[0].fate, "is lost");
    EXPECT_EQ(request.plan->cards[0].tone, fate_tone::calm);
    EXPECT_EQ(request.plan->arrow, plan_arrow::none);
    EXPECT_THAT(request.plan->cards[0].warnings, IsEmpty());
    EXPECT_THAT(request.plan->cards[1].warnings, IsEmpty());
}

} // namespace
