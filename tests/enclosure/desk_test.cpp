#include "enclosure/desk.h"

#include "enclosure/names.h"
#include "enclosure/problem.h"
#include "enclosure/sizes.h"

#include "tests/enclosure/builders.h"
#include "tests/enclosure/quiet_watcher.h"
#include "tests/enclosure/temporary_folder.h"

#include <gtest/gtest.h>

namespace enclosure {
namespace {

using namespace std::chrono_literals;

TEST(Names, LettersDigitsAndDashesMakeAName) {
    EXPECT_TRUE(is_name("Box-1_b"));
    EXPECT_TRUE(is_name(std::string(32, 'x')));
    EXPECT_FALSE(is_name(""));
    EXPECT_FALSE(is_name(std::string(33, 'x')));
    EXPECT_FALSE(is_name("a/b"));
    EXPECT_FALSE(is_name(".."));
    EXPECT_FALSE(is_name("a b"));
    EXPECT_FALSE(is_name("\xC3\xA4"));
}

TEST(Names, DifferentNamesHaveDifferentPaths) {
    EXPECT_EQ(path_element("a-b"), "a_2db");
    EXPECT_EQ(path_element("a_b"), "a_5fb");
}

TEST(Names, WhatIsShownCannotDisturbATerminal) {
    EXPECT_EQ(printable("a\x1b[31m\n\xff"), "a?[31m??");
    EXPECT_EQ(printable(std::string(200, 'x')).size(), 100U);
}

TEST(Sizes, AreReadAsPeopleWriteThem) {
    EXPECT_EQ(sectors_of("2TB"), 3'906'250'000U);
    EXPECT_EQ(sectors_of("1.5 TB"), 2'929'687'500U);
    EXPECT_EQ(sectors_of("500GB"), 976'562'500U);
    EXPECT_EQ(sectors_of("1000"), 1000U);
    EXPECT_THROW(sectors_of("2XB"), problem);
    EXPECT_THROW(sectors_of("-2TB"), problem);
    EXPECT_THROW(sectors_of("1.5"), problem);
    EXPECT_THROW(sectors_of("nan"), problem);
    EXPECT_THROW(sectors_of("1e30"), problem);
    EXPECT_THROW(sectors_of(""), problem);
}

TEST(Sizes, RatesAreInMegabytes) {
    EXPECT_EQ(rate_of("200"), 200'000'000U);
    EXPECT_EQ(rate_of("0.5"), 500'000U);
    EXPECT_EQ(rate_of("unlimited"), mirror_copy::unlimited);
    EXPECT_THROW(rate_of("0"), problem);
    EXPECT_THROW(rate_of("1001"), problem);
    EXPECT_THROW(rate_of("fast"), problem);
}

class Desk : public testing::Test {
protected:
    void add_disk(const std::string& name) { desk_.add_disk(name, build_identify(label_of(1000))); }

    temporary_folder folder_;
    quiet_watcher watcher_;
    desk desk_{folder_.path(), watcher_};
};

TEST_F(Desk, NamesCannotLeaveTheFolder) {
    const std::string zero("a\0b", 3);
    for (const std::string& name :
         {std::string("../escape"), std::string("/etc"), std::string(".."), std::string(), zero,
          std::string(100'000, 'a')}) {
        EXPECT_THROW(add_disk(name), problem) << name;
        EXPECT_THROW(desk_.remove_disk(name), problem) << name;
        EXPECT_THROW(desk_.add_enclosure(usb_settings(name)), problem) << name;
        EXPECT_THROW(desk_.remove_enclosure(name), problem) << name;
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder_.path()));
}

TEST_F(Desk, ANameIsTakenOnce) {
    desk_.add_enclosure(usb_settings("box"));
    EXPECT_THROW(desk_.add_enclosure(usb_settings("box")), problem);
    add_disk("a");
    EXPECT_THROW(add_disk("a"), problem);
}

TEST_F(Desk, ADiskIsInOneBayAndABayHoldsOneDisk) {
    desk_.add_enclosure(usb_settings("box"));
    add_disk("a");
    add_disk("b");
    desk_.insert("box", 0, "a");
    EXPECT_THROW(desk_.insert("box", 1, "a"), problem);
    EXPECT_THROW(desk_.insert("box", 0, "b"), problem);
    EXPECT_THROW(desk_.insert("box", 2, "b"), problem);
    EXPECT_THROW(desk_.remove_disk("a"), problem);
    EXPECT_EQ(desk_.pull("box", 0), "a");
    EXPECT_THROW(desk_.pull("box", 0), problem);
    desk_.remove_disk("a");
    EXPECT_FALSE(std::filesystem::exists(folder_.path() / "a.img"));
}

TEST_F(Desk, EveryPlugGetsANewHandle) {
    desk_.add_enclosure(usb_settings("box"));
    EXPECT_EQ(desk_.plug("box", 0s), 0x4B520001U);
    EXPECT_THROW(desk_.plug("box", 0s), problem);
    desk_.unplug("box");
    EXPECT_THROW(desk_.unplug("box"), problem);
    EXPECT_EQ(desk_.plug("box", 0s), 0x4B520002U);
}

TEST_F(Desk, ARestartTakesItsTimeAndANewHandle) {
    desk_.add_enclosure(usb_settings("box"));
    desk_.plug("box", 0s);
    desk_.warm_boot("box", 10s);
    EXPECT_TRUE(desk_.bridges().empty());
    EXPECT_TRUE(desk_.enclosure("box").plugged());
    EXPECT_EQ(desk_.next_event(10s), moment{11s});
    desk_.advance(10s + 999ms);
    EXPECT_TRUE(desk_.bridges().empty());
    desk_.advance(11s);
    ASSERT_EQ(desk_.bridges().size(), 1U);
    EXPECT_EQ(desk_.bridges()[0].handle, 0x4B520002U);
}

TEST_F(Desk, ABridgeUnpluggedDuringARestartStaysAway) {
    desk_.add_enclosure(usb_settings("box"));
    desk_.plug("box", 0s);
    desk_.warm_boot("box", 0s);
    desk_.unplug("box");
    desk_.advance(1h);
    EXPECT_TRUE(desk_.bridges().empty());
}

TEST_F(Desk, WithoutHandlesLeftARestartedBridgeStaysAway) {
    desk_.add_enclosure(usb_settings("box"));
    desk_.restore_next_handle(last_handle);
    EXPECT_EQ(desk_.plug("box", 0s), last_handle);
    desk_.warm_boot("box", 0s);
    desk_.advance(1h);
    EXPECT_FALSE(desk_.enclosure("box").plugged());
    EXPECT_THROW(desk_.plug("box", 0s), problem);
}

TEST_F(Desk, EnclosuresGetPlacesOfTheirOwn) {
    desk_.add_enclosure(usb_settings("one"));
    desk_.add_enclosure(usb_settings("two"));
    EXPECT_NE(desk_.enclosure("one").settings().location,
              desk_.enclosure("two").settings().location);
}

TEST_F(Desk, ABridgeShowsWhatItsBusHas) {
    cabinet_settings settings = usb_settings("wire");
    settings.bus = bus_kind::firewire;
    settings.guid = 0x1122334455667788;
    settings.product = "Studio";
    desk_.add_enclosure(settings);
    desk_.plug("wire", 0s);
    const bridge seen = desk_.bridges().at(0);
    EXPECT_EQ(seen.guid, 0x1122334455667788U);
    EXPECT_EQ(seen.vendor_id, 0U);
    EXPECT_EQ(seen.name, "Emulated Studio");
}

TEST_F(Desk, APluggedEnclosureIsNeitherRemovedNorRearranged) {
    desk_.add_enclosure(usb_settings("box"));
    desk_.plug("box", 0s);
    EXPECT_THROW(desk_.remove_enclosure("box"), problem);
    EXPECT_THROW(desk_.arrange("box", scenario::raid1), problem);
}

struct scenario_case {
    scenario state;
    array_kind kind;
    volume_state seen;
};

class Scenario : public testing::TestWithParam<scenario_case> {};

TEST_P(Scenario, IsWhatTheChipMakesOfIt) {
    const temporary_folder folder;
    quiet_watcher watcher;
    desk on(folder.path(), watcher);
    on.add_enclosure(usb_settings("box"));
    on.arrange("box", scenario::broken); // whatever it was before
    on.arrange("box", GetParam().state);
    on.plug("box", 0s);
    const volume seen = on.enclosure("box").bridge_chip().presented();
    EXPECT_EQ(seen.kind, GetParam().kind);
    EXPECT_EQ(seen.state, GetParam().seen);
}

INSTANTIATE_TEST_SUITE_P(
    All, Scenario,
    testing::Values(scenario_case{scenario::unconfigured, array_kind::none, volume_state::plain},
                    scenario_case{scenario::raid0, array_kind::stripe, volume_state::in_order},
                    scenario_case{scenario::raid1, array_kind::mirror, volume_state::in_order},
                    scenario_case{scenario::span, array_kind::span, volume_state::in_order},
                    scenario_case{scenario::degraded, array_kind::mirror, volume_state::degraded},
                    scenario_case{scenario::diverged, array_kind::mirror, volume_state::diverged},
                    scenario_case{scenario::broken, array_kind::stripe, volume_state::broken},
                    scenario_case{scenario::rebuild, array_kind::mirror, volume_state::copying}),
    [](const auto& chosen) { return std::string(name_of(chosen.param.state)); });

} // namespace
} // namespace enclosure
