// What a host reads and writes when the volume is a mirror, in every state of it.
#include "tests/enclosure/mirror_fixture.h"

#include <array>

namespace enclosure {
namespace {

class VolumeMirror : public mirror_test {
protected:
    // Of all that the array may use.
    bytes content_of(int port) { return host_.on_disk(port, 0, sectors - 16); }
};

TEST_F(VolumeMirror, InOrderIsWrittenOnBothDisks) {
    start(scenario::raid1);
    const std::array<bytes, ports> records{record_of(0), record_of(1)};
    host_.expect_written(100, sectors_from(1, 9));
    EXPECT_EQ(host_.on_disk(0, 100, 9), sectors_from(1, 9));
    EXPECT_EQ(host_.on_disk(1, 100, 9), sectors_from(1, 9));
    EXPECT_EQ(record_of(0), records[0]);
    EXPECT_EQ(record_of(1), records[1]);
}

TEST_F(VolumeMirror, InOrderIsReadFromTheOtherDiskWhenOneFails) {
    start(scenario::raid1);
    host_.expect_written(100, sectors_from(1, 9));
    host_.add_fault(fault_kind::fail, io_kind::read, 0, 104, 104);
    host_.expect_reads(100, sectors_from(1, 9));
    host_.add_fault(fault_kind::fail, io_kind::read, 1, 108, 108);
    EXPECT_EQ(sense_of(host_.read(100, 9)), sense::read_failed);
    host_.expect_reads(100, sectors_from(1, 8));
}

TEST_F(VolumeMirror, WhoseDisksBothFailMakesTheWriteFailAndNobodyIsOut) {
    start(scenario::raid1);
    const std::array<bytes, ports> records{record_of(0), record_of(1)};
    host_.add_fault(fault_kind::fail, io_kind::write, 0, 100, 100);
    host_.add_fault(fault_kind::fail, io_kind::write, 1, 100, 100);
    EXPECT_EQ(sense_of(host_.write(100, sectors_from(1, 1))), sense::write_failed);
    EXPECT_EQ(host_.state(), volume_state::in_order);
    EXPECT_EQ(record_of(0), records[0]);
    EXPECT_EQ(record_of(1), records[1]);
}

class FailingMember : public VolumeMirror, public testing::WithParamInterface<int> {
protected:
    int failing() const { return GetParam(); }
    int other() const { return 1 - GetParam(); }
};

TEST_P(FailingMember, IsOutOfTheMirrorAndTheWriteIsDone) {
    start(scenario::raid1);
    const bytes record = record_of(failing());
    host_.add_fault(fault_kind::fail, io_kind::write, failing(), 100, 100);
    host_.expect_written(100, sectors_from(1, 1));
    EXPECT_EQ(host_.state(), volume_state::diverged);
    EXPECT_EQ(host_.on_disk(other(), 100, 1), sectors_from(1, 1));
    EXPECT_EQ(record_of(failing()), record);
    host_.expect_reads(100, sectors_from(1, 1));
    const bytes left_out = content_of(failing());
    host_.clear_faults();
    host_.expect_written(50, sectors_from(2, 100));
    EXPECT_EQ(content_of(failing()), left_out);
    EXPECT_EQ(host_.on_disk(other(), 50, 100), sectors_from(2, 100));
}

TEST_P(FailingMember, StaysOutAfterARestart) {
    start(scenario::raid1);
    host_.add_fault(fault_kind::fail, io_kind::write, failing(), 100, 100);
    host_.expect_written(100, sectors_from(1, 1));
    host_.clear_faults();
    host_.restart();
    EXPECT_EQ(host_.state(), volume_state::diverged);
    host_.expect_reads(100, sectors_from(1, 1));
}

TEST_P(FailingMember, ThatCannotBeLeftOutMakesTheWriteFail) {
    start(scenario::raid1);
    host_.add_fault(fault_kind::fail, io_kind::write, failing(), 100, 100);
    host_.add_fault(fault_kind::fail, io_kind::write, other(), record_at, record_at);
    EXPECT_EQ(sense_of(host_.write(100, sectors_from(1, 1))), sense::write_failed);
    EXPECT_EQ(host_.state(), volume_state::in_order);
}

TEST_P(FailingMember, OfAMirrorThatTheHostHasTakenApartMakesTheWriteFail) {
    start(scenario::raid1);
    host_.put_on_disk(other(), record_at, bytes(512));
    host_.add_fault(fault_kind::fail, io_kind::write, failing(), 100, 100);
    EXPECT_EQ(sense_of(host_.write(100, sectors_from(1, 1))), sense::write_failed);
    EXPECT_EQ(record_of(other()), bytes(512));
}

TEST_P(FailingMember, PulledAndPutBackIsNotReadOrWritten) {
    start(scenario::raid1);
    host_.expect_written(100, sectors_from(1, 1));
    const std::shared_ptr<disk> away = host_.pull(failing());
    host_.expect_reads(100, sectors_from(1, 1));
    host_.expect_written(100, sectors_from(2, 1));
    host_.put_in(failing(), away);
    EXPECT_EQ(host_.state(), volume_state::diverged);
    host_.expect_reads(100, sectors_from(2, 1));
    host_.expect_written(101, sectors_from(3, 1));
    EXPECT_EQ(volume_host::image_of(*away, 100, 1), sectors_from(1, 1));
    EXPECT_EQ(volume_host::image_of(*away, 101, 1), bytes(512));
    host_.restart();
    host_.expect_reads(100, sectors_from(2, 1));
}

TEST_P(FailingMember, PulledAndPutBackWithoutAWriteIsInOrder) {
    start(scenario::raid1);
    const std::shared_ptr<disk> away = host_.pull(failing());
    host_.read(0, 10);
    host_.put_in(failing(), away);
    EXPECT_EQ(host_.state(), volume_state::in_order);
}

TEST_P(FailingMember, AndTheOtherEachWrittenAloneAreNoMirrorAnyMore) {
    start(scenario::raid1);
    const std::shared_ptr<disk> first = host_.pull(failing());
    host_.expect_written(100, sectors_from(1, 1));
    const std::shared_ptr<disk> second = host_.pull(other());
    host_.put_in(failing(), first);
    host_.expect_written(100, sectors_from(2, 1));
    host_.put_in(other(), second);
    EXPECT_EQ(host_.state(), volume_state::diverged);
}

INSTANTIATE_TEST_SUITE_P(OnPort, FailingMember, testing::Values(0, 1));

TEST_F(VolumeMirror, DegradedIsMarkedInItsRecordByTheFirstWriteOnly) {
    start(scenario::raid1);
    host_.pull(1);
    const bytes before = record_of(0);
    host_.read(0, 10);
    EXPECT_EQ(record_of(0), before);
    host_.expect_written(0, sectors_from(1, 1));
    bytes marked = before;
    marked[last_of_stamp] = 1;
    EXPECT_EQ(record_of(0), marked);
    host_.add_fault(fault_kind::fail, io_kind::write, 0, record_at, record_at);
    host_.expect_written(0, sectors_from(2, 1));
}

TEST_F(VolumeMirror, DegradedIsNotWrittenWithoutItsMark) {
    start(scenario::raid1);
    host_.pull(1);
    host_.add_fault(fault_kind::fail, io_kind::write, 0, record_at, record_at);
    EXPECT_EQ(sense_of(host_.write(0, sectors_from(1, 1))), sense::write_failed);
    EXPECT_EQ(host_.on_disk(0, 0, 1), bytes(512));
    host_.clear_faults();
    host_.expect_written(0, sectors_from(1, 1));
}

TEST_F(VolumeMirror, DegradedLeavesADiskInNoArrayAlone) {
    start(scenario::raid1);
    host_.pull(0);
    host_.insert_new(0, "c", sectors);
    host_.restart();
    ASSERT_EQ(host_.state(), volume_state::degraded);
    host_.expect_written(0, sectors_from(1, 100));
    host_.expect_reads(0, sectors_from(1, 100));
    EXPECT_EQ(host_.on_disk(0, 0, sectors), zeros(sectors));
}

TEST_F(VolumeMirror, DivergedIsItsNewerHalf) {
    start(scenario::diverged);
    host_.put_on_disk(0, 0, sectors_from(1, 1));
    host_.put_on_disk(1, 0, sectors_from(2, 1));
    const std::array<bytes, ports> records{record_of(0), record_of(1)};
    host_.expect_reads(0, sectors_from(1, 1));
    host_.expect_written(0, sectors_from(3, 1));
    EXPECT_EQ(host_.on_disk(1, 0, 1), sectors_from(2, 1));
    EXPECT_EQ(record_of(0), records[0]);
    EXPECT_EQ(record_of(1), records[1]);
    host_.add_fault(fault_kind::fail, io_kind::read, 0, 0, 0);
    EXPECT_EQ(sense_of(host_.read(0, 1)), sense::read_failed);
}

class VolumeWhileCopying : public VolumeMirror {
protected:
    VolumeWhileCopying() {
        start(scenario::rebuild);
        host_.put_on_disk(0, 0, sectors_from(0, sectors - 16));
        host_.put_on_disk(1, 0, sectors_from(0, sectors - 16, 77));
        while (host_.copy().copied() < 2000) {
            host_.copy_piece(1000);
        }
    }

