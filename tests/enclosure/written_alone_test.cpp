// A half of a mirror that was written alone is the newer one, whatever the records say of a copy
// that had ended before, and whatever a host writes into them.
#include "tests/enclosure/mirror_fixture.h"

#include "enclosure/vendor_commands.h"

#include <algorithm>
#include <array>

namespace enclosure {
namespace {

constexpr std::size_t flags = 4;   // byte of the record
constexpr std::size_t stamp = 480; // first byte
constexpr std::uint8_t source_flag = 0x80;
const bytes older = sectors_from(100, 1, 1);
const bytes newer = sectors_from(100, 1, 2);

class WrittenAlone : public mirror_test, public testing::WithParamInterface<int> {
protected:
    // A mirror whose copy from source() to target() has ended, with the source's mark in place.
    void end_a_copy() {
        start(scenario::rebuild);
        for (const int port : {0, 1}) {
            bytes record = record_of(port);
            record[flags] = port == source() ? source_flag : 0;
            host_.put_on_disk(port, record_at, record);
        }
        host_.restart();
        host_.finish_copy();
        host_.expect_written(100, older);
    }

    int source() const { return GetParam(); }
    int target() const { return 1 - GetParam(); }

    void host_writes(int port, const bytes& record) {
        const vendor_cdb cdb = encode({vendor_action::write_sector, static_cast<std::uint8_t>(port),
                                       true, record_at, sector_size});
        EXPECT_EQ(host_.send({cdb.begin(), cdb.end()}, record).status, scsi_status::good);
    }

    // What a host makes of a record that it has read before, when a copy is over.
    static bytes without_flags(bytes record) {
        std::fill_n(record.begin() + flags, 4, std::uint8_t{0});
        return record;
    }

    void expect_the_target_to_be_the_newer_half() {
        host_.expect_reads(100, newer);
        EXPECT_EQ(host_.state(), volume_state::diverged);
        host_.restart();
        EXPECT_EQ(host_.state(), volume_state::diverged);
        EXPECT_FALSE(host_.copy().running());
        host_.finish_copy();
        host_.expect_reads(100, newer);
        EXPECT_EQ(host_.on_disk(source(), 100, 1), older);
    }

