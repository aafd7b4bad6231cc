#include "enclosure/chip.h"

#include "enclosure/numbers.h"
#include "enclosure/scenario.h"

#include "tests/enclosure/builders.h"
#include "tests/enclosure/temporary_folder.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace enclosure {
namespace {

constexpr std::uint64_t size_a = 400'000;
constexpr std::uint64_t size_b = 300'000;

using bytes = std::vector<std::uint8_t>;

class Chip : public testing::Test {
protected:
    Chip() : chip_(bays_, faults_, "Kestrel Duo") {}

    void insert(int port, const std::string& name, const identify_block& identity) {
        bays_.insert(port, std::make_shared<disk>(
                               disk::create(name, identity, folder_.path() / (name + ".img"))));
    }

    void insert_pair() {
        insert(0, "a", build_identify(label_of(size_a, "serial-a")));
        insert(1, "b", build_identify(label_of(size_b, "serial-b")));
    }

    void power_on(scenario state) {
        insert_pair();
        write_records(state, *bays_.at(0), *bays_.at(1));
        chip_.power_on(moment{0});
    }

    scsi_reply send(std::initializer_list<std::uint8_t> cdb, const bytes& out = {},
                    std::uint32_t allocation = 65536) {
        return chip_.execute(bytes(cdb), out, allocation);
    }

    scsi_reply send(const vendor_command& command, const bytes& out = {}) {
        return chip_.execute(encode(command), out, 65536);
    }

    static sense_code sense_of(const scsi_reply& reply) {
        EXPECT_EQ(reply.status, scsi_status::check_condition);
        EXPECT_EQ(reply.sense.size(), sense_size);
        if (reply.sense.size() != sense_size) {
            return {};
        }
        EXPECT_EQ(reply.sense[0], 0x70);
        return {reply.sense[2], reply.sense[12], reply.sense[13]};
    }

    std::uint64_t capacity() {
        const scsi_reply reply = send({0x9E, 0x10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 32, 0, 0});
        EXPECT_EQ(reply.status, scsi_status::good);
        return reply.data_in.size() == 32 ? get_be(reply.data_in.data(), 8) + 1 : 0;
    }

