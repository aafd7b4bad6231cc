// The nodes that the access library finds, beside those that the registry tells of.
#include "enclosure/kernel_sg_nodes.h"
#include "enclosure/sg_handle.h"

#include "device/bridge_node.h"
#include "device/sg_handle.h"
#include "tests/support/no_more_files.h"
#include "tests/udev/mock_bus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <string>

namespace {

using testing::IsEmpty;
using testing::SizeIs;

class LibraryNodes : public testing::Test {
protected:
    void add(const mock_usb_device& device, const mock_bridge& bridge) {
        bus_.add(device);
        bus_.add_scsi_device(device.path(), bridge);
        bus_.add_node(device.path(), bridge);
    }

    mock_bus bus_;
    enclosure::kernel_sg_nodes nodes_;
    mock_usb_device device_;
    mock_bridge bridge_;
};

TEST_F(LibraryNodes, AreNoneWithoutABridge) {
    EXPECT_THAT(nodes_.chosen().nodes, IsEmpty());
    EXPECT_TRUE(nodes_.chosen().complete);
}

TEST_F(LibraryNodes, AreNotKnownToBeAllWhenTheSystemCannotBeAsked) {
    add(device_, bridge_);
    {
        const no_more_files trouble;
        EXPECT_FALSE(nodes_.chosen().complete);
    }
    EXPECT_TRUE(nodes_.chosen().complete);
}

TEST_F(LibraryNodes, AreThoseThatTheRuleHasChosen) {
    bridge_.sg = "7";
    add(device_, bridge_);
    mock_usb_device other;
    other.ports = "2";
    mock_bridge stick;
    stick.host = "7";
    stick.sg = "1";
    stick.chosen = false;
    add(other, stick);
    const auto chosen = nodes_.chosen().nodes;
    ASSERT_THAT(chosen, SizeIs(1));
    EXPECT_EQ(chosen[0].minor, 7U);
}

TEST_F(LibraryNodes, HaveTheHandlesThatTheRegistryGives) {
    bridge_.sg = "300";
    add(device_, bridge_);
    const std::string path = mock_bus::node_path(device_.path(), bridge_);
    const auto chosen = nodes_.chosen().nodes;
    ASSERT_THAT(chosen, SizeIs(1));
    EXPECT_NE(chosen[0].arrival, 0U);
    EXPECT_EQ(enclosure::sg_handle_of(chosen[0]), sg_handle(300, sysfs_arrival_number(path)));
}

TEST_F(LibraryNodes, OfAnyNumberHaveTheHandlesThatTheRegistryGives) {
    for (const std::uint32_t minor : {0U, 1U, 0x7FFFU}) {
        for (const std::uint64_t arrival : {1ULL, 0xFFFFULL, 0x10000ULL, 0x123456789ABCULL}) {
            EXPECT_EQ(enclosure::sg_handle_of({minor, arrival}), sg_handle(minor, arrival));
        }
    }
}

TEST_F(LibraryNodes, ThatAreNotThereCannotBeOpened) {
    const enclosure::opened_node opened = nodes_.open({321, 1});
    EXPECT_FALSE(opened.file);
    EXPECT_EQ(opened.error, ENOENT);
}

} // namespace
