// Which SCSI generic nodes are bridges that can be used, and for how long.
#include "enclosure/bridge_access.h"
#include "enclosure/joined_transport.h"
#include "enclosure/sg_handle.h"
#include "enclosure/sg_transport.h"

#include "device/libkrraid.h"

#include "tests/enclosure/scripted_sg.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using enclosure::delivery;
using enclosure::sg_handle_of;
using enclosure::sg_node;
namespace sense = enclosure::sense;
using handles = std::vector<std::uint32_t>;

constexpr sg_node first{3, 100};
constexpr sg_node second{1, 200};

// Statuses of the kernel's host adapter.
constexpr unsigned short time_over = 0x03;
constexpr unsigned short bus_reset = 0x08;

class SgTransport : public testing::Test {
protected:
    SgTransport() { nodes_.there = {first, second}; }

    handles listed() { return way_.bridges().handles; }

    // How many seconds the bridge is given for a command that ends with that host status, as all
    // that follow do.
    unsigned limit_of_a_command(std::uint32_t device, unsigned short host_status) {
        nodes_.on_command = [this, host_status](sg_io_hdr& request) {
            limit_ = request.timeout / 1000;
            request.host_status = host_status;
            return 0;
        };
        const std::array<std::uint8_t, 16> command{};
        way_.execute(device, command, {}, 0);
        return limit_;
    }

    unsigned limit_ = 0;

    scripted_sg nodes_;
    enclosure::sg_transport way_{nodes_};
};

TEST_F(SgTransport, TheNodesAreListedInTheirOrder) {
    EXPECT_EQ(listed(), (handles{sg_handle_of(first), sg_handle_of(second)}));
    EXPECT_TRUE(way_.bridges().complete);
}

TEST_F(SgTransport, ANodeThatCannotBeOpenedIsNotListedUntilItCan) {
    nodes_.errors_of_open[first.minor] = EACCES;
    EXPECT_EQ(listed(), handles{sg_handle_of(second)});
    EXPECT_EQ(way_.open(sg_handle_of(first)), delivery::not_permitted);
    nodes_.errors_of_open.clear();
    EXPECT_EQ(listed(), (handles{sg_handle_of(first), sg_handle_of(second)}));
    EXPECT_EQ(way_.open(sg_handle_of(first)), delivery::answered);
}

TEST_F(SgTransport, ADeviceThatDoesNotKnowTheCommandsIsNoBridge) {
    nodes_.on_command = scripted_sg::refusing(enclosure::sense_bytes(sense::invalid_opcode));
    EXPECT_EQ(listed(), handles{});
    EXPECT_EQ(nodes_.commands.size(), 2U);
    EXPECT_EQ(listed(), handles{}); // and is not asked again
    EXPECT_EQ(nodes_.commands.size(), 2U);
}

TEST_F(SgTransport, AnotherDeviceAtTheSameNodeIsAskedAnew) {
    nodes_.there = {first};
    nodes_.on_command = scripted_sg::refusing(enclosure::sense_bytes(sense::invalid_opcode));
    EXPECT_EQ(listed(), handles{});
    nodes_.on_command = [](sg_io_hdr&) { return 0; };
    const sg_node next{first.minor, first.arrival + 1};
    nodes_.there = {next};
    EXPECT_EQ(listed(), handles{sg_handle_of(next)});
}

TEST_F(SgTransport, ABridgeWithoutDisksOrWithoutAnAnswerIsListed) {
    nodes_.there = {first};
    nodes_.on_command = scripted_sg::refusing(enclosure::sense_bytes(sense::no_medium));
    EXPECT_EQ(listed(), handles{sg_handle_of(first)});
    nodes_.there = {second};
    nodes_.on_command = [](sg_io_hdr&) { return EIO; };
    EXPECT_EQ(listed(), handles{sg_handle_of(second)});
}

TEST_F(SgTransport, AnOpenBridgeIsNotOpenedAgainToBeListed) {
    ASSERT_EQ(way_.open(sg_handle_of(first)), delivery::answered);
    nodes_.there = {first};
    nodes_.opened = 0;
    EXPECT_EQ(listed(), handles{sg_handle_of(first)});
    EXPECT_EQ(nodes_.opened, 0);
}

TEST_F(SgTransport, ANodeThatHasGoneCannotBeOpened) {
    nodes_.there.clear();
    EXPECT_EQ(way_.open(sg_handle_of(first)), delivery::gone);
    EXPECT_EQ(way_.open(0), delivery::gone);
    const std::array<std::uint8_t, 16> command{};
    EXPECT_EQ(way_.execute(sg_handle_of(first), command, {}, 0).state, delivery::gone);
}

TEST_F(SgTransport, ANodeThatGoesWhileItIsOpenedIsGone) {
    for (const int error : {ENODEV, ENXIO, ENOENT}) {
        nodes_.errors_of_open[first.minor] = error;
        EXPECT_EQ(way_.open(sg_handle_of(first)), delivery::gone) << error;
    }
}

