// What becomes of a copy when disks, power or the service go while it runs.
#include "enclosure/state_store.h"

#include "tests/enclosure/array_host.h"
#include "tests/enclosure/kept_copy.h"
#include "tests/enclosure/kept_desk.h"
#include "tests/enclosure/temporary_folder.h"

#include <gtest/gtest.h>

namespace enclosure {
namespace {

using namespace std::chrono_literals;
using progress = std::array<std::uint64_t, 2>; // end and current LBA

constexpr std::uint64_t size_a = 10'000;
constexpr std::uint64_t size_b = 12'000;
constexpr std::uint64_t area = size_a - 16;
constexpr std::uint64_t rate = 1'000; // sectors a second

sector_data data_of(const std::string& disk, std::uint64_t lba) {
    return sector_number(lba + (disk == "a" ? 0 : 5000));
}

// Two mirror members of different content; the copy is asked for by the host.
class InterruptedCopy : public testing::TestWithParam<int> {
protected:
    InterruptedCopy() : source_(GetParam() == 0 ? "a" : "b"), target_(GetParam() == 0 ? "b" : "a") {
        put_pair(bench_, size_a, size_b);
        for (const std::string disk : {"a", "b"}) {
            for (std::uint64_t lba = 0; lba < bench_.sectors_of(disk); ++lba) {
                bench_.write_image(disk, lba, data_of(disk, lba));
            }
        }
        bench_.set_rate("box", rate * sector_size);
        bench_.plug("box");
    }

    void ask_for(std::uint64_t sectors) {
        host().write_records(array_kind::mirror, sectors, GetParam());
        host().commit();
    }

    array_host& host() {
        if (!host_) {
            host_.emplace(bench_);
        }
        return *host_;
    }

    void expect_untouched(const std::string& disk, std::uint64_t from, std::uint64_t to) {
        for (std::uint64_t lba = from; lba < to; ++lba) {
            ASSERT_EQ(bench_.read_image(disk, lba), data_of(disk, lba)) << disk << lba;
        }
    }

    void expect_copied(std::uint64_t from, std::uint64_t to) {
        for (std::uint64_t lba = from; lba < to; ++lba) {
            ASSERT_EQ(bench_.read_image(target_, lba), data_of(source_, lba)) << lba;
        }
    }

    int source_port() const { return GetParam(); }
    int target_port() const { return 1 - GetParam(); }

