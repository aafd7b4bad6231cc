// Commands through a SCSI generic node, as the kernel takes and answers them.
#include "enclosure/sg_exchange.h"

#include "tests/enclosure/scripted_sg.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace {

using enclosure::byte_view;
using enclosure::delivery;
using enclosure::exchange;
using enclosure::scsi_status;
namespace sense = enclosure::sense;

constexpr std::array<std::uint8_t, 16> some_command{0xC4, 0x03};

class SgExchange : public testing::Test {
protected:
    exchange made(byte_view data_out = {}, std::uint32_t allocation = 512) {
        return enclosure::sg_exchange(nodes_, node_, some_command, data_out, allocation);
    }

    delivery without_answer(int error, unsigned short host, unsigned short driver = 0) {
        nodes_.on_command = [=](sg_io_hdr& request) {
            request.host_status = host;
            request.driver_status = driver;
            return error;
        };
        return made().state;
    }

    scripted_sg nodes_;
    enclosure::file_handle node_{nodes_.open({}).file};
};

TEST_F(SgExchange, TheRequestIsWhatTheKernelWants) {
    nodes_.on_command = [](sg_io_hdr& request) {
        EXPECT_EQ(request.interface_id, 'S');
        EXPECT_EQ(request.dxfer_direction, SG_DXFER_FROM_DEV);
        EXPECT_EQ(request.dxfer_len, 512U);
        EXPECT_EQ(request.cmd_len, 16);
        EXPECT_EQ(request.iovec_count, 0);
        EXPECT_EQ(request.flags, 0U);
        EXPECT_EQ(request.timeout, 30'000U); // milliseconds
        EXPECT_GE(request.mx_sb_len, 18);
        return 0;
    };
    made();
    ASSERT_EQ(nodes_.commands.size(), 1U);
    EXPECT_TRUE(std::equal(some_command.begin(), some_command.end(), nodes_.commands[0].begin()));
}

TEST_F(SgExchange, DataGoOutAsTheyAre) {
    const std::vector<std::uint8_t> sent{1, 2, 3};
    nodes_.on_command = [&sent](sg_io_hdr& request) {
        EXPECT_EQ(request.dxfer_direction, SG_DXFER_TO_DEV);
        const auto* data = static_cast<const std::uint8_t*>(request.dxferp);
        EXPECT_EQ(std::vector<std::uint8_t>(data, data + request.dxfer_len), sent);
        return 0;
    };
    EXPECT_EQ(made(sent, 0).reply.data_in.size(), 0U);
}

TEST_F(SgExchange, ACommandWithoutDataHasNoDirection) {
    nodes_.on_command = [](sg_io_hdr& request) {
        EXPECT_EQ(request.dxfer_direction, SG_DXFER_NONE);
        EXPECT_EQ(request.dxfer_len, 0U);
        return 0;
    };
    EXPECT_EQ(made({}, 0).state, delivery::answered);
}

TEST_F(SgExchange, OnlyWhatArrivedIsAnswered) {
    nodes_.on_command = [](sg_io_hdr& request) {
        std::fill_n(static_cast<std::uint8_t*>(request.dxferp), 12, std::uint8_t{0xAB});
        request.resid = 500;
        return 0;
    };
    EXPECT_EQ(made().reply.data_in, std::vector<std::uint8_t>(12, 0xAB));
}

TEST_F(SgExchange, AnAbsurdResidueIsSafe) {
    for (const int residue : {513, 1 << 30, -1, -(1 << 30)}) {
        nodes_.on_command = [residue](sg_io_hdr& request) {
            request.resid = residue;
            return 0;
        };
        EXPECT_EQ(made().reply.data_in.size(), residue < 0 ? 512U : 0U) << residue;
    }
}

TEST_F(SgExchange, ARefusalComesWithItsSense) {
    nodes_.on_command = scripted_sg::refusing(enclosure::sense_bytes(sense::no_medium));
    const exchange refused = made();
    EXPECT_EQ(refused.state, delivery::answered);
    EXPECT_EQ(refused.reply.status, scsi_status::check_condition);
    EXPECT_EQ(enclosure::decode_sense(refused.reply.sense), sense::no_medium);
}

TEST_F(SgExchange, SenseOfMoreThanItsRoomIsCut) {
    nodes_.on_command = [](sg_io_hdr& request) {
        request.status = 0x02;
        request.sb_len_wr = 255;
        return 0;
    };
    EXPECT_EQ(made().reply.sense.size(), enclosure::longest_sense);
}

TEST_F(SgExchange, ADeviceThatLeftIsGone) {
    EXPECT_EQ(without_answer(ENODEV, 0), delivery::gone);
    EXPECT_EQ(without_answer(ENXIO, 0), delivery::gone);
    EXPECT_EQ(without_answer(0, 0x01), delivery::gone); // no connection
}

TEST_F(SgExchange, OneThatIsSilentIsNotGone) {
    EXPECT_EQ(without_answer(0, 0x03), delivery::no_answer); // time over
    EXPECT_EQ(without_answer(0, 0x07), delivery::no_answer); // error of the transport
    EXPECT_EQ(without_answer(0, 0x08), delivery::no_answer); // reset
    EXPECT_EQ(without_answer(0, 0, 0x06), delivery::no_answer);
    EXPECT_EQ(without_answer(0, 0, 0x16), delivery::no_answer); // with a suggestion
    EXPECT_EQ(without_answer(EIO, 0), delivery::no_answer);
    EXPECT_EQ(without_answer(ENOMEM, 0), delivery::no_answer);
}

TEST_F(SgExchange, OneThatIsNotOursToUseIsToldApart) {
    EXPECT_EQ(without_answer(EPERM, 0), delivery::not_permitted);
    EXPECT_EQ(without_answer(EACCES, 0), delivery::not_permitted);
}

TEST_F(SgExchange, WhatADeviceHasToTellFirstIsHeardAndTheCommandMadeAgain) {
    int news = 2;
    nodes_.on_command = [&news](sg_io_hdr& request) {
        return news-- > 0
                   ? scripted_sg::refusing(enclosure::sense_bytes({0x06, 0x29, 0x00}))(request)
                   : 0;
    };
    EXPECT_EQ(made().reply.status, scsi_status::good);
    EXPECT_EQ(nodes_.commands.size(), 3U);
    EXPECT_EQ(nodes_.pauses, 0);
}

TEST_F(SgExchange, ADeviceThatHasNewsForEverIsNotListenedToForEver) {
    nodes_.on_command = scripted_sg::refusing(enclosure::sense_bytes({0x06, 0x29, 0x00}));
    EXPECT_EQ(made().reply.status, scsi_status::check_condition);
    EXPECT_EQ(nodes_.commands.size(), 9U);
}

TEST_F(SgExchange, ADeviceThatIsBecomingReadyIsWaitedFor) {
    nodes_.on_command = [this](sg_io_hdr& request) {
        return nodes_.pauses < 5
                   ? scripted_sg::refusing(enclosure::sense_bytes({0x02, 0x04, 0x01}))(request)
                   : 0;
    };
    EXPECT_EQ(made().reply.status, scsi_status::good);
    EXPECT_EQ(nodes_.pauses, 5);
}

TEST_F(SgExchange, ADeviceThatNeverBecomesReadyIsWaitedForHalfAMinute) {
    nodes_.on_command = scripted_sg::refusing(enclosure::sense_bytes({0x02, 0x04, 0x01}));
    EXPECT_EQ(made().reply.status, scsi_status::check_condition);
    EXPECT_EQ(nodes_.pauses, 120); // of a quarter of a second
}

// Spinning up begins with a reset that is news, and ends with news of what has changed.
TEST_F(SgExchange, NewsBeforeAndAfterBecomingReadyIsHeardAndTheCommandMadeAgain) {
    const std::vector<enclosure::sense_code> told{
        {0x06, 0x29, 0x00}, {0x02, 0x04, 0x01}, {0x06, 0x2A, 0x01}, {0x02, 0x04, 0x01},
        {0x02, 0x04, 0x01}, {0x06, 0x28, 0x00}, {0x06, 0x29, 0x00}};
    std::size_t next = 0;
    nodes_.on_command = [&](sg_io_hdr& request) {
        return next < told.size()
                   ? scripted_sg::refusing(enclosure::sense_bytes(told[next++]))(request)
                   : 0;
    };
    EXPECT_EQ(made().reply.status, scsi_status::good);
    EXPECT_EQ(nodes_.commands.size(), told.size() + 1);
    EXPECT_EQ(nodes_.pauses, 3);
}

TEST_F(SgExchange, SenseThatIsAnnouncedByTheDriverIsAnAnswer) {
    EXPECT_EQ(without_answer(0, 0, 0x08), delivery::answered);
}

} // namespace