    // A host takes a single mark for a copy that is to run, equal times for halves in step.
    void expect_records_of_halves_that_differ() {
        const std::array<bytes, ports> records{record_of(0), record_of(1)};
        EXPECT_EQ(records[0][flags], records[1][flags]);
        EXPECT_FALSE(std::equal(records[0].begin() + stamp, records[0].begin() + stamp + 16,
                                records[1].begin() + stamp));
    }
};

TEST_P(WrittenAlone, AfterASourceThatFailedSinceTheCopyIsNotOverwrittenByIt) {
    end_a_copy();
    host_.add_fault(fault_kind::fail, io_kind::write, source(), 100, 100);
    host_.expect_written(100, newer);
    host_.clear_faults();
    expect_records_of_halves_that_differ();
    expect_the_target_to_be_the_newer_half();
}

TEST_P(WrittenAlone, AfterASourceThatWasPulledSinceTheCopyIsNotOverwrittenByIt) {
    end_a_copy();
    const std::shared_ptr<disk> away = host_.pull(source());
    host_.expect_written(100, newer);
    host_.put_in(source(), away);
    expect_records_of_halves_that_differ();
    expect_the_target_to_be_the_newer_half();
}

TEST_P(WrittenAlone, AfterARestartWithoutItsSourceIsNotOverwrittenByIt) {
    end_a_copy();
    const std::shared_ptr<disk> away = host_.pull(source());
    host_.restart();
    host_.expect_written(100, newer);
    host_.put_in(source(), away);
    expect_the_target_to_be_the_newer_half();
}

TEST_P(WrittenAlone, AsItsSourceWasTooIsNotOverwrittenByIt) {
    end_a_copy();
    const std::shared_ptr<disk> first = host_.pull(source());
    host_.expect_written(100, newer);
    const std::shared_ptr<disk> second = host_.pull(target());
    host_.put_in(source(), first);
    host_.expect_written(101, older);
    host_.put_in(target(), second);
    expect_records_of_halves_that_differ();
    host_.restart();
    host_.finish_copy();
    EXPECT_EQ(host_.state(), volume_state::diverged);
    EXPECT_EQ(host_.on_disk(target(), 100, 1), newer);
    EXPECT_EQ(host_.on_disk(source(), 101, 1), older);
}

TEST_P(WrittenAlone, IsNewerThanASourceWhoseMarkCannotBeAnswered) {
    end_a_copy();
    const std::shared_ptr<disk> away = host_.pull(source());
    host_.expect_written(100, newer);
    host_.add_fault(fault_kind::fail, io_kind::write, target(), record_at, record_at);
    host_.put_in(source(), away);
    host_.expect_reads(100, newer);
    EXPECT_EQ(host_.state(), volume_state::diverged);
    host_.clear_faults();
    host_.restart();
    expect_records_of_halves_that_differ();
}

TEST_P(WrittenAlone, StaysNewerWhenAHostWritesBackTheRecordsThatItKnew) {
    end_a_copy();
    const std::array<bytes, ports> known{record_of(0), record_of(1)};
    host_.add_fault(fault_kind::fail, io_kind::write, source(), 100, 100);
    host_.expect_written(100, newer);
    host_.clear_faults();
    for (const int port : {0, 1}) {
        host_writes(port, without_flags(record_of(port)));
        host_writes(port, without_flags(known[static_cast<std::size_t>(port)]));
    }
    expect_records_of_halves_that_differ();
    expect_the_target_to_be_the_newer_half();
}

TEST_P(WrittenAlone, StaysNewerWhenAHostRecordsThatItsPartnerIsGone) {
    end_a_copy();
    const std::shared_ptr<disk> away = host_.pull(source());
    host_.expect_written(100, newer);
    bytes alone = without_flags(record_of(target()));
    std::fill(alone.begin() + 16, alone.begin() + 76, std::uint8_t{0});
    const std::array<std::uint8_t, 16> now = stamp_of("20250505050505");
    std::copy(now.begin(), now.end(), alone.begin() + stamp);
    host_writes(target(), alone);
    host_.put_in(source(), away);
    expect_the_target_to_be_the_newer_half();
}

// Both records of an order carry its time and name the partner.
bytes ordered(bytes record, bool as_source) {
    record[flags] = as_source ? source_flag : 0;
    const std::array<std::uint8_t, 16> now = stamp_of("20250505050505");
    std::copy(now.begin(), now.end(), record.begin() + stamp);
    return record;
}

TEST_P(WrittenAlone, IsTheTargetOfANewOrderAllTheSame) {
    end_a_copy();
    host_.add_fault(fault_kind::fail, io_kind::write, source(), 100, 100);
    host_.expect_written(100, newer);
    host_.clear_faults();
    for (const int port : {0, 1}) {
        host_writes(port, ordered(record_of(port), port == source()));
    }
    host_.restart();
    EXPECT_EQ(host_.state(), volume_state::copying);
    host_.finish_copy();
    EXPECT_EQ(host_.on_disk(target(), 100, 1), older);
    EXPECT_EQ(record_of(target())[last_of_stamp], 0);
}

TEST_P(WrittenAlone, IsMarkedAgainWhenItIsWrittenAfterAHostsNewRecord) {
    end_a_copy();
    host_.pull(source());
    host_.expect_written(100, newer);
    host_writes(target(), ordered(record_of(target()), false));
    ASSERT_EQ(record_of(target())[last_of_stamp], 0);
    host_.expect_written(100, older);
    EXPECT_EQ(record_of(target())[last_of_stamp], target() + 1);
}

TEST_P(WrittenAlone, IsMarkedBeforeItIsWrittenOnBehindANewOrder) {
    end_a_copy();
    host_.add_fault(fault_kind::fail, io_kind::write, source(), 100, 100);
    host_.expect_written(100, older);
    host_.clear_faults();
    for (const int port : {0, 1}) {
        host_writes(port, ordered(record_of(port), false));
    }
    host_.expect_written(100, newer);
    expect_the_target_to_be_the_newer_half();
}

TEST_P(WrittenAlone, AsASourceIsInOrderWithItsTargetOnceThatHasBeenCopied) {
    end_a_copy();
    const std::shared_ptr<disk> away = host_.pull(target());
    host_.expect_written(100, newer);
    host_.put_in(target(), away);
    host_.restart();
    const std::array<bytes, ports> known{record_of(0), record_of(1)};
    ASSERT_NE(known[static_cast<std::size_t>(source())][last_of_stamp], 0);
    host_.finish_copy();
    for (const int port : {0, 1}) {
        host_writes(port, without_flags(known[static_cast<std::size_t>(port)]));
    }
    host_.restart();
    EXPECT_EQ(host_.state(), volume_state::in_order);
    EXPECT_EQ(host_.on_disk(target(), 100, 1), newer);
}

INSTANTIATE_TEST_SUITE_P(FromPort, WrittenAlone, testing::Values(0, 1));

} // namespace
} // namespace enclosure
