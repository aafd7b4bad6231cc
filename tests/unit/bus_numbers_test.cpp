// Numbers of a bus: ids, sockets, handles.
#include "device/bus_numbers.h"
#include "device/sg_handle.h"

#include <gtest/gtest.h>

#include <set>

TEST(HexNumber, IsReadWithAndWithoutItsMark) {
    EXPECT_EQ(hex_number("4b52", 0xFFFF), 0x4B52U);
    EXPECT_EQ(hex_number("0xF122334455667788", ~0ULL), 0xF122334455667788U);
}

TEST(HexNumber, IsZeroWhenTheTextIsAnythingElse) {
    for (const char* text :
         {"", "0x", "0x0x1", "-1", "+1", " 1", "1 ", "12g4", "10000", "123456789012345678"}) {
        EXPECT_EQ(hex_number(text, 0xFFFF), 0U) << text;
    }
}

TEST(LocationNumber, HasTheBusInItsTopByteAndAPortInEachNibbleBelow) {
    EXPECT_EQ(location_number("2", "1"), 0x02100000);
    EXPECT_EQ(location_number("2", "1.4"), 0x02140000);
    EXPECT_EQ(location_number("3", "1.2.3.4.5.15"), 0x0312345F);
}

TEST(LocationNumber, MayHaveItsTopBitSet) {
    EXPECT_EQ(static_cast<std::uint32_t>(location_number("128", "1")), 0x80100000U);
}

TEST(LocationNumber, TellsPortsOfALargeRootHubApart) {
    std::set<std::int32_t> locations;
    for (int port = 1; port <= 255; ++port) {
        locations.insert(location_number("1", std::to_string(port)));
    }
    EXPECT_EQ(locations.size(), 255U);
    EXPECT_EQ(location_number("1", "17"), 0x01100001);
}

TEST(LocationNumber, IsZeroWhenTheTextsAreAnythingElse) {
    EXPECT_EQ(location_number("", "1"), 0);
    EXPECT_EQ(location_number("0", "1"), 0);
    EXPECT_EQ(location_number("256", "1"), 0);
    for (const char* ports : {"", "0", "1.", ".1", "1..2", "1.x", "256", "1.2.3.4.5.6.7"}) {
        EXPECT_EQ(location_number("1", ports), 0) << ports;
    }
}

TEST(SgHandle, TellsNodesAndArrivalsApart) {
    EXPECT_EQ(sg_handle(0, 0), 0x80000000U);
    EXPECT_EQ(sg_handle(5, 2), 0x80010005U);
    EXPECT_EQ(sg_handle(sg_most_minor, 0xFFFF), 0xFFFFFFFFU);
    EXPECT_EQ(sg_handle(5, 0x10002), sg_handle(5, 2));
}
