// Whether the disks that answer now are those of the records.
#include <gtest/gtest.h>

#include "model/krchip.h"
#include "tests/support/fixture.h"

namespace {

class SameDisks : public model_test {
protected:
    bool answer(const krchip& chip) {
        const gate_scope work(j.gate);
        return chip.same_disks_answer();
    }

    void put_into_bay(std::size_t port, std::optional<memory_disk> disk) {
        library.with_bridges(
            [&](memory_enclosure& all) { all.bridge(device).disks[port] = std::move(disk); });
    }
};

TEST_F(SameDisks, AreAskedForAsAScanAsksAndNoRecordChanges) {
    const krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    EXPECT_TRUE(answer(chip));
    EXPECT_EQ(log.take(), (lines{"krGetRegister(0x11, 512, 4, 0x7095) = 0", "sleep(2000ms) locked",
                                 "krGetRegister(0x11, 512, 4, 0x709d) = 0",
                                 "krGetDiskIdentify(0x11, 512, 0) = 0",
                                 "krGetDiskIdentify(0x11, 512, 1) = 0"}));
    put_into_bay(0, std::nullopt);
    EXPECT_FALSE(answer(chip));
    EXPECT_EQ(chip.disks[0].present, 1);
}

TEST_F(SameDisks, OneThatWasPulledOrPutInOrExchangedIsNoticedOnEitherPort) {
    const krchip& pair = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    for (const std::size_t port : {0U, 1U}) {
        const memory_disk own(port == 0 ? disk_a() : disk_b());
        put_into_bay(port, std::nullopt);
        EXPECT_FALSE(answer(pair));
        put_into_bay(port, memory_disk(port == 0 ? disk_b() : disk_a()));
        EXPECT_FALSE(answer(pair));
        put_into_bay(port, own);
        EXPECT_TRUE(answer(pair));
    }
}

TEST_F(SameDisks, AnEmptyBayMustStayEmpty) {
    const krchip& chip = take_chip(memory_disk(disk_a()), std::nullopt);
    EXPECT_TRUE(answer(chip));
    put_into_bay(1, memory_disk(disk_b()));
    EXPECT_FALSE(answer(chip));
}

TEST_F(SameDisks, AnAnswerThatFailsIsNoDisk) {
    const krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    library.answer_nth("krGetDiskIdentify(0x11, 512, 1)", 1, {-1});
    EXPECT_FALSE(answer(chip));
    EXPECT_TRUE(answer(chip));
}

TEST_F(SameDisks, OfAnotherSizeIsAnotherDisk) {
    const krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    {
        const lock_scope lock(j.records);
        j.chips[0].disks[1].capacity += 1;
    }
    EXPECT_FALSE(answer(chip));
}

} // namespace
