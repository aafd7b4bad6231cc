// A disk that a copy has not filled is no volume without its source, whatever happened meanwhile.
#include "tests/enclosure/kept_copy.h"
#include "tests/enclosure/kept_desk.h"
#include "tests/enclosure/temporary_folder.h"
#include "tests/enclosure/volume_host.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>

namespace enclosure {
namespace {

using namespace std::chrono_literals;

constexpr std::uint64_t size = 10'000;
constexpr std::uint64_t rate = 1'000; // sectors a second

// Three seconds of ten have been copied from "a" in bay 0 to "b" in bay 1.
class UnfilledDisk : public testing::Test {
protected:
    UnfilledDisk() {
        kept_desk life(folder_.path());
        begin_a_copy(life, size, rate);
        life.run(3s);
        life.store.save_enclosure(life.on.enclosure("box"));
    }

    static scsi_reply test_ready(kept_desk& life) {
        const auto reply =
            life.on.execute(life.on.enclosure("box").handle().value_or(0), bytes(6), {}, 0);
        return reply.value_or(scsi_reply{});
    }

    static void expect_no_volume(kept_desk& life) {
        EXPECT_EQ(sense_of(test_ready(life)), sense::not_ready);
    }

    static void expect_a_degraded_volume(kept_desk& life) {
        EXPECT_EQ(test_ready(life).status, scsi_status::good);
        EXPECT_EQ(life.on.enclosure("box").bridge_chip().presented().state, volume_state::degraded);
    }

    static void change_record(kept_desk& life, const std::string& disk,
                              const std::function<void(array_record&)>& change) {
        sector_data sector{};
        disk_image& image = life.on.disks().at(disk)->image();
        ASSERT_TRUE(image.read(size - 15, sector));
        array_record record = read_record(sector).value_or(array_record{});
        change(record);
        ASSERT_TRUE(image.write(size - 15, write_record(record)));
    }

    temporary_folder folder_;
};

TEST_F(UnfilledDisk, IsNoVolumeAfterAPowerCut) {
    kept_desk life(folder_.path());
    life.on.pull("box", 0);
    life.on.power_cut("box", 0s);
    life.run(1h);
    expect_no_volume(life);
}

TEST_F(UnfilledDisk, IsNoVolumeWhenItsSourceIsPulledDuringARestart) {
    kept_desk life(folder_.path());
    life.on.warm_boot("box", 0s);
    life.on.pull("box", 0);
    life.run(1h);
    expect_no_volume(life);
    life.on.warm_boot("box", 1h);
    life.run(2h);
    expect_no_volume(life);
}

TEST_F(UnfilledDisk, IsNoVolumeWhenItsSourceIsPulledWhileThePowerIsOff) {
    kept_desk life(folder_.path());
    life.on.unplug("box");
    life.on.pull("box", 0);
    life.on.plug("box", 0s);
    expect_no_volume(life);
}

TEST_F(UnfilledDisk, IsNoVolumeWhenTheServiceWasAway) {
    {
        kept_desk life(folder_.path());
        life.on.pull("box", 0);
    }
    kept_desk life(folder_.path());
    expect_no_volume(life);
}

TEST_F(UnfilledDisk, IsNoVolumeWhenTheServiceWasAwayWithThePowerOff) {
    {
        kept_desk life(folder_.path());
        life.on.unplug("box");
    }
    kept_desk life(folder_.path());
    life.on.pull("box", 0);
    life.on.plug("box", 0s);
    expect_no_volume(life);
}

TEST_F(UnfilledDisk, IsNoVolumeWhenItWasAwayItself) {
    kept_desk life(folder_.path());
    life.on.pull("box", 1);
    life.on.warm_boot("box", 0s);
    life.run(1h);
    expect_a_degraded_volume(life);
    life.on.pull("box", 0);
    life.on.insert("box", 1, "b");
    expect_no_volume(life);
}

TEST_F(UnfilledDisk, IsNoVolumeAfterAHostHasWrittenItsRecordAnew) {
    kept_desk life(folder_.path());
    life.on.pull("box", 0);
    change_record(life, "b", [](array_record& record) {
        record.partner = {};
        record.stamp = stamp_of("20250505050505");
    });
    life.on.warm_boot("box", 0s);
    life.run(1h);
    expect_no_volume(life);
}

TEST_F(UnfilledDisk, IsNotServedAsTheNewerHalf) {
    kept_desk life(folder_.path());
    life.on.unplug("box");
    change_record(life, "a", [](array_record& record) { record.copy_source = false; });
    change_record(life, "b",
                  [](array_record& record) { record.stamp = stamp_of("20250505050505"); });
    life.on.plug("box", 0s);
    expect_no_volume(life);
}

TEST_F(UnfilledDisk, ServesAloneOnceItHasBeenFilled) {
    kept_desk life(folder_.path());
    life.on.pull("box", 0);
    life.on.warm_boot("box", 0s);
    life.run(1s);
    life.on.insert("box", 0, "a");
    life.on.warm_boot("box", 1s);
    life.run(2s);
    life.run(1h);
    ASSERT_FALSE(life.on.enclosure("box").bridge_chip().unfilled());
    life.on.pull("box", 0);
    expect_a_degraded_volume(life);
    life.on.warm_boot("box", 1h);
    life.run(2h);
    expect_a_degraded_volume(life);
}

TEST_F(UnfilledDisk, ServesAloneOnceItWasInAMirrorInOrder) {
    kept_desk life(folder_.path());
    life.on.unplug("box");
    change_record(life, "a", [](array_record& record) { record.copy_source = false; });
    life.on.plug("box", 0s);
    life.on.pull("box", 0);
    expect_a_degraded_volume(life);
}

TEST_F(UnfilledDisk, ServesAloneWhenItWasArrangedTo) {
    kept_desk life(folder_.path());
    life.on.unplug("box");
    life.on.pull("box", 0);
    life.on.pull("box", 1);
    life.on.insert("box", 0, "b");
    life.on.insert("box", 1, "a");
    life.on.arrange("box", scenario::degraded);
    life.on.plug("box", 0s);
    expect_a_degraded_volume(life);
}

TEST_F(UnfilledDisk, LeavesItsSourceAVolume) {
    kept_desk life(folder_.path());
    life.on.pull("box", 1);
    life.on.power_cut("box", 0s);
    life.run(1h);
    expect_a_degraded_volume(life);
}

TEST_F(UnfilledDisk, IsUnknownToTheStateOfAnEarlierVersion) {
    kept_desk(folder_.path()).on.unplug("box");
    const std::filesystem::path file = folder_.path() / "enclosures/box.json";
    std::ifstream stream(file);
    std::string state((std::istreambuf_iterator<char>(stream)), {});
    const std::size_t from = state.find(",\n  \"unfilled\"");
    ASSERT_NE(from, std::string::npos) << state;
    state.erase(from, state.find('}', from) + 1 - from);
    std::ofstream(file) << state;
    kept_desk life(folder_.path());
    EXPECT_TRUE(life.lines.empty()) << life.lines.front();
    life.on.pull("box", 0);
    life.on.plug("box", 0s);
    expect_a_degraded_volume(life);
}

} // namespace
} // namespace enclosure
