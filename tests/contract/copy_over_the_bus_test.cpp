// A copy in the service, while the service or the power goes.
#include "tests/contract/worlds.h"

#include "tests/enclosure/builders.h"

#include "enclosure/numbers.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <iterator>

namespace {

using enclosure::sector_size;

constexpr std::uint64_t sectors = 40'000;
constexpr std::uint64_t area = sectors - 16;
constexpr std::uint64_t crawling = sector_size; // bytes a second: one sector

class CopyOverTheBus : public testing::Test {
protected:
    CopyOverTheBus() {
        world_.add_enclosure("box", false);
        for (const std::string name : {"a", "b"}) {
            world_.add_disk(name, enclosure::build_identify(label_of(sectors, name)));
        }
        std::ofstream image(image_of("a"), std::ios::in | std::ios::binary);
        for (std::uint64_t lba = 0; lba < area; ++lba) {
            const enclosure::sector_data data = sector_number(lba);
            image.write(reinterpret_cast<const char*>(data.data()), sector_size);
        }
        image.close();
        world_.insert("box", 0, "a");
        world_.insert("box", 1, "b");
        world_.arrange("box", enclosure::scenario::rebuild);
        host().client().set_rate("box", 10'000 * sector_size);
        handle_ = world_.plug("box");
        await_current(2'000);
        host().client().set_rate("box", crawling);
    }

    host_process& host() { return world_.host(); }

    std::filesystem::path image_of(const std::string& disk) {
        return host().folder() / "disks" / (disk + ".img");
    }

    std::uint64_t current() {
        std::array<std::uint8_t, 12> status{};
        world_.library().openConnection(handle_);
        EXPECT_EQ(world_.library().krGetRebuildStatus(handle_, status.data(), 12), 0);
        EXPECT_EQ(enclosure::get_le(status.data(), 6), area - 1);
        return enclosure::get_le(&status[6], 6);
    }

    void await_current(std::uint64_t wanted) {
        while (!HasFailure() && current() < wanted) {
        }
    }

    void await_return() { handle_ = host().wait_for_new_handle("box", handle_); }

    void expect_copied_in_the_end() {
        world_.set_unlimited("box");
        await_current(area - 1);
        EXPECT_TRUE(content_of("a") == content_of("b"));
    }

    // Of the array.
    std::string content_of(const std::string& disk) {
        std::ifstream image(image_of(disk), std::ios::binary);
        std::string content(area * sector_size, '\0');
        image.read(content.data(), static_cast<std::streamsize>(content.size()));
        EXPECT_TRUE(image.good());
        return content;
    }

    service_world world_;
    std::uint32_t handle_ = 0;
};

TEST_F(CopyOverTheBus, GoesOnWhereItWasWhenTheServiceIsStartedAgain) {
    const std::string source = content_of("a");
    const std::uint64_t before = current();
    EXPECT_EQ(host().stop(), 0);
    host().start();
    await_return();
    EXPECT_GE(current(), before);
    EXPECT_LT(current(), area - 1);
    expect_copied_in_the_end();
    EXPECT_TRUE(content_of("a") == source);
}

TEST_F(CopyOverTheBus, ComesToItsEndWhenTheServiceWasKilled) {
    const std::string source = content_of("a");
    host().kill();
    host().start();
    await_return();
    expect_copied_in_the_end();
    EXPECT_TRUE(content_of("a") == source);
}

TEST_F(CopyOverTheBus, BeginsAnewAfterAPowerCut) {
    const std::string source = content_of("a");
    host().client().power_cut("box");
    await_return();
    EXPECT_LT(current(), 1'000U);
    expect_copied_in_the_end();
    EXPECT_TRUE(content_of("a") == source);
}

} // namespace
