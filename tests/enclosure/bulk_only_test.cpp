// The thirteen cases of what host and device expect of a command's data, and what breaks them off.
// Hn, Hi, Ho: the host expects no data, data in, data out; Dn, Di, Do: the device.
#include "enclosure/bulk_only.h"

#include "enclosure/vendor_commands.h"

#include "tests/enclosure/usb_builders.h"

#include <gtest/gtest.h>

namespace enclosure::usb {
namespace {

using namespace usb_builders;

// Answers as it is told, and keeps what it was sent.
class scripted_target final : public scsi_target {
public:
    scsi_reply execute(byte_view cdb, byte_view data_out, std::uint32_t) override {
        ++commands;
        last_cdb.assign(cdb.begin(), cdb.end());
        last_data.assign(data_out.begin(), data_out.end());
        return reply;
    }

    scsi_reply reply;
    int commands = 0;
    bytes last_cdb;
    bytes last_data;
};

class BulkOnly : public testing::Test {
protected:
    static constexpr std::uint32_t tag = 0x11223344;

    static bytes write_command(std::uint16_t length) {
        const vendor_cdb cdb = encode({vendor_action::write_sector, 0, true, 0, length});
        return {cdb.begin(), cdb.end()};
    }

    void command(std::uint32_t length, bool in, const bytes& cdb = inquiry) {
        const auto result = storage_.take(wrapped(tag, length, in, cdb), now_);
        ASSERT_TRUE(result);
        EXPECT_FALSE(result->stalled);
        EXPECT_EQ(result->taken, 31U);
    }

    void expect_status(std::uint32_t residue, std::uint8_t status) {
        const auto result = storage_.give(13, now_);
        ASSERT_TRUE(result);
        EXPECT_FALSE(result->stalled);
        EXPECT_EQ(result->sent, status_wrapper(tag, residue, status));
    }

    void expect_data(std::size_t room, const bytes& data) {
        const auto result = storage_.give(room, now_);
        ASSERT_TRUE(result);
        EXPECT_FALSE(result->stalled);
        EXPECT_EQ(result->sent, data);
    }

    void expect_stalled_in(std::size_t room = 512) {
        const auto result = storage_.give(room, now_);
        ASSERT_TRUE(result);
        EXPECT_TRUE(result->stalled);
        EXPECT_TRUE(result->sent.empty());
        storage_.clear_halt(pipe::in);
    }

    void expect_stalled_out() {
        const auto result = storage_.take(bytes(512), now_);
        ASSERT_TRUE(result);
        EXPECT_TRUE(result->stalled);
        EXPECT_EQ(result->taken, 0U);
        storage_.clear_halt(pipe::out);
    }

    void expect_next_command_works() {
        target_.reply = answered();
        command(0, false, {0, 0, 0, 0, 0, 0});
        expect_status(0, 0);
    }