    void expect_alike_in_the_end() {
        host_.finish_copy();
        EXPECT_EQ(host_.state(), volume_state::in_order);
        EXPECT_TRUE(content_of(0) == content_of(1));
    }
};

TEST_F(VolumeWhileCopying, IsReadFromTheSource) {
    host_.expect_reads(0, sectors_from(0, sectors - 16));
}

TEST_F(VolumeWhileCopying, IsReadFromTheTargetOnlyWhereItWasCopied) {
    host_.add_fault(fault_kind::fail, io_kind::read, 0, 1900, 2100);
    host_.expect_reads(1990, sectors_from(1990, 10));
    EXPECT_EQ(sense_of(host_.read(1990, 11)), sense::read_failed);
    EXPECT_EQ(sense_of(host_.read(2000, 1)), sense::read_failed);
}

TEST_F(VolumeWhileCopying, IsWrittenOnBothWhereverTheCopyStands) {
    for (const std::uint64_t lba : {0U, 1990U, 1995U, 2000U, 2005U, 5000U, 5974U}) {
        host_.expect_written(lba, sectors_from(lba, 10, 5));
        EXPECT_EQ(host_.on_disk(0, lba, 10), sectors_from(lba, 10, 5)) << lba;
        EXPECT_EQ(host_.on_disk(1, lba, 10), sectors_from(lba, 10, 5)) << lba;
    }
    EXPECT_EQ(host_.copy().copied(), 2000U);
    expect_alike_in_the_end();
    EXPECT_EQ(host_.on_disk(1, 5000, 10), sectors_from(5000, 10, 5));
}

TEST_F(VolumeWhileCopying, ZerosAheadOfTheCopyStayZeros) {
    host_.expect_written(3000, zeros(64));
    EXPECT_EQ(host_.on_disk(1, 3000, 64), zeros(64));
    expect_alike_in_the_end();
    EXPECT_EQ(host_.on_disk(1, 3000, 64), zeros(64));
}

TEST_F(VolumeWhileCopying, AWriteThatTheTargetMissedIsCopiedAgain) {
    host_.add_fault(fault_kind::fail, io_kind::write, 1, 500, 500);
    host_.expect_written(498, sectors_from(498, 5, 9));
    EXPECT_EQ(host_.copy().copied(), 498U);
    EXPECT_EQ(host_.state(), volume_state::copying);
    host_.expect_reads(498, sectors_from(498, 5, 9));
    host_.clear_faults();
    expect_alike_in_the_end();
    EXPECT_EQ(host_.on_disk(1, 498, 5), sectors_from(498, 5, 9));
}

TEST_F(VolumeWhileCopying, AWriteThatTheSourceMissedFails) {
    host_.add_fault(fault_kind::fail, io_kind::write, 0, 500, 500);
    EXPECT_EQ(sense_of(host_.write(498, sectors_from(498, 5, 9))), sense::write_failed);
    host_.clear_faults();
    expect_alike_in_the_end();
}

TEST_F(VolumeWhileCopying, AnEndedCopyIsAMirrorInOrder) {
    host_.finish_copy();
    host_.add_fault(fault_kind::fail, io_kind::read, 0, 0, sectors);
    host_.expect_reads(3000, sectors_from(3000, 10));
    host_.clear_faults();
    host_.add_fault(fault_kind::fail, io_kind::write, 1, 10, 10);
    host_.expect_written(10, sectors_from(10, 1, 9));
    host_.clear_faults();
    host_.expect_reads(10, sectors_from(10, 1, 9));
    EXPECT_EQ(host_.state(), volume_state::copying);
    EXPECT_EQ(host_.copy().copied(), 0U);
    host_.restart();
    expect_alike_in_the_end();
    EXPECT_EQ(host_.on_disk(1, 10, 1), sectors_from(10, 1, 9));
}

TEST_F(VolumeWhileCopying, ATargetThatMissedWritesIsCopiedFromTheBeginning) {
    const std::shared_ptr<disk> target = host_.pull(1);
    host_.expect_written(10, sectors_from(10, 1, 9));
    host_.put_in(1, target);
    EXPECT_EQ(host_.copy().copied(), 0U);
    host_.expect_reads(10, sectors_from(10, 1, 9));
    host_.restart();
    expect_alike_in_the_end();
    EXPECT_EQ(host_.on_disk(1, 10, 1), sectors_from(10, 1, 9));
}

TEST_F(VolumeWhileCopying, ATargetWithoutItsSourceIsNoVolume) {
    const std::shared_ptr<disk> source = host_.pull(0);
    EXPECT_EQ(sense_of(host_.read(0, 1)), sense::not_ready);
    EXPECT_EQ(sense_of(host_.write(0, sectors_from(0, 1, 9))), sense::not_ready);
    host_.put_in(0, source);
    host_.expect_reads(0, sectors_from(0, sectors - 16));
}

TEST_F(VolumeWhileCopying, ATargetThatWasCopiedServesAlone) {
    host_.finish_copy();
    host_.pull(0);
    host_.expect_reads(0, sectors_from(0, sectors - 16));
}

TEST(VolumeOfUnequalDisks, IsAMirrorOfTheSmallerAndLeavesTheRecordsAlone) {
    volume_host host;
    host.start(scenario::raid1, 900, 700);
    const std::array<bytes, ports> tails{host.on_disk(0, 684, 216), host.on_disk(1, 684, 16)};
    ASSERT_EQ(host.capacity(), 684U);
    host.expect_written(0, sectors_from(0, 684));
    EXPECT_EQ(sense_of(host.write(684, bytes(512))), sense::lba_out_of_range);
    EXPECT_EQ(host.on_disk(0, 0, 684), host.on_disk(1, 0, 684));
    EXPECT_EQ(host.on_disk(0, 684, 216), tails[0]);
    EXPECT_EQ(host.on_disk(1, 684, 16), tails[1]);
}

} // namespace
} // namespace enclosure
