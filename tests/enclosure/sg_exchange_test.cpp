// Commands through a SCSI generic node, as the kernel takes and answers them.
#include "enclosure/sg_exchange.h"

#include "tests/enclosure/scripted_sg.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace {

using enclosure::byte_view;
using enclosure::delivery;
using enclosure::exchange;
using enclosure::scsi_status;
namespace sense = enclosure::sense;

constexpr std::array<std::uint8_t, 16> some_command{0xC4, 0x03};

// Statuses of the kernel's host adapter.
constexpr unsigned short time_over = 0x03;
constexpr unsigned short transport_error = 0x07;
constexpr unsigned short bus_reset = 0x08;

class SgExchange : public testing::Test {
protected:
    exchange made(byte_view data_out = {}, std::uint32_t allocation = 512) {
        return enclosure::sg_exchange(nodes_, node_, some_command, data_out, allocation);
    }

    // How often a command is made whose way is disturbed again and again, or whose time is over.
    std::size_t attempts(unsigned short host_status, byte_view data_out, std::uint32_t allocation) {
        nodes_.commands.clear();
        nodes_.on_command = [host_status](sg_io_hdr& request) {
            request.host_status = host_status;
            return 0;
        };
        made(data_out, allocation);
        return nodes_.commands.size();
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
    EXPECT_EQ(without_answer(0, time_over), delivery::no_answer);
    EXPECT_EQ(without_answer(0, 0x05), delivery::no_answer); // aborted when its time was over
    EXPECT_EQ(without_answer(0, 0, 0x06), delivery::no_answer);
    EXPECT_EQ(without_answer(0, 0, 0x16), delivery::no_answer); // with a suggestion
}

TEST_F(SgExchange, ADisturbedBusIsNoSilenceOfTheDevice) {
    EXPECT_EQ(without_answer(0, transport_error), delivery::disturbed);
    EXPECT_EQ(without_answer(0, bus_reset), delivery::disturbed);
    EXPECT_EQ(without_answer(EIO, 0), delivery::disturbed);
    EXPECT_EQ(without_answer(ENOMEM, 0), delivery::disturbed);
}

TEST_F(SgExchange, AReadingThatTheBusLostIsMadeOnceMoreWhenTheBusHasSettled) {
    bool reset = true;
    nodes_.on_command = [&reset](sg_io_hdr& request) {
        request.host_status = std::exchange(reset, false) ? bus_reset : 0;
        return 0;
    };
    EXPECT_EQ(made().state, delivery::answered);
    EXPECT_EQ(nodes_.commands.size(), 2U);
    EXPECT_EQ(nodes_.pauses, 1);
}

TEST_F(SgExchange, NothingElseThatMayHaveBeenCarriedOutIsMadeAgain) {
    const std::vector<std::uint8_t> sector(512);
    for (const unsigned short status : {transport_error, bus_reset}) {
        EXPECT_EQ(attempts(status, {}, 512), 2U);
        EXPECT_EQ(attempts(status, sector, 0), 1U); // a writing
        EXPECT_EQ(attempts(status, {}, 0), 1U);     // a flush, a restart
    }
    EXPECT_EQ(attempts(time_over, {}, 512), 1U);
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

TEST_F(SgExchange, ADeviceThatWasSilentHasItsFullTimeOnceItSaysThatItIsBecomingReady) {
    std::vector<unsigned> limits; // seconds
    const auto becoming_ready = scripted_sg::refusing(enclosure::sense_bytes({0x02, 0x04, 0x01}));
    nodes_.on_command = [&](sg_io_hdr& request) {
        limits.push_back(request.timeout / 1000);
        return becoming_ready(request);
    };
    enclosure::sg_exchange(nodes_, node_, some_command, {}, 512, enclosure::sg_short_limit);
    std::vector<unsigned> expected(121, 30U);
    expected.front() = 3;
    EXPECT_EQ(limits, expected);
}

TEST_F(SgExchange, SenseThatIsAnnouncedByTheDriverIsAnAnswer) {
    EXPECT_EQ(without_answer(0, 0, 0x08), delivery::answered);
}

} // namespace