    in_process_bench bench_;
    std::optional<array_host> host_;
    const std::string source_;
    const std::string target_;
};

TEST_P(InterruptedCopy, WithoutTroubleCopiesTheArrayAndNothingElse) {
    ask_for(area);
    EXPECT_EQ(host().status(), (progress{area - 1, 0}));
    bench_.advance(3s);
    EXPECT_EQ(host().status(), (progress{area - 1, 2999}));
    EXPECT_EQ(bench_.volume_of("box").state, volume_state::copying);
    bench_.advance(1h);
    EXPECT_EQ(host().status(), (progress{area - 1, area - 1}));
    EXPECT_EQ(bench_.volume_of("box").state, volume_state::in_order);
    expect_copied(0, area);
    expect_untouched(source_, 0, area);
    const std::uint64_t record = bench_.sectors_of(target_) - 15;
    expect_untouched(target_, area, record);
    expect_untouched(target_, record + 1, bench_.sectors_of(target_));
}

TEST_P(InterruptedCopy, AnArrayShorterThanTheDisksIsCopiedToItsEnd) {
    ask_for(4321);
    bench_.advance(1h);
    EXPECT_EQ(host().status(), (progress{4320, 4320}));
    expect_copied(0, 4321);
    expect_untouched(target_, 4321, area);
}

TEST_P(InterruptedCopy, AnArrayLongerThanADiskEndsBeforeItsLastSectors) {
    ask_for(size_b - 16);
    const sector_data record = bench_.read_image("a", size_a - 15);
    bench_.advance(1h);
    EXPECT_EQ(host().status(), (progress{area - 1, area - 1}));
    expect_copied(0, area);
    expect_untouched("a", area, size_a - 15);
    EXPECT_EQ(bench_.read_image("a", size_a - 15), record);
}

TEST_P(InterruptedCopy, OfASingleSectorHasItsEndAtZero) {
    ask_for(1);
    EXPECT_EQ(host().status(), (progress{0, 0}));
    bench_.advance(1s);
    EXPECT_EQ(host().status(), (progress{0, 0}));
    EXPECT_EQ(bench_.volume_of("box").state, volume_state::in_order);
    expect_copied(0, 1);
    expect_untouched(target_, 1, area);
}

TEST_P(InterruptedCopy, OfNothingIsNoCopy) {
    ask_for(0);
    bench_.advance(1h);
    EXPECT_EQ(host().status(), (progress{0, 0}));
    EXPECT_EQ(bench_.volume_of("box").state, volume_state::broken);
    expect_untouched(source_, 0, area);
    expect_untouched(target_, 0, area);
}

TEST_P(InterruptedCopy, BeginsAnewAfterAPowerCut) {
    ask_for(area);
    bench_.advance(3s);
    bench_.power_cut("box");
    bench_.write_image(target_, 10, sector_data{});
    bench_.advance(1s);
    host().reopen();
    EXPECT_EQ(host().status(), (progress{area - 1, 0}));
    bench_.advance(1h);
    EXPECT_EQ(host().status(), (progress{area - 1, area - 1}));
    expect_copied(0, area);
    expect_untouched(source_, 0, area);
}

TEST_P(InterruptedCopy, BeginsAnewAfterUnplugging) {
    ask_for(area);
    bench_.advance(3s);
    bench_.unplug("box");
    bench_.advance(1h);
    expect_copied(0, 3000);
    expect_untouched(target_, 3000, area);
    bench_.write_image(target_, 10, sector_data{});
    bench_.plug("box");
    host().reopen();
    EXPECT_EQ(host().status(), (progress{area - 1, 0}));
    bench_.advance(1h);
    expect_copied(0, area);
    expect_untouched(source_, 0, area);
}

TEST_P(InterruptedCopy, StopsWhenTheSourceIsPulled) {
    ask_for(area);
    bench_.advance(3s);
    bench_.pull("box", source_port());
    bench_.advance(1h);
    EXPECT_EQ(host().status(), (progress{area - 1, 2999}));
    EXPECT_EQ(bench_.volume_of("box").state, volume_state::degraded);
    expect_untouched(source_, 0, area);
    expect_untouched(target_, 3000, area);
    bench_.insert("box", source_port(), source_);
    host().commit();
    bench_.advance(1h);
    expect_copied(0, area);
    expect_untouched(source_, 0, area);
}

TEST_P(InterruptedCopy, StopsWhenTheTargetIsPulled) {
    ask_for(area);
    bench_.advance(3s);
    bench_.pull("box", target_port());
    bench_.advance(1h);
    EXPECT_EQ(host().status(), (progress{area - 1, 2999}));
    EXPECT_EQ(bench_.volume_of("box").state, volume_state::degraded);
    EXPECT_EQ(host().read(source_port(), 5), data_of(source_, 5));
    expect_untouched(source_, 0, area);
}

TEST_P(InterruptedCopy, DoesNotGoOnToAnotherDiskInTheTargetsPlace) {
    ask_for(area);
    bench_.advance(3s);
    bench_.pull("box", target_port());
    bench_.add_disk("c", label_of(size_b, "serial-c"));
    bench_.insert("box", target_port(), "c");
    bench_.advance(1h);
    EXPECT_EQ(bench_.read_image("c", 5000), sector_data{});
    host().commit();
    EXPECT_EQ(host().status(), (progress{0, 0}));
    EXPECT_EQ(bench_.volume_of("box").state, volume_state::degraded);
    bench_.advance(1h);
    EXPECT_EQ(bench_.read_image("c", 0), sector_data{});
    expect_untouched(source_, 0, area);
}

TEST_P(InterruptedCopy, BothDisksPulledLeaveAnEmptyEnclosureThatAnswers) {
    ask_for(area);
    bench_.advance(3s);
    bench_.pull("box", 0);
    bench_.pull("box", 1);
    bench_.advance(1h);
    EXPECT_EQ(host().status(), (progress{area - 1, 2999}));
    EXPECT_EQ(bench_.volume_of("box").state, volume_state::no_disk);
    expect_untouched(source_, 0, area);
}

INSTANTIATE_TEST_SUITE_P(FromPort, InterruptedCopy, testing::Values(0, 1));

// A copy over the lives of a service.
class KeptCopy : public testing::Test {
protected:
    KeptCopy() {
        kept_desk life(folder_.path());
        begin_a_copy(life, size_a, rate);
        for (std::uint64_t lba = 0; lba < area; ++lba) {
            EXPECT_TRUE(image(life, "a").write(lba, data_of("a", lba)));
        }
        life.run(3s);
        life.store.save_enclosure(life.on.enclosure("box"));
    }

    static disk_image& image(kept_desk& life, const std::string& name) {
        return life.on.disks().at(name)->image();
    }

    // The target's sectors that are not the source's.
    static std::vector<std::uint64_t> differences(kept_desk& life) {
        std::vector<std::uint64_t> different;
        for (std::uint64_t lba = 0; lba < area; ++lba) {
            sector_data copied{};
            EXPECT_TRUE(image(life, "b").read(lba, copied));
            if (copied != data_of("a", lba)) {
                different.push_back(lba);
            }
        }
        return different;
    }

    temporary_folder folder_;
};

TEST_F(KeptCopy, GoesOnWhereItWas) {
    kept_desk life(folder_.path());
    ASSERT_TRUE(image(life, "b").write(10, sector_data{})); // copied already, not to be again
    life.run(1h);
    EXPECT_EQ(differences(life), std::vector<std::uint64_t>{10});
    EXPECT_FALSE(life.on.enclosure("box").bridge_chip().copy().running());
}

TEST_F(KeptCopy, BeginsAnewAfterAPowerCut) {
    {
        kept_desk life(folder_.path());
        life.on.power_cut("box", 0s);
        ASSERT_TRUE(image(life, "b").write(10, sector_data{}));
    }
    kept_desk life(folder_.path());
    EXPECT_EQ(life.on.enclosure("box").bridge_chip().copy().progress(),
              (copy_progress{0, area, 0}));
    life.run(1h);
    EXPECT_TRUE(differences(life).empty());
}

TEST_F(KeptCopy, OfTheOtherDirectionIsNotTakenForThisOne) {
    {
        kept_desk life(folder_.path());
        life.run(1h);
        life.store.save_enclosure(life.on.enclosure("box"));
        for (const std::string name : {"a", "b"}) {
            sector_data sector{};
            ASSERT_TRUE(image(life, name).read(size_a - 15, sector));
            sector[4] = name == "b" ? 0x80 : 0;
            ASSERT_TRUE(image(life, name).write(size_a - 15, sector));
        }
    }
    kept_desk life(folder_.path());
    EXPECT_EQ(life.on.enclosure("box").bridge_chip().copy().progress(),
              (copy_progress{1, area, 0}));
}

} // namespace
} // namespace enclosure
