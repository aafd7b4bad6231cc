// What the empty window says of enclosures that are connected.
#include "app/closed_bridges.h"

#include <gtest/gtest.h>

#include "tests/support/table_lookup.h"

namespace {

class closed_bridges : public testing::Test {
protected:
    closed_bridges() {
        texts.set("refresh_button", "Again");
        texts.set("ui_closed_text", "closed %1, press %2");
        texts.set("ui_silent_text", "silent %1, press %2");
    }

    std::string said(const std::vector<reached_bridge>& connected) const {
        const auto note = note_on(connected, texts);
        return note ? std::string(note->heading) + ": " + note->text : "";
    }

    table_lookup texts;
};

TEST_F(closed_bridges, SaysNothingWhenNoneIsConnected) {
    EXPECT_EQ(said({}), "");
}

TEST_F(closed_bridges, TellsTheUserWithoutPermissionWhatToDo) {
    EXPECT_EQ(said({{"Duo", "/dev/sg3", false}}),
              "ui_closed_heading: closed Duo (/dev/sg3), press Again");
}

TEST_F(closed_bridges, TellsOfOneThatDoesNotAnswer) {
    EXPECT_EQ(said({{"Duo", "/dev/sg3", true}}),
              "ui_silent_heading: silent Duo (/dev/sg3), press Again");
}

TEST_F(closed_bridges, SpeaksOfPermissionFirst) {
    EXPECT_EQ(said({{"Duo", "/dev/sg3", true}, {"Solo", "/dev/sg4", false}}),
              "ui_closed_heading: closed Solo (/dev/sg4), press Again");
}

TEST_F(closed_bridges, NamesTwoAtMost) {
    EXPECT_EQ(said({{"A", "/dev/sg1", true}, {"B", "/dev/sg2", true}}),
              "ui_silent_heading: silent A (/dev/sg1), B (/dev/sg2), press Again");
    EXPECT_EQ(said({{"A", "/dev/sg1", true}, {"B", "/dev/sg2", true}, {"C", "/dev/sg3", true}}),
              "ui_silent_heading: silent A (/dev/sg1), B (/dev/sg2), …, press Again");
}

TEST_F(closed_bridges, GivesTheNodeOfOneWithoutAName) {
    EXPECT_EQ(said({{"", "/dev/sg3", false}}), "ui_closed_heading: closed /dev/sg3, press Again");
}

TEST_F(closed_bridges, KeepsANameThatLooksLikeAPlace) {
    EXPECT_EQ(said({{"%2", "/dev/sg3", false}}),
              "ui_closed_heading: closed %2 (/dev/sg3), press Again");
}

} // namespace
