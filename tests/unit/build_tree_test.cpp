#include <gtest/gtest.h>
#include <string>

#include "model/krtool.h"
#include "tests/support/fixture.h"

namespace {

class DeviceTree : public model_test {
protected:
    // Scans and reads what was attached.
    void read_everything() {
        const gate_scope work(j.gate);
        j.scandevices();
        j.updatediskinformation();
        log.clear();
        j.read_raid();
    }

    static bool build() {
        const gate_scope work(j.gate);
        return j.build_tree();
    }

    static registered_bridge named(registered_bridge bridge, const std::string& name) {
        bridge.name = name;
        return bridge;
    }
};

} // namespace

TEST_F(DeviceTree, OfNoChipsIsClearedAndShown) {
    testing::internal::CaptureStdout();
    EXPECT_TRUE(build());
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "tree built");
    EXPECT_EQ(log.take(), (lines{"cleartree()", "refreshtree()", "expandtree()"}));
}

TEST_F(DeviceTree, OfAUsbArrayHasBothDisksUnderIt) {
    attach(0x11, named(usb_bridge(1, 2, 3, u"S123"), "Kestrel Box"), member_a(1), member_b(1));
    read_everything();
    EXPECT_EQ(log.take(from_tree | from_window | from_registry),
              (lines{"cleartree()", "name(0x11 down 3)", "addchipFirewire(false)",
                     "addraid(0, \"Kestrel Box (SN: S123)\")", "adddisk(0, \"M0: DISK A\", true)",
                     "adddisk(0, \"M1: DISK B\", true)", "refreshtree()", "expandtree()"}));
    EXPECT_EQ(tree_of_j().text(), "chip (USB)\n"
                                  "  Kestrel Box (SN: S123)\n"
                                  "    M0: DISK A\n"
                                  "    M1: DISK B\n");
}

TEST_F(DeviceTree, OfAFirewireArrayTellsItsGuidWithoutABlank) {
    attach(0x11, named(firewire_bridge(0xABCDEF), "Kestrel Box"), member_a(4), member_b(4));
    read_everything();
    EXPECT_EQ(tree_of_j().text(), "chip (1394)\n"
                                  "  Kestrel Box(GUID: ABCDEF)\n"
                                  "    M0: DISK A\n"
                                  "    M1: DISK B\n");
}

TEST_F(DeviceTree, OfAFirewireArrayWithTheTopBitOfTheGuidSetTellsNone) {
    attach(0x11, named(firewire_bridge(0x8000000000000001), "Box"), member_a(4), member_b(4));
    read_everything();
    EXPECT_EQ(log.count("addraid(0, \"Box(GUID: )\")"), 1U);
}

TEST_F(DeviceTree, OfAChipWithOneDiskOnPortOneHasOneLeaf) {
    attach(0x11, usb_bridge(1, 2, 3), std::nullopt, memory_disk(disk_b()));
    read_everything();
    EXPECT_EQ(tree_of_j().text(), "chip (USB)\n  P1: DISK B\n");
    EXPECT_EQ(log.count("addraid"), 0U);
    EXPECT_EQ(log.count("name("), 0U);
}

TEST_F(DeviceTree, OfTwoSingleDisksHangsThemUnderTheChip) {
    attach(0x11, usb_bridge(1, 2, 3), memory_disk(disk_a()), memory_disk(disk_b()));
    read_everything();
    EXPECT_EQ(tree_of_j().text(), "chip (USB)\n  P0: DISK A\n  P1: DISK B\n");
}

TEST_F(DeviceTree, OfAnEmptyEnclosureIsABareBranch) {
    attach(0x11, usb_bridge(1, 2, 3));
    read_everything();
    EXPECT_EQ(tree_of_j().text(), "chip (USB)\n");
}

TEST_F(DeviceTree, FollowsTheOrderOfTheControllerList) {
    attach(0x11, firewire_bridge(0xFFFF), memory_disk(disk_a()));
    attach(0x12, usb_bridge(1, 2, 3), std::nullopt, memory_disk(disk_b()));
    read_everything();
    EXPECT_EQ(log.take(from_tree),
              (lines{"cleartree()", "addchipFirewire(false)", "adddisk(0, \"P1: DISK B\", false)",
                     "addchipFirewire(true)", "adddisk(1, \"P0: DISK A\", false)"}));
}

TEST_F(DeviceTree, ShowsDisksOfAnInvalidArrayAsSingleOnes) {
    attach(0x11, usb_bridge(1, 2, 3), member_a(1), memory_disk(disk_b()));
    read_everything();
    EXPECT_EQ(tree_of_j().text(), "chip (USB)\n  P0: DISK A\n  P1: DISK B\n");
}

TEST_F(DeviceTree, IgnoresAMapThatIsLongerThanTheList) {
    attach(0x11, usb_bridge(1, 2, 3), memory_disk(disk_a()));
    attach(0x12, usb_bridge(1, 2, 4), memory_disk(disk_b()));
    read_everything();
    library.with_bridges([](memory_enclosure& all) { all.list_status = 1; });
    const gate_scope work(j.gate);
    EXPECT_FALSE(j.scandevices());
    EXPECT_EQ(j.controller_map.size(), 2U);
    EXPECT_TRUE(j.build_tree());
    EXPECT_EQ(tree_of_j().text(), "");
}

TEST_F(DeviceTree, IgnoresAMapThatPointsOutsideTheList) {
    attach(0x11, usb_bridge(1, 2, 3), memory_disk(disk_a()));
    read_everything();
    for (const std::int32_t outside : {1, 5, -1}) {
        j.controller_map = {{3, outside}};
        build();
        EXPECT_EQ(tree_of_j().text(), "") << outside;
    }
    j.controller_map.clear();
    build();
    EXPECT_EQ(tree_of_j().text(), "");
}

TEST_F(DeviceTree, PassesHostileNamesOnAsTheyStand) {
    attach(0x11, named(usb_bridge(1, 2, 3, u"<b>"), "%n&\n<img>"), member_a(1), member_b(1));
    read_everything();
    EXPECT_EQ(log.count("addraid(0, \"%n&\n<img> (SN: <b>)\")"), 1U);
}