TEST_F(SgTransport, ANodeThatCannotBeOpenedForWantOfMeansIsNotGone) {
    for (const int error : {EMFILE, ENFILE, ENOMEM, EIO}) {
        nodes_.errors_of_open[first.minor] = error;
        EXPECT_EQ(way_.open(sg_handle_of(first)), delivery::no_answer) << error;
    }
}

TEST_F(SgTransport, ABridgeThatSomebodyHasForHimselfDoesNotAnswer) {
    nodes_.errors_of_open[first.minor] = EBUSY;
    EXPECT_EQ(way_.open(sg_handle_of(first)), delivery::no_answer);
}

TEST_F(SgTransport, TheLibrarySaysWhyACommandHadNoAnswer) {
    enclosure::bridge_access library(way_);
    const std::uint32_t device = sg_handle_of(first);
    ASSERT_EQ(library.openConnection(device), KRRAID_DONE);
    std::array<std::uint8_t, 512> buffer{};
    const auto identify = [&] { return library.krGetDiskIdentify(device, buffer.data(), 512, 0); };
    nodes_.on_command = [](sg_io_hdr&) { return EIO; };
    EXPECT_EQ(identify(), KRRAID_NO_ANSWER);
    nodes_.on_command = [](sg_io_hdr&) { return EPERM; };
    EXPECT_EQ(identify(), KRRAID_NOT_PERMITTED);
    nodes_.on_command = scripted_sg::refusing(enclosure::sense_bytes(sense::no_medium));
    EXPECT_EQ(identify(), KRRAID_NO_DISK);
    nodes_.on_command = [](sg_io_hdr& request) {
        request.resid = 1;
        return 0;
    };
    EXPECT_EQ(identify(), KRRAID_FAILED);
    nodes_.on_command = [](sg_io_hdr&) { return ENODEV; };
    EXPECT_EQ(identify(), KRRAID_GONE);
    EXPECT_EQ(library.connections(), 0U);
}

TEST_F(SgTransport, OfABridgeThatIsNotOpenTheLibrarySaysThatItIsGone) {
    enclosure::bridge_access library(way_);
    EXPECT_EQ(library.krWarmBoot(sg_handle_of(first)), KRRAID_GONE);
    EXPECT_EQ(library.closeConnection(sg_handle_of(first)), KRRAID_GONE);
}

TEST_F(SgTransport, AWriteOfWhichTheDeviceTookLessThanAllHasFailed) {
    enclosure::bridge_access library(way_);
    const std::uint32_t device = sg_handle_of(first);
    ASSERT_EQ(library.openConnection(device), KRRAID_DONE);
    const std::array<std::uint8_t, 512> sector{};
    for (const int residue : {0, 1, 512, 1 << 30, -1}) {
        nodes_.commands.clear();
        nodes_.on_command = [residue](sg_io_hdr& request) {
            request.resid = residue;
            return 0;
        };
        EXPECT_EQ(library.krSetRaidInfoFW(device, sector.data(), 512, 9, 0),
                  residue > 0 ? KRRAID_FAILED : KRRAID_DONE)
            << residue;
        EXPECT_EQ(nodes_.commands.size(), 1U);
    }
}

TEST_F(SgTransport, ASilentBridgeIsWaitedForShortlyUntilItAnswersAgain) {
    const std::uint32_t device = sg_handle_of(first);
    ASSERT_EQ(way_.open(device), delivery::answered);
    EXPECT_EQ(limit_of_a_command(device, time_over), 30U);
    EXPECT_EQ(limit_of_a_command(device, time_over), 3U);
    EXPECT_EQ(limit_of_a_command(device, 0), 3U);
    EXPECT_EQ(limit_of_a_command(device, 0), 30U);
}

TEST_F(SgTransport, ABridgeWhoseBusIsDisturbedIsWaitedForAsBefore) {
    const std::uint32_t device = sg_handle_of(first);
    ASSERT_EQ(way_.open(device), delivery::answered);
    limit_of_a_command(device, bus_reset);
    EXPECT_EQ(limit_of_a_command(device, time_over), 30U);
    limit_of_a_command(device, bus_reset);
    EXPECT_EQ(limit_of_a_command(device, 0), 3U); // it has not answered yet
}

TEST_F(SgTransport, ASilentBridgeIsWaitedForShortlyAlsoInTheScansThatFollow) {
    enclosure::bridge_access library(way_);
    const std::uint32_t device = sg_handle_of(first);
    ASSERT_EQ(library.openConnection(device), KRRAID_DONE);
    EXPECT_EQ(limit_of_a_command(device, time_over), 30U);
    ASSERT_EQ(library.closeConnection(device), KRRAID_DONE);
    listed();
    ASSERT_EQ(library.openConnection(device), KRRAID_DONE);
    EXPECT_EQ(limit_of_a_command(device, time_over), 3U);
}