    moment now_{0};
    scripted_target target_;
    bulk_only storage_{target_};
};

TEST_F(BulkOnly, Case1_NobodyExpectsData) {
    command(0, false, {0, 0, 0, 0, 0, 0});
    expect_status(0, 0);
    EXPECT_EQ(target_.last_cdb, (bytes{0, 0, 0, 0, 0, 0}));
    target_.reply = refused(sense::no_medium);
    command(0, true, {0, 0, 0, 0, 0, 0});
    expect_status(0, 1);
}

TEST_F(BulkOnly, Case2_TheDeviceWouldSendToAHostThatExpectsNothing) {
    target_.reply = answered(bytes(36));
    command(0, true);
    expect_status(0, 2);
}

TEST_F(BulkOnly, Case3_TheDeviceWouldTakeFromAHostThatExpectsNothing) {
    command(0, false, write_command(512));
    expect_status(0, 2);
    EXPECT_EQ(target_.commands, 0);
}

TEST_F(BulkOnly, Case4_TheDeviceHasNothingForAHostThatExpectsData) {
    target_.reply = refused(sense::invalid_opcode);
    command(36, true);
    expect_stalled_in();
    expect_status(36, 1);
    expect_next_command_works();
}

TEST_F(BulkOnly, Case5_TheDeviceHasLessThanTheHostExpects) {
    target_.reply = answered(bytes(36, 7));
    command(255, true);
    expect_data(255, bytes(36, 7));
    expect_stalled_in();
    expect_status(219, 0);
}

TEST_F(BulkOnly, Case5_WholePacketsOfLessEndInAStall) {
    target_.reply = answered(bytes(512, 7));
    command(1024, true);
    const auto result = storage_.give(1024, now_);
    ASSERT_TRUE(result);
    EXPECT_TRUE(result->stalled);
    EXPECT_EQ(result->sent, bytes(512, 7));
    EXPECT_TRUE(storage_.halted(pipe::in));
    storage_.clear_halt(pipe::in);
    expect_status(512, 0);
}

TEST_F(BulkOnly, Case5_ATransferThatIsFullIsNotStalled) {
    target_.reply = answered(bytes(512, 7));
    command(1024, true);
    expect_data(512, bytes(512, 7));
    expect_stalled_in();
    expect_status(512, 0);
}

TEST_F(BulkOnly, Case6_BothExpectTheSameIn) {
    target_.reply = answered(joined({bytes(512, 1), bytes(488, 2)}));
    command(1000, true);
    expect_data(512, bytes(512, 1));
    expect_data(512, bytes(488, 2));
    expect_status(0, 0);
}

TEST_F(BulkOnly, Case7_TheDeviceHasMoreThanTheHostExpects) {
    target_.reply = answered(bytes(36, 7));
    command(8, true);
    expect_data(8, bytes(8, 7));
    expect_status(0, 2);
}

TEST_F(BulkOnly, Case8_BothExpectToReceive) {
    command(512, true, write_command(512));
    expect_stalled_in();
    expect_status(512, 2);
    EXPECT_EQ(target_.commands, 0);
}

TEST_F(BulkOnly, Case9_TheDeviceTakesNothingFromAHostThatSends) {
    target_.reply = refused(sense::invalid_opcode);
    command(512, false, {0xFF});
    expect_stalled_out();
    expect_status(512, 1);
    EXPECT_TRUE(target_.last_data.empty());
    expect_next_command_works();
}

TEST_F(BulkOnly, Case10_BothExpectToSend) {
    target_.reply = answered(bytes(36));
    command(36, false);
    expect_stalled_out();
    expect_status(36, 2);
}

TEST_F(BulkOnly, Case11_TheDeviceTakesLessThanTheHostSends) {
    command(1024, false, write_command(512));
    const auto result = storage_.take(bytes(1024, 9), now_);
    ASSERT_TRUE(result);
    EXPECT_TRUE(result->stalled);
    EXPECT_EQ(result->taken, 512U);
    storage_.clear_halt(pipe::out);
    expect_status(512, 0);
    EXPECT_EQ(target_.last_data, bytes(512, 9));
}

TEST_F(BulkOnly, Case11_InTransfersOfTheRightSizeTheRestIsStalled) {
    command(1024, false, write_command(512));
    const auto result = storage_.take(bytes(512, 9), now_);
    ASSERT_TRUE(result);
    EXPECT_FALSE(result->stalled);
    EXPECT_EQ(result->taken, 512U);
    expect_stalled_out();
    expect_status(512, 0);
}

TEST_F(BulkOnly, Case12_BothExpectTheSameOut) {
    command(1024, false, write_command(1024));
    for (const std::uint8_t content : bytes{1, 2}) {
        const auto result = storage_.take(bytes(512, content), now_);
        ASSERT_TRUE(result);
        EXPECT_FALSE(result->stalled);
        EXPECT_EQ(result->taken, 512U);
    }
    expect_status(0, 0);
    EXPECT_EQ(target_.last_data, joined({bytes(512, 1), bytes(512, 2)}));
}

TEST_F(BulkOnly, Case13_TheDeviceWouldTakeMoreThanTheHostSends) {
    command(511, false, write_command(512));
    expect_stalled_out();
    expect_status(511, 2);
    EXPECT_EQ(target_.commands, 0);
}

TEST_F(BulkOnly, AWriteThatIsRefusedTookItsData) {
    target_.reply = refused(sense::write_failed);
    command(512, false, write_command(512));
    storage_.take(bytes(512), now_);
    expect_status(0, 1);
}

TEST_F(BulkOnly, WritesSayHowMuchTheyTake) {
    EXPECT_EQ(outgoing_bytes(bytes{0x2A, 0, 0, 0, 0, 0, 0, 0x01, 0x02, 0}), 0x102U * 512);
    EXPECT_EQ(outgoing_bytes(bytes{0x8A, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0, 0, 1, 0, 0}),
              0xFF000001ULL * 512);
    EXPECT_EQ(outgoing_bytes(write_command(512)), 512U);
    EXPECT_EQ(outgoing_bytes(inquiry), 0U);
    EXPECT_EQ(outgoing_bytes(bytes{0x2A, 0, 0}), 0U);
    EXPECT_EQ(outgoing_bytes(bytes{0xC4, 2}), 0U);
}

TEST_F(BulkOnly, MoreThanOneMebibyteIsNotMoved) {
    command((1U << 20) + 1, true);
    expect_stalled_in();
    expect_status((1U << 20) + 1, 2);
    EXPECT_EQ(target_.commands, 0);
}

TEST_F(BulkOnly, TheStatusWaitsForTheData) {
    target_.reply = answered(bytes(36));
    EXPECT_EQ(storage_.give(13, now_), std::nullopt) << "nothing was asked yet";
    command(36, true);
    EXPECT_EQ(storage_.take(wrapped(2, 0, false, inquiry), now_), std::nullopt)
        << "one command at a time";
    EXPECT_EQ(storage_.give(0, now_)->sent, bytes());
    expect_data(36, bytes(36));
    expect_status(0, 0);
}

TEST_F(BulkOnly, AnAnswerThatTakesTimeIsAwaited) {
    target_.reply = answered(bytes(36, 7));
    target_.reply.delay = std::chrono::seconds(2);
    command(36, true);
    EXPECT_EQ(storage_.due(), std::chrono::seconds(2));
    EXPECT_EQ(storage_.give(36, now_), std::nullopt);
    EXPECT_FALSE(storage_.has_answer());
    now_ = std::chrono::seconds(2);
    storage_.advance(now_);
    EXPECT_TRUE(storage_.has_answer());
    EXPECT_EQ(storage_.due(), std::nullopt);
    expect_data(36, bytes(36, 7));
    expect_status(0, 0);
}

TEST_F(BulkOnly, WhatIsNeverAnsweredEndsWithAReset) {
    target_.reply.unanswered = true;
    command(36, true);
    now_ = std::chrono::hours(1);
    EXPECT_EQ(storage_.give(36, now_), std::nullopt);
    EXPECT_EQ(storage_.due(), std::nullopt);
    storage_.reset();
    expect_next_command_works();
}

struct bad_wrapper {
    const char* what;
    bytes packet;
};

class BadWrapper : public BulkOnly, public testing::WithParamInterface<bad_wrapper> {};

TEST_P(BadWrapper, StallsBothPipesUntilTheReset) {
    storage_.take(GetParam().packet, now_);
    for (const pipe which : {pipe::in, pipe::out}) {
        EXPECT_TRUE(storage_.halted(which));
        storage_.clear_halt(which);
        EXPECT_TRUE(storage_.halted(which)) << "a cleared halt comes back";
    }
    EXPECT_EQ(target_.commands, 0);
    storage_.reset();
    EXPECT_TRUE(storage_.halted(pipe::in)) << "the reset leaves halts";
    storage_.clear_halt(pipe::in);
    storage_.clear_halt(pipe::out);
    expect_next_command_works();
}

bytes changed(std::size_t at, std::uint8_t value) {
    bytes packet = wrapped(1, 36, true, inquiry);
    packet.at(at) = value;
    return packet;
}

INSTANTIATE_TEST_SUITE_P(
    Each, BadWrapper,
    testing::Values(bad_wrapper{"Signature", changed(0, 'X')},
                    bad_wrapper{"Flags", changed(12, 0x81)}, bad_wrapper{"Unit", changed(13, 1)},
                    bad_wrapper{"UnitHigh", changed(13, 0x10)},
                    bad_wrapper{"NoCommand", changed(14, 0)},
                    bad_wrapper{"LongCommand", changed(14, 17)}, bad_wrapper{"Short", bytes(30)},
                    bad_wrapper{"Empty", bytes()},
                    bad_wrapper{"Long", joined({wrapped(1, 36, true, inquiry), bytes(1)})}),
    [](const auto& one) { return std::string(one.param.what); });

TEST_F(BulkOnly, AResetBreaksACommandOff) {
    command(1024, false, write_command(1024));
    storage_.take(bytes(512), now_);
    storage_.reset();
    EXPECT_EQ(target_.commands, 0);
    expect_next_command_works();
}

TEST_F(BulkOnly, AChosenConfigurationBeginsAnew) {
    storage_.take(bytes(31), now_);
    storage_.begin_anew();
    EXPECT_FALSE(storage_.halted(pipe::in));
    EXPECT_FALSE(storage_.halted(pipe::out));
    expect_next_command_works();
}

TEST_F(BulkOnly, AHaltOfTheHostsHoldsUntilItIsCleared) {
    storage_.halt(pipe::out);
    expect_stalled_out();
    expect_next_command_works();
}

} // namespace
} // namespace enclosure::usb
