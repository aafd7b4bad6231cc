// Small things about a bridge that a host relies on.
#include "tests/enclosure/builders.h"

#include <gtest/gtest.h>

#include <array>

namespace enclosure {
namespace {

using namespace std::chrono_literals;

std::string name_of_product(const std::string& product) {
    in_process_bench bench;
    cabinet_settings settings = usb_settings("box");
    settings.product = product;
    bench.add_enclosure(settings);
    bench.plug("box");
    return bench.bridges().at(0).name;
}

TEST(BridgeName, HasNoBlanksAtItsEnd) {
    EXPECT_EQ(name_of_product("Duo "), "Emulated Duo");
    EXPECT_EQ(name_of_product(""), "Emulated");
    EXPECT_EQ(name_of_product("A  B"), "Emulated A  B");
}

class DeviceList : public testing::Test {
protected:
    DeviceList() {
        put_pair(bench_, 1000, 1000);
        handle_ = bench_.plug("box");
        EXPECT_EQ(bench_.library().openConnection(handle_), 0);
    }

    std::int32_t listed() {
        std::array<std::uint8_t, 2048> list{};
        std::int32_t count = 0;
        EXPECT_EQ(bench_.library().getDeviceList(list.data(), &count), 0);
        return count;
    }

    in_process_bench bench_;
    std::uint32_t handle_ = 0;
};

TEST_F(DeviceList, WithoutABridgeClosesItsConnection) {
    bench_.warm_boot("box");
    bench_.advance(1s);
    EXPECT_EQ(listed(), 1);
    EXPECT_EQ(bench_.library().connections(), 0U);
}

TEST_F(DeviceList, LeavesTheConnectionsOfItsBridgesOpen) {
    EXPECT_EQ(listed(), 1);
    EXPECT_EQ(bench_.library().connections(), 1U);
    EXPECT_EQ(bench_.library().krFlushHDDCache(handle_, 0), 0);
}

} // namespace
} // namespace enclosure