    temporary_folder folder_;
    bays bays_;
    fault_stack faults_{bays_};
    chip chip_;
};

TEST_F(Chip, InquiryTextsSayEmulated) {
    const scsi_reply reply = send({0x12, 0, 0, 0, 36, 0});
    ASSERT_EQ(reply.status, scsi_status::good);
    ASSERT_EQ(reply.data_in.size(), 36U);
    const std::string text(reply.data_in.begin() + 8, reply.data_in.end());
    EXPECT_EQ(text, "Emulated Kestrel Duo    1.0 ");
}

TEST_F(Chip, InquiryCutsItsAnswerToTheAllocation) {
    EXPECT_EQ(send({0x12, 0, 0, 0, 5, 0}).data_in.size(), 5U);
    EXPECT_EQ(send({0x12, 0, 0, 0, 36, 0}, {}, 7).data_in.size(), 7U);
}

TEST_F(Chip, ProductDataPagesAreRefused) {
    EXPECT_EQ(sense_of(send({0x12, 1, 0x80, 0, 36, 0})), sense::invalid_field);
}

TEST_F(Chip, AnEmptyEnclosureIsNotReady) {
    chip_.power_on(moment{0});
    EXPECT_EQ(sense_of(send({0x00, 0, 0, 0, 0, 0})), sense::no_medium);
    EXPECT_EQ(sense_of(send({0x25, 0, 0, 0, 0, 0, 0, 0, 0, 0})), sense::no_medium);
}

TEST_F(Chip, RequestSenseRepeatsTheLastRefusalOnce) {
    send({0xFF});
    const scsi_reply first = send({0x03, 0, 0, 0, 18, 0});
    ASSERT_EQ(first.data_in.size(), 18U);
    EXPECT_EQ(first.data_in[2], 0x05);
    EXPECT_EQ(first.data_in[12], 0x20);
    EXPECT_EQ(send({0x03, 0, 0, 0, 18, 0}).data_in[2], 0x00);
}

TEST_F(Chip, PlainDisksPresentTheFirstOne) {
    power_on(scenario::unconfigured);
    EXPECT_EQ(capacity(), size_a);
    EXPECT_EQ(chip_.presented().state, volume_state::plain);
}

TEST_F(Chip, AStripePresentsBothDisks) {
    power_on(scenario::raid0);
    EXPECT_EQ(capacity(), 2 * size_b - 32);
}

TEST_F(Chip, ASpanPresentsBothDisks) {
    power_on(scenario::span);
    EXPECT_EQ(capacity(), size_a + size_b - 65568);
}

TEST_F(Chip, AMirrorPresentsOneDisk) {
    power_on(scenario::raid1);
    EXPECT_EQ(capacity(), size_b - 16);
    EXPECT_EQ(chip_.presented(), (volume{array_kind::mirror, volume_state::in_order, size_b - 16}));
    EXPECT_EQ(chip_.copy().progress(), std::nullopt);
}

TEST_F(Chip, DivergedHalvesAreNotCopied) {
    power_on(scenario::diverged);
    EXPECT_EQ(chip_.presented().state, volume_state::diverged);
    EXPECT_FALSE(chip_.copy().running());
}

TEST_F(Chip, AStripeWithAnotherDiskIsNotReady) {
    insert_pair();
    write_records(scenario::raid0, *bays_.at(0), *bays_.at(1));
    bays_.pull(1);
    insert(1, "c", build_identify(label_of(size_b, "serial-c")));
    chip_.power_on(moment{0});
    EXPECT_EQ(chip_.presented().state, volume_state::broken);
    EXPECT_EQ(sense_of(send({0x00, 0, 0, 0, 0, 0})), sense::not_ready);
}

TEST_F(Chip, OneMarkStartsACopyFromTheMarkedDisk) {
    power_on(scenario::rebuild);
    ASSERT_TRUE(chip_.copy().running());
    EXPECT_EQ(chip_.copy().progress(), (copy_progress{0, size_b - 16, 0}));
}

TEST_F(Chip, TwoMarksStartNoCopy) {
    insert_pair();
    write_records(scenario::raid1, *bays_.at(0), *bays_.at(1));
    for (const int port : {0, 1}) {
        disk& which = *bays_.at(port);
        sector_data sector{};
        ASSERT_TRUE(which.image().read(which.sectors() - 15, sector));
        sector[4] = 0x80;
        ASSERT_TRUE(which.image().write(which.sectors() - 15, sector));
    }
    chip_.power_on(moment{0});
    EXPECT_FALSE(chip_.copy().running());
}

TEST_F(Chip, PresenceRegistersAgreeWithIdentify) {
    insert(1, "b", build_identify(label_of(size_b)));
    chip_.power_on(moment{0});
    for (const int port : {0, 1}) {
        const auto at = static_cast<std::uint8_t>(port);
        const scsi_reply state = send({vendor_action::read_register, 0, false,
                                       port == 0 ? presence_register_0 : presence_register_1, 4});
        const scsi_reply identity = send({vendor_action::identify, at, false, 0, 512});
        ASSERT_EQ(state.data_in.size(), 4U);
        EXPECT_EQ(state.data_in[0] != 0, identity.status == scsi_status::good);
    }
}

TEST_F(Chip, ABlockWithoutSignatureIsServedAndNotCounted) {
    identify_block block = build_identify(label_of(size_a));
    block[510] = 0;
    insert(0, "a", block);
    chip_.power_on(moment{0});
    const scsi_reply identity = send({vendor_action::identify, 0, false, 0, 512});
    EXPECT_EQ(identity.data_in, bytes(block.begin(), block.end()));
    EXPECT_EQ(send({vendor_action::read_register, 0, false, presence_register_0, 1}).data_in[0], 0);
}

TEST_F(Chip, OtherRegistersAreRefused) {
    EXPECT_EQ(sense_of(send({vendor_action::read_register, 0, false, 0x7096, 4})),
              sense::invalid_field);
}

TEST_F(Chip, LongAndEmptyRegisterReadsAreRefused) {
    EXPECT_EQ(sense_of(send({vendor_action::read_register, 0, false, presence_register_0, 5})),
              sense::invalid_field);
    EXPECT_EQ(sense_of(send({vendor_action::read_register, 0, false, presence_register_0, 0})),
              sense::invalid_field);
}

TEST_F(Chip, ASectorIsRefusedBeyondTheDiskAndWithoutADisk) {
    insert(0, "a", build_identify(label_of(size_a)));
    chip_.power_on(moment{0});
    EXPECT_EQ(sense_of(send({vendor_action::read_sector, 0, true, size_a, 512})),
              sense::lba_out_of_range);
    EXPECT_EQ(sense_of(send({vendor_action::read_sector, 0, true, 0xFFFFFFFFFFFFFFF1U, 512})),
              sense::lba_out_of_range);
    EXPECT_EQ(sense_of(send({vendor_action::read_sector, 1, true, 0, 512})), sense::no_medium);
}

TEST_F(Chip, TwentyEightBitsReachNoFurther) {
    insert(0, "a", build_identify(label_of(600'000'000)));
    chip_.power_on(moment{0});
    EXPECT_EQ(send({vendor_action::read_sector, 0, false, (1U << 28) - 1, 512}).status,
              scsi_status::good);
    EXPECT_EQ(sense_of(send({vendor_action::read_sector, 0, false, 1U << 28, 512})),
              sense::lba_out_of_range);
    EXPECT_EQ(send({vendor_action::read_sector, 0, true, 1U << 28, 512}).status, scsi_status::good);
}

TEST_F(Chip, AWriteNeedsItsWholeSector) {
    insert(0, "a", build_identify(label_of(size_a)));
    chip_.power_on(moment{0});
    EXPECT_EQ(sense_of(send({vendor_action::write_sector, 0, true, 0, 512}, bytes(511))),
              sense::invalid_field);
    EXPECT_EQ(sense_of(send({vendor_action::write_sector, 0, true, 0, 511}, bytes(511))),
              sense::invalid_field);
    EXPECT_EQ(send({vendor_action::write_sector, 0, true, 0, 512}, bytes(512, 7)).status,
              scsi_status::good);
    EXPECT_EQ(send({vendor_action::read_sector, 0, true, 0, 512}).data_in, bytes(512, 7));
}

TEST_F(Chip, AnIdleChipReportsNothingOfNothing) {
    power_on(scenario::raid1);
    EXPECT_EQ(send({vendor_action::rebuild_status, 0, false, 0, 12}).data_in, bytes(12));
}

TEST_F(Chip, AWarmBootAsksForARestartOnce) {
    EXPECT_FALSE(chip_.take_restart_request());
    EXPECT_EQ(send({vendor_action::warm_boot, 0, false, 0, 0}).status, scsi_status::good);
    EXPECT_TRUE(chip_.take_restart_request());
    EXPECT_FALSE(chip_.take_restart_request());
}

TEST_F(Chip, ACommandOfTheWrongLengthIsRefused) {
    EXPECT_EQ(sense_of(send({})), sense::invalid_opcode);
    EXPECT_EQ(sense_of(send({0x12, 0, 0})), sense::invalid_field);
    EXPECT_EQ(sense_of(send({vendor_opcode, 1, 0, 0, 0, 0})), sense::invalid_field);
    EXPECT_EQ(sense_of(chip_.execute(bytes(17), {}, 0)), sense::invalid_field);
}

TEST_F(Chip, UnknownActionsPortsAndReservedBytesAreRefused) {
    vendor_cdb cdb = encode({vendor_action::flush, 2, false, 0, 0});
    EXPECT_EQ(sense_of(chip_.execute(cdb, {}, 0)), sense::invalid_field);
    cdb = encode({vendor_action::warm_boot, 0, false, 0, 0});
    cdb[14] = 1;
    EXPECT_EQ(sense_of(chip_.execute(cdb, {}, 0)), sense::invalid_field);
    cdb = encode({vendor_action::warm_boot, 0, false, 0, 0});
    cdb[1] = 0x77;
    EXPECT_EQ(sense_of(chip_.execute(cdb, {}, 0)), sense::invalid_field);
    EXPECT_FALSE(chip_.take_restart_request());
}

} // namespace
} // namespace enclosure
