// The commands by which a host reads and writes the volume, and asks about it.
#include "tests/enclosure/volume_host.h"

#include <array>

namespace enclosure {
namespace {

constexpr std::uint64_t sectors = 10'000; // of either disk

class VolumeCommands : public testing::Test {
protected:
    void start(scenario state) { host_.start(state, sectors, sectors); }

    volume_host host_;
};

TEST_F(VolumeCommands, ReadWhatWasWritten) {
    start(scenario::unconfigured);
    const bytes data = sectors_from(0, 5);
    ASSERT_EQ(host_.send(block_cdb(op_write_10, 40, 5), data).status, scsi_status::good);
    EXPECT_TRUE(host_.send(block_cdb(op_read_10, 40, 5)).data_in == data);
    EXPECT_TRUE(host_.send(block_cdb(op_read_16, 40, 5)).data_in == data);
    EXPECT_EQ(host_.on_disk(0, 40, 5), data);
    EXPECT_EQ(host_.on_disk(1, 40, 5), zeros(5));
}

TEST_F(VolumeCommands, ReachTheLastSectorAndNoFurther) {
    start(scenario::unconfigured);
    host_.expect_written(sectors - 1, sectors_from(0, 1));
    host_.expect_reads(sectors - 1, sectors_from(0, 1));
    for (const std::uint8_t code : {op_read_10, op_write_10, op_verify_10}) {
        EXPECT_EQ(sense_of(host_.send(block_cdb(code, sectors - 1, 2), bytes(1024))),
                  sense::lba_out_of_range);
        EXPECT_EQ(sense_of(host_.send(block_cdb(code, 0xFFFFFFFF, 0xFFFF), bytes(1024))),
                  sense::lba_out_of_range);
    }
    for (const std::uint8_t code : {op_read_16, op_write_16}) {
        EXPECT_EQ(sense_of(host_.send(block_cdb(code, sectors, 1), bytes(512))),
                  sense::lba_out_of_range);
        EXPECT_EQ(sense_of(host_.send(block_cdb(code, ~0ULL, 2), bytes(1024))),
                  sense::lba_out_of_range);
    }
    EXPECT_EQ(host_.on_disk(0, sectors - 1, 1), sectors_from(0, 1));
}

TEST_F(VolumeCommands, ReachBeyond32Bits) {
    constexpr std::uint64_t far = 1ULL << 32;
    host_.start(scenario::unconfigured, far + 1000, 1000);
    host_.expect_written(far + 7, sectors_from(1, 2));
    host_.expect_reads(far + 7, sectors_from(1, 2));
    EXPECT_EQ(host_.on_disk(0, far + 7, 2), sectors_from(1, 2));
    EXPECT_EQ(host_.on_disk(0, 7, 2), bytes(1024));
}

TEST_F(VolumeCommands, OfNoSectorsDoNothing) {
    start(scenario::raid1);
    const std::uint64_t end = host_.capacity();
    for (const std::uint8_t code : {op_read_10, op_write_10, op_verify_10}) {
        const scsi_reply reply = host_.send(block_cdb(code, end, 0), bytes(512, 9));
        EXPECT_EQ(reply.status, scsi_status::good);
        EXPECT_TRUE(reply.data_in.empty());
    }
    EXPECT_EQ(host_.on_disk(0, 0, sectors - 16), zeros(sectors - 16));
}

TEST_F(VolumeCommands, MoveAtMost4MiB) {
    start(scenario::unconfigured);
    const bytes data = sectors_from(0, 8192);
    host_.expect_written(0, data);
    host_.expect_reads(0, data);
    EXPECT_EQ(sense_of(host_.read(0, 8193)), sense::invalid_field);
    EXPECT_EQ(sense_of(host_.write(0, zeros(8193))), sense::invalid_field);
    host_.expect_reads(0, data);
}

TEST_F(VolumeCommands, WriteNothingWithoutAllOfTheirData) {
    start(scenario::unconfigured);
    EXPECT_EQ(sense_of(host_.send(block_cdb(op_write_10, 0, 2), bytes(1023, 9))),
              sense::invalid_field);
    EXPECT_EQ(host_.on_disk(0, 0, 2), bytes(1024));
}

TEST_F(VolumeCommands, WriteNoMoreThanTheyNamed) {
    start(scenario::unconfigured);
    ASSERT_EQ(host_.send(block_cdb(op_write_10, 0, 1), bytes(1024, 9)).status, scsi_status::good);
    EXPECT_EQ(host_.on_disk(0, 0, 1), bytes(512, 9));
    EXPECT_EQ(host_.on_disk(0, 1, 1), bytes(512));
}

TEST_F(VolumeCommands, CutWhatIsReadToTheAllocation) {
    start(scenario::unconfigured);
    EXPECT_EQ(host_.send(block_cdb(op_read_10, 0, 2), {}, 700).data_in.size(), 700U);
}

TEST_F(VolumeCommands, AskingForProtectionInformationAreRefused) {
    start(scenario::unconfigured);
    for (const std::uint8_t code : {op_read_10, op_write_10, op_verify_10}) {
        EXPECT_EQ(sense_of(host_.send(block_cdb(code, 0, 1, 0x20), bytes(512))),
                  sense::invalid_field);
    }
}

TEST_F(VolumeCommands, WrittenPastTheCacheAreLasting) {
    start(scenario::unconfigured);
    host_.add_fault(fault_kind::fail, io_kind::flush, 0, 0, 0);
    EXPECT_EQ(host_.write(0, bytes(512, 1)).status, scsi_status::good);
    EXPECT_EQ(host_.write(0, bytes(512, 1), 0x10).status, scsi_status::good);
    EXPECT_EQ(sense_of(host_.write(0, bytes(512, 1), 0x08)), sense::write_failed);
    host_.clear_faults();
    EXPECT_EQ(host_.write(0, bytes(512, 1), 0x18).status, scsi_status::good);
}

TEST_F(VolumeCommands, SynchronizeInBothLengths) {
    start(scenario::unconfigured);
    EXPECT_EQ(host_.send(block_cdb(op_synchronize_cache_10, 0, 0)).status, scsi_status::good);
    EXPECT_EQ(host_.send(block_cdb(op_synchronize_cache_16, 0, 0)).status, scsi_status::good);
    host_.add_fault(fault_kind::fail, io_kind::flush, 1, 0, 0);
    EXPECT_EQ(sense_of(host_.send(block_cdb(op_synchronize_cache_16, 0, 0))), sense::write_failed);
}

TEST_F(VolumeCommands, VerifySeesWhatCannotBeRead) {
    start(scenario::unconfigured);
    EXPECT_EQ(host_.send(block_cdb(op_verify_10, 0, sectors)).status, scsi_status::good);
    host_.add_fault(fault_kind::fail, io_kind::read, 0, 77, 77);
    EXPECT_EQ(host_.send(block_cdb(op_verify_10, 0, 77)).status, scsi_status::good);
    EXPECT_EQ(sense_of(host_.send(block_cdb(op_verify_10, 77, 1))), sense::read_failed);
    EXPECT_EQ(sense_of(host_.send(block_cdb(op_verify_10, 0, 1, 0x02), bytes(512))),
              sense::invalid_field);
}

TEST_F(VolumeCommands, FailWithTheirDisk) {
    start(scenario::raid0);
    host_.add_fault(fault_kind::fail, io_kind::read, 1, 0, 0);
    host_.add_fault(fault_kind::fail, io_kind::write, 0, 128, 128);
    EXPECT_EQ(host_.read(0, 128).status, scsi_status::good);
    EXPECT_EQ(sense_of(host_.read(0, 129)), sense::read_failed);
    EXPECT_EQ(sense_of(host_.write(256, bytes(512))), sense::write_failed);
    EXPECT_EQ(host_.write(257, bytes(512)).status, scsi_status::good);
}

TEST_F(VolumeCommands, AreNotAnsweredByADiskThatHangs) {
    start(scenario::raid1);
    host_.add_fault(fault_kind::time_out, io_kind::read, 0, 5, 5);
    EXPECT_TRUE(host_.read(0, 8).unanswered);
    EXPECT_FALSE(host_.read(0, 5).unanswered);
    host_.add_fault(fault_kind::time_out, io_kind::write, 1, 5, 5);
    EXPECT_TRUE(host_.write(5, bytes(512)).unanswered);
}

TEST_F(VolumeCommands, AreRefusedWithoutAVolume) {
    for (const std::uint8_t code : {op_read_10, op_write_10, op_verify_10}) {
        EXPECT_EQ(sense_of(host_.send(block_cdb(code, 0, 1), bytes(512))), sense::no_medium);
    }
    start(scenario::raid0);
    host_.pull(1);
    for (const std::uint8_t code : {op_read_10, op_write_10, op_verify_10}) {
        EXPECT_EQ(sense_of(host_.send(block_cdb(code, 0, 0), bytes(512))), sense::not_ready);
    }
    EXPECT_EQ(host_.on_disk(0, 0, 1), bytes(512));
}

TEST_F(VolumeCommands, ReachTheRecordOfAPlainDiskAndOfNoMember) {
    start(scenario::unconfigured);
    host_.expect_written(sectors - 15, sectors_from(3, 1));
    EXPECT_EQ(host_.on_disk(0, sectors - 15, 1), sectors_from(3, 1));
    volume_host other;
    other.start(scenario::raid0, sectors, sectors);
    const std::array<bytes, ports> tails{other.on_disk(0, sectors - 16, 16),
                                         other.on_disk(1, sectors - 16, 16)};
    const std::uint64_t capacity = other.capacity();
    other.expect_written(capacity - 3000, sectors_from(0, 3000));
    EXPECT_EQ(sense_of(other.write(capacity, bytes(512))), sense::lba_out_of_range);
    EXPECT_EQ(other.on_disk(0, sectors - 16, 16), tails[0]);
    EXPECT_EQ(other.on_disk(1, sectors - 16, 16), tails[1]);
}

TEST_F(VolumeCommands, StartStopAndLockingAreAccepted) {
    start(scenario::unconfigured);
    EXPECT_EQ(host_.send({0x1B, 0, 0, 0, 0, 0}).status, scsi_status::good);
    EXPECT_EQ(host_.send({0x1E, 0, 0, 0, 1, 0}).status, scsi_status::good);
    EXPECT_EQ(host_.read(0, 1).status, scsi_status::good);
}

TEST_F(VolumeCommands, TheOnlyUnitIsTheFirst) {
    const scsi_reply reply = host_.send({0xA0, 0, 0, 0, 0, 0, 0, 0, 0, 16, 0, 0});
    EXPECT_EQ(reply.data_in, (bytes{0, 0, 0, 8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(host_.send({0xA0, 0, 1, 0, 0, 0, 0, 0, 0, 16, 0, 0}).data_in, bytes(8));
    EXPECT_EQ(sense_of(host_.send({0xA0, 0, 3, 0, 0, 0, 0, 0, 0, 16, 0, 0})), sense::invalid_field);
    EXPECT_EQ(sense_of(host_.send({0xA0, 0, 0, 0, 0, 0, 0, 0, 0, 15, 0, 0})), sense::invalid_field);
}

TEST_F(VolumeCommands, ModePagesSayWriteCacheAndNoWriteProtection) {
    const bytes caching = {0x08, 18, 0x04, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    bytes expected = {23, 0, 0x10, 0};
    expected.insert(expected.end(), caching.begin(), caching.end());
    EXPECT_EQ(host_.send({0x1A, 0, 0x3F, 0, 192, 0}).data_in, expected);
    EXPECT_EQ(host_.send({0x1A, 8, 0x08, 0, 192, 0}).data_in, expected);
    EXPECT_EQ(host_.send({0x1A, 0, 0x3F, 0, 4, 0}).data_in, (bytes{23, 0, 0x10, 0}));
    expected = {0, 26, 0, 0x10, 0, 0, 0, 0};
    expected.insert(expected.end(), caching.begin(), caching.end());
    EXPECT_EQ(host_.send({0x5A, 0, 0x3F, 0xFF, 0, 0, 0, 0, 192, 0}).data_in, expected);
    EXPECT_EQ(host_.send({0x5A, 0, 0x3F, 0, 0, 0, 0, 0, 8, 0}).data_in.size(), 8U);
}

TEST_F(VolumeCommands, NoModeValueCanBeChangedOrIsSaved) {
    EXPECT_EQ(host_.send({0x1A, 0, 0x48, 0, 192, 0}).data_in[6], 0x00);
    EXPECT_EQ(host_.send({0x1A, 0, 0x88, 0, 192, 0}).data_in[6], 0x04);
    EXPECT_EQ(sense_of(host_.send({0x1A, 0, 0xC8, 0, 192, 0})), sense::no_saved_values);
}

TEST_F(VolumeCommands, OtherModePagesAreRefused) {
    EXPECT_EQ(sense_of(host_.send({0x1A, 0, 0x01, 0, 192, 0})), sense::invalid_field);
    EXPECT_EQ(sense_of(host_.send({0x1A, 0, 0x08, 1, 192, 0})), sense::invalid_field);
    EXPECT_EQ(sense_of(host_.send({0x5A, 0, 0x1C, 0, 0, 0, 0, 0, 192, 0})), sense::invalid_field);
}

// What Linux sends to a disk behind a bridge when it comes on the bus, in its order.
TEST_F(VolumeCommands, AKernelThatLooksAtTheDiskGetsOn) {
    start(scenario::raid1);
    const auto good = [this](const bytes& cdb) {
        const scsi_reply reply = host_.send(cdb);
        EXPECT_EQ(reply.status, scsi_status::good) << int{cdb[0]};
        return reply.data_in;
    };
    EXPECT_EQ(good({0x12, 0, 0, 0, 36, 0}).size(), 36U);
    EXPECT_EQ(sense_of(host_.send({0x12, 1, 0, 0, 255, 0})), sense::invalid_field);
    good({0x00, 0, 0, 0, 0, 0});
    EXPECT_EQ(get_be(good({0x25, 0, 0, 0, 0, 0, 0, 0, 0, 0}).data(), 4), sectors - 17);
    EXPECT_EQ(good({0x1A, 0, 0x3F, 0, 192, 0})[2] & 0x80, 0);
    EXPECT_EQ(good({0x1A, 0, 0x08, 0, 4, 0}).size(), 4U);
    EXPECT_EQ(good({0x1A, 0, 0x08, 0, 24, 0})[6] & 0x04, 0x04);
    EXPECT_EQ(good(block_cdb(op_read_10, 0, 8)).size(), 4096U);
    EXPECT_EQ(sense_of(host_.send({0xA3, 0x0C, 1, 0x93, 0, 0, 0, 0, 2, 0, 0, 0})),
              sense::invalid_opcode);
    EXPECT_EQ(sense_of(host_.send({0x85, 8, 14, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0xEC, 0})),
              sense::invalid_opcode);
    EXPECT_EQ(sense_of(host_.send({0x42, 0, 0, 0, 0, 0, 0, 0, 24, 0})), sense::invalid_opcode);
    good({0x1E, 0, 0, 0, 1, 0});
    good(block_cdb(op_synchronize_cache_10, 0, 0));
}

} // namespace
} // namespace enclosure
