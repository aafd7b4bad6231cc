// The access library and the registry on real nodes: who may, who answers, who has gone.
#include "device/libkrraid.h"
#include "device/linked_library.h"
#include "device/registry.h"
#include "model/krtool.h"

#include "tests/vm/enclosures.h"
#include "tests/vm/program.h"
#include "tests/vm/shell.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace {

class RealNodes : public testing::Test {
protected:
    RealNodes() {
        start_program();
        box_.usb().plug();
        chip_ = await_chip("is there", box_.name(),
                           [](const krchip& chip) { return chip.disks[0].present != 0; });
    }

    real_enclosure box_{"nodes", "16MB"};
    krchip chip_;
    linked_library library_;
};

TEST_F(RealNodes, AreListedWithTheHandleThatTheRegistryKnows) {
    EXPECT_EQ(chip_.identity.vendor_id, 0x1209U);
    EXPECT_EQ(chip_.identity.product_id, 0x4B52U);
    EXPECT_NE(chip_.identity.location_id, 0U);
    EXPECT_EQ(chip_.get_raid_name(), "Emulated Kestrel Duo");
}

TEST_F(RealNodes, AreListedForThoseOnlyWhoMayOpenThem) {
    const std::vector<reached_bridge> reached = j.with.registry.reached();
    ASSERT_EQ(reached.size(), 1U);
    EXPECT_TRUE(reached[0].permitted);
    EXPECT_EQ(run("vm_test --count-bridges"), "1\n");
    EXPECT_EQ(run("su -s /bin/sh nobody -c 'vm_test --count-bridges'"), "0\n");
}

TEST_F(RealNodes, TellAnEmptyBayFromAnErrorAndFromABridgeThatLeft) {
    std::array<std::uint8_t, 512> buffer{};
    const auto read = [&](std::uint64_t lba, int port) {
        const lock_scope lock(j.mutex);
        return library_.krGetRaidInfo(chip_.device, buffer.data(), 512, lba, port, 1);
    };
    EXPECT_EQ(read(0, 0), KRRAID_DONE);
    EXPECT_EQ(read(1ULL << 40, 0), KRRAID_FAILED);
    box_.pull(1);
    EXPECT_EQ(read(0, 1), KRRAID_NO_DISK);
    box_.usb().pull();
    the_window().await("the cable is out", [this] { return !chip_with(box_.name()); });
    EXPECT_EQ(read(0, 0), KRRAID_GONE);
}

} // namespace