TEST_F(SgTransport, ABridgeThatIsSilentWhenItIsListedIsWaitedForShortlyAfterwards) {
    nodes_.there = {first};
    nodes_.on_command = [](sg_io_hdr& request) {
        request.host_status = time_over;
        return 0;
    };
    EXPECT_EQ(listed(), handles{sg_handle_of(first)});
    ASSERT_EQ(way_.open(sg_handle_of(first)), delivery::answered);
    EXPECT_EQ(limit_of_a_command(sg_handle_of(first), 0), 3U);
}

TEST_F(SgTransport, ABridgeThatComesAgainIsWaitedForAsAnyOther) {
    const std::uint32_t device = sg_handle_of(first);
    ASSERT_EQ(way_.open(device), delivery::answered);
    limit_of_a_command(device, time_over);
    nodes_.there = {second};
    listed();
    nodes_.there = {first, second};
    EXPECT_EQ(limit_of_a_command(device, 0), 30U);
}

TEST_F(SgTransport, ConnectionsOfNodesThatWentAreClosedByTheNextListing) {
    enclosure::bridge_access library(way_);
    ASSERT_EQ(library.openConnection(sg_handle_of(first)), KRRAID_DONE);
    nodes_.there.clear();
    std::array<std::uint8_t, 2048> list{};
    std::int32_t count = -1;
    EXPECT_EQ(library.getDeviceList(list.data(), &count), KRRAID_DONE);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(library.connections(), 0U);
}

TEST_F(SgTransport, ConnectionsStayWhenTheSystemCannotBeAskedWhatIsThere) {
    enclosure::bridge_access library(way_);
    ASSERT_EQ(library.openConnection(sg_handle_of(first)), KRRAID_DONE);
    nodes_.can_be_asked = false;
    std::array<std::uint8_t, 2048> list{};
    std::int32_t count = -1;
    EXPECT_EQ(library.getDeviceList(list.data(), &count), KRRAID_DONE);
    EXPECT_EQ(library.connections(), 1U);
    EXPECT_EQ(library.openConnection(sg_handle_of(second)), KRRAID_NO_ANSWER);
    nodes_.can_be_asked = true;
    EXPECT_EQ(library.openConnection(sg_handle_of(second)), KRRAID_DONE);
}

TEST_F(SgTransport, WhatIsKnownOfABridgeStaysKnownWhenTheSystemCannotBeAsked) {
    nodes_.there = {first};
    nodes_.on_command = scripted_sg::refusing(enclosure::sense_bytes(sense::invalid_opcode));
    EXPECT_EQ(listed(), handles{});
    nodes_.can_be_asked = false;
    EXPECT_FALSE(way_.bridges().complete);
    nodes_.can_be_asked = true;
    EXPECT_EQ(listed(), handles{});
    EXPECT_EQ(nodes_.commands.size(), 1U);
}

// Another way, with one bridge that is not real.
class other_way final : public enclosure::transport {
public:
    static constexpr std::uint32_t handle = 0x4B520001;
    bool complete = true;

    enclosure::bridge_listing bridges() override { return {{handle}, complete}; }
    delivery open(std::uint32_t) override { return delivery::answered; }
    void close(std::uint32_t) override {}
    enclosure::exchange execute(std::uint32_t, enclosure::byte_view, enclosure::byte_view,
                                std::uint32_t) override {
        return {delivery::answered, enclosure::answered({42})};
    }
};

TEST_F(SgTransport, JoinedWithAnotherWayEachHandleGoesItsOwn) {
    other_way emulated;
    enclosure::joined_transport both(emulated, way_);
    EXPECT_EQ(both.bridges().handles,
              (handles{other_way::handle, sg_handle_of(first), sg_handle_of(second)}));
    EXPECT_EQ(both.open(other_way::handle), delivery::answered);
    EXPECT_EQ(nodes_.opened, 2);
    EXPECT_EQ(both.open(sg_handle_of(first)), delivery::answered);
    EXPECT_EQ(nodes_.opened, 3);
    const std::array<std::uint8_t, 16> command{};
    EXPECT_EQ(both.execute(other_way::handle, command, {}, 1).reply.data_in,
              std::vector<std::uint8_t>{42});
    EXPECT_EQ(both.execute(sg_handle_of(first), command, {}, 1).reply.data_in.size(), 1U);
    both.close(sg_handle_of(first));
    EXPECT_EQ(both.execute(sg_handle_of(first), command, {}, 1).state, delivery::gone);
}

TEST_F(SgTransport, AListWithoutTheAnswerOfOneWayIsNotComplete) {
    other_way emulated;
    emulated.complete = false;
    enclosure::joined_transport both(emulated, way_);
    EXPECT_FALSE(both.bridges().complete);
}

} // namespace
