// What every implementation of the access library does alike.
#include "device/libkrraid.h"

#include "tests/contract/worlds.h"

#include "tests/enclosure/builders.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstring>
#include <set>
#include <thread>

namespace {

using enclosure::identify_block;
using enclosure::scenario;
using enclosure::sector_data;

constexpr std::uint64_t large = 600'000'000; // sectors: beyond 28 bits
constexpr std::uint64_t small = 100'000;

template<class World> class AccessContract : public testing::Test {
protected:
    AccessContract() {
        world_.add_enclosure("box", false);
        world_.add_disk("a", enclosure::build_identify(label_of(large, "serial-a")));
        world_.add_disk("b", enclosure::build_identify(label_of(small, "serial-b")));
        world_.insert("box", 0, "a");
        world_.insert("box", 1, "b");
    }

    access_library& library() { return world_.library(); }

    std::uint32_t plug_and_open() {
        const std::uint32_t handle = world_.plug("box");
        EXPECT_EQ(library().openConnection(handle), 0);
        return handle;
    }

    std::vector<std::uint32_t> handles() {
        std::array<std::uint8_t, access_library::list_size> list;
        list.fill(0xEE);
        std::int32_t count = 0;
        EXPECT_EQ(library().getDeviceList(list.data(), &count), 0);
        std::vector<std::uint32_t> found(static_cast<std::size_t>(count));
        for (std::size_t i = 0; i < found.size(); ++i) {
            std::memcpy(&found[i], &list[i * access_library::list_entry], sizeof found[i]);
        }
        return found;
    }

    std::int32_t read(std::uint32_t device, std::uint64_t lba, int port, int lba48,
                      sector_data& data) {
        return library().krGetRaidInfo(device, data.data(), 512, lba, port, lba48);
    }

    std::int32_t write(std::uint32_t device, std::uint64_t lba, int port, int lba48,
                       const sector_data& data) {
        return library().krSetRaidInfo(device, data.data(), 512, lba, port, lba48);
    }

    // The first byte of a presence register, or -1.
    int presence(std::uint32_t device, int port) {
        std::array<std::uint8_t, 512> buffer{};
        const std::uint32_t address =
            port == 0 ? access_library::presence_port0 : access_library::presence_port1;
        const std::int32_t status = library().krGetRegister(device, buffer.data(), 512, 4, address);
        return status < 0 ? -1 : buffer[0];
    }

    World world_;
};

using worlds = testing::Types<in_process_world, sg_world, service_world>;

struct world_names {
    template<class World> static std::string GetName(int) {
        if (std::is_same_v<World, sg_world>) {
            return "ThroughNodes";
        }
        return std::is_same_v<World, in_process_world> ? "InProcess" : "OverTheBus";
    }
};

TYPED_TEST_SUITE(AccessContract, worlds, world_names);

TYPED_TEST(AccessContract, AnUnpluggedEnclosureIsNotListed) {
    EXPECT_TRUE(this->handles().empty());
}

TYPED_TEST(AccessContract, AListEntryIsAHandleAndFourZeros) {
    const std::uint32_t handle = this->world_.plug("box");
    std::array<std::uint8_t, access_library::list_size> list;
    list.fill(0xEE);
    std::int32_t count = 0;
    ASSERT_EQ(this->library().getDeviceList(list.data(), &count), 0);
    ASSERT_EQ(count, 1);
    EXPECT_EQ(std::memcmp(list.data(), &handle, 4), 0);
    EXPECT_EQ(std::vector<std::uint8_t>(list.begin() + 4, list.begin() + 8),
              std::vector<std::uint8_t>(4));
}

TYPED_TEST(AccessContract, BridgesAreListedInTheOrderOfArrival) {
    this->world_.add_enclosure("wire", true);
    const std::uint32_t second = this->world_.plug("wire");
    const std::uint32_t first = this->world_.plug("box");
    EXPECT_EQ(this->handles(), (std::vector<std::uint32_t>{second, first}));
}

TYPED_TEST(AccessContract, OnlyAListedBridgeCanBeOpened) {
    const std::uint32_t handle = this->world_.plug("box");
    EXPECT_EQ(this->library().openConnection(handle), 0);
    EXPECT_NE(this->library().openConnection(handle + 1), 0);
    EXPECT_NE(this->library().openConnection(0), 0);
}

TYPED_TEST(AccessContract, NothingWorksOnAHandleThatIsNotOpen) {
    const std::uint32_t handle = this->plug_and_open();
    EXPECT_EQ(this->library().closeConnection(handle), 0);
    sector_data data{};
    EXPECT_NE(this->read(handle, 0, 0, 1, data), 0);
    EXPECT_NE(this->write(handle, 0, 0, 1, data), 0);
    EXPECT_LT(this->library().krGetDiskIdentify(handle, data.data(), 512, 0), 0);
    EXPECT_EQ(this->presence(handle, 0), -1);
    EXPECT_NE(this->library().krGetRebuildStatus(handle, data.data(), 12), 0);
    EXPECT_NE(this->library().krFlushHDDCache(handle, 0), 0);
    EXPECT_NE(this->library().krWarmBoot(handle), 0);
    EXPECT_EQ(this->handles(), std::vector{handle});
    EXPECT_EQ(this->library().openConnection(handle), 0);
    EXPECT_EQ(this->read(handle, 0, 0, 1, data), 0);
}

TYPED_TEST(AccessContract, ASectorReadsBackAsWrittenInEitherForm) {
    const std::uint32_t handle = this->plug_and_open();
    const sector_data first = sector_number(1);
    const sector_data second = sector_number(2);
    sector_data data{};
    ASSERT_EQ(this->write(handle, small - 15, 1, 1, first), 0);
    ASSERT_EQ(this->library().krGetRaidInfoFW(handle, data.data(), 512, small - 15, 1), 0);
    EXPECT_EQ(data, first);
    ASSERT_EQ(this->library().krSetRaidInfoFW(handle, second.data(), 512, small - 15, 1), 0);
    ASSERT_EQ(this->read(handle, small - 15, 1, 0, data), 0);
    EXPECT_EQ(data, second);
}

TYPED_TEST(AccessContract, ThePortsAreTwoDisks) {
    const std::uint32_t handle = this->plug_and_open();
    ASSERT_EQ(this->write(handle, 5, 0, 1, sector_number(1)), 0);
    ASSERT_EQ(this->write(handle, 5, 1, 1, sector_number(2)), 0);
    sector_data data{};
    ASSERT_EQ(this->read(handle, 5, 0, 1, data), 0);
    EXPECT_EQ(data, sector_number(1));
}

TYPED_TEST(AccessContract, TwentyEightBitAddressingEndsAt28Bits) {
    const std::uint32_t handle = this->plug_and_open();
    sector_data data{};
    EXPECT_EQ(this->read(handle, (1U << 28) - 1, 0, 0, data), 0);
    EXPECT_NE(this->read(handle, 1U << 28, 0, 0, data), 0);
    EXPECT_EQ(this->read(handle, 1U << 28, 0, 1, data), 0);
    EXPECT_NE(this->write(handle, 1U << 28, 0, 0, data), 0);
    EXPECT_EQ(this->library().krGetRaidInfoFW(handle, data.data(), 512, 1U << 28, 0), 0);
}

TYPED_TEST(AccessContract, NothingLiesBeyondTheEndOfADisk) {
    const std::uint32_t handle = this->plug_and_open();
    sector_data data{};
    EXPECT_EQ(this->read(handle, small - 1, 1, 1, data), 0);
    EXPECT_NE(this->read(handle, small, 1, 1, data), 0);
    EXPECT_NE(this->write(handle, small, 1, 1, data), 0);
    EXPECT_NE(this->read(handle, 0xFFFFFFFFFFFFFFF1U, 1, 1, data), 0);
    EXPECT_NE(this->write(handle, 0xFFFFFFFFFFFFFFF1U, 1, 1, data), 0);
}

TYPED_TEST(AccessContract, OtherLengthsAndPortsAreRefused) {
    const std::uint32_t handle = this->plug_and_open();
    sector_data data{};
    EXPECT_NE(this->library().krGetRaidInfo(handle, data.data(), 511, 0, 0, 1), 0);
    EXPECT_NE(this->library().krSetRaidInfo(handle, data.data(), 513, 0, 0, 1), 0);
    EXPECT_NE(this->library().krGetRaidInfo(handle, data.data(), 512, 0, 2, 1), 0);
    EXPECT_NE(this->library().krGetRaidInfo(handle, data.data(), 512, 0, -1, 1), 0);
    EXPECT_LT(this->library().krGetDiskIdentify(handle, data.data(), 512, 2), 0);
    EXPECT_NE(this->library().krGetRebuildStatus(handle, data.data(), 11), 0);
    EXPECT_NE(this->library().krFlushHDDCache(handle, 2), 0);
    EXPECT_NE(this->library().krGetRaidInfo(handle, nullptr, 512, 0, 0, 1), 0);
    EXPECT_LT(this->library().krGetRegister(handle, data.data(), 3, 4, 0x7095), 0);
    EXPECT_LT(this->library().krGetRegister(handle, data.data(), 512, 4, 0x7096), 0);
}

TYPED_TEST(AccessContract, AnEmptyBayHasNoSectorsAndNoIdentity) {
    this->world_.pull("box", 1);
    const std::uint32_t handle = this->plug_and_open();
    sector_data data{};
    EXPECT_NE(this->read(handle, 0, 1, 1, data), 0);
    EXPECT_NE(this->write(handle, 0, 1, 1, data), 0);
    EXPECT_LT(this->library().krGetDiskIdentify(handle, data.data(), 512, 1), 0);
    EXPECT_EQ(this->library().krGetDiskIdentify(handle, data.data(), 512, 0), 0);
}

TYPED_TEST(AccessContract, AnEmptyBayARefusalAndABridgeThatLeftAreToldApart) {
    this->world_.pull("box", 1);
    const std::uint32_t handle = this->plug_and_open();
    sector_data data{};
    EXPECT_EQ(this->read(handle, 0, 1, 1, data), KRRAID_NO_DISK);
    EXPECT_EQ(this->library().krFlushHDDCache(handle, 1), KRRAID_NO_DISK);
    EXPECT_EQ(this->library().krGetDiskIdentify(handle, data.data(), 512, 1), KRRAID_NO_DISK);
    EXPECT_EQ(this->read(handle, large, 0, 1, data), KRRAID_FAILED);
    this->world_.unplug("box");
    EXPECT_EQ(this->read(handle, 0, 0, 1, data), KRRAID_GONE);
    EXPECT_EQ(this->library().openConnection(handle), KRRAID_GONE);
}

TYPED_TEST(AccessContract, AnIdentityIsServedAsItIs) {
    const std::uint32_t handle = this->plug_and_open();
    sector_data data{};
    ASSERT_EQ(this->library().krGetDiskIdentify(handle, data.data(), 512, 0), 0);
    EXPECT_EQ(data, enclosure::build_identify(label_of(large, "serial-a")));
}

TYPED_TEST(AccessContract, ABlockWithoutSignatureIsServedAndCountsAsNoDisk) {
    identify_block unsigned_block = enclosure::build_identify(label_of(small, "serial-c"));
    unsigned_block[510] = 0;
    this->world_.pull("box", 1);
    this->world_.add_disk("c", unsigned_block);
    this->world_.insert("box", 1, "c");
    const std::uint32_t handle = this->plug_and_open();
    sector_data data{};
    EXPECT_EQ(this->library().krGetDiskIdentify(handle, data.data(), 512, 1), 0);
    EXPECT_EQ(data, unsigned_block);
    EXPECT_EQ(this->presence(handle, 1), 0);
}

TYPED_TEST(AccessContract, ThePresenceRegistersFollowTheBays) {
    const std::uint32_t handle = this->plug_and_open();
    EXPECT_GT(this->presence(handle, 0), 0);
    EXPECT_GT(this->presence(handle, 1), 0);
    this->world_.pull("box", 1);
    EXPECT_GT(this->presence(handle, 0), 0);
    EXPECT_EQ(this->presence(handle, 1), 0);
    this->world_.insert("box", 1, "b");
    EXPECT_GT(this->presence(handle, 1), 0);
}

TYPED_TEST(AccessContract, AnIdleChipHasNothingToCopy) {
    const std::uint32_t handle = this->plug_and_open();
    std::array<std::uint8_t, 12> status;
    status.fill(0xEE);
    ASSERT_EQ(this->library().krGetRebuildStatus(handle, status.data(), 12), 0);
    EXPECT_EQ(status, (std::array<std::uint8_t, 12>{}));
}

TYPED_TEST(AccessContract, ACopyReachesItsEnd) {
    this->world_.arrange("box", scenario::rebuild);
    this->world_.set_unlimited("box");
    const std::uint32_t handle = this->plug_and_open();
    constexpr std::uint64_t end = small - 16 - 1;
    std::array<std::uint8_t, 12> status{};
    std::uint64_t current = 0;
    while (current < end) {
        ASSERT_EQ(this->library().krGetRebuildStatus(handle, status.data(), 12), 0);
        current = 0;
        for (std::size_t i = 0; i < 6; ++i) {
            ASSERT_EQ(status[i], static_cast<std::uint8_t>(end >> (8 * i)));
            current |= std::uint64_t{status[6 + i]} << (8 * i);
        }
        ASSERT_LE(current, end);
    }
}

TYPED_TEST(AccessContract, AFlushNeedsADisk) {
    const std::uint32_t handle = this->plug_and_open();
    EXPECT_EQ(this->library().krFlushHDDCache(handle, 0), 0);
    this->world_.pull("box", 0);
    EXPECT_NE(this->library().krFlushHDDCache(handle, 0), 0);
}

TYPED_TEST(AccessContract, AWarmBootGivesANewHandleAndEndsTheOldOne) {
    const std::uint32_t former = this->plug_and_open();
    ASSERT_EQ(this->library().krWarmBoot(former), 0);
    const std::uint32_t handle = this->world_.handle_after_restart("box", former);
    ASSERT_NE(handle, 0U);
    EXPECT_NE(handle, former);
    sector_data data{};
    EXPECT_NE(this->read(former, 0, 0, 1, data), 0);
    EXPECT_NE(this->library().openConnection(former), 0);
    EXPECT_EQ(this->handles(), std::vector{handle});
    EXPECT_EQ(this->library().openConnection(handle), 0);
    EXPECT_EQ(this->read(handle, 0, 0, 1, data), 0);
}

TYPED_TEST(AccessContract, AWarmBootActsOnWhatTheDisksSayNow) {
    this->world_.arrange("box", scenario::raid1);
    this->world_.set_unlimited("box");
    const std::uint32_t former = this->plug_and_open();
    sector_data record{};
    ASSERT_EQ(this->read(former, small - 15, 1, 1, record), 0);
    record[4] = 0x80;
    ASSERT_EQ(this->write(former, small - 15, 1, 1, record), 0);
    std::array<std::uint8_t, 12> status{};
    ASSERT_EQ(this->library().krGetRebuildStatus(former, status.data(), 12), 0);
    EXPECT_EQ(status[0], 0);
    ASSERT_EQ(this->library().krWarmBoot(former), 0);
    const std::uint32_t handle = this->world_.handle_after_restart("box", former);
    ASSERT_EQ(this->library().openConnection(handle), 0);
    ASSERT_EQ(this->library().krGetRebuildStatus(handle, status.data(), 12), 0);
    EXPECT_EQ(status[0], static_cast<std::uint8_t>(small - 17));
}

TYPED_TEST(AccessContract, NoHandleComesTwice) {
    std::set<std::uint32_t> seen;
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(seen.insert(this->world_.plug("box")).second);
        this->world_.unplug("box");
    }
}

TYPED_TEST(AccessContract, ABridgeThatLeftFailsUntilAnotherIsOpened) {
    const std::uint32_t former = this->plug_and_open();
    this->world_.unplug("box");
    sector_data data{};
    EXPECT_NE(this->read(former, 0, 0, 1, data), 0);
    EXPECT_EQ(this->presence(former, 0), -1);
    const std::uint32_t handle = this->world_.plug("box");
    EXPECT_NE(this->read(former, 0, 0, 1, data), 0);
    EXPECT_NE(this->read(handle, 0, 0, 1, data), 0);
    EXPECT_EQ(this->library().openConnection(handle), 0);
    EXPECT_EQ(this->read(handle, 0, 0, 1, data), 0);
}

TYPED_TEST(AccessContract, AFailingDiskIsReportedAndTheConnectionStays) {
    const std::uint32_t handle = this->plug_and_open();
    this->world_.add_failing_reads("box");
    sector_data data{};
    EXPECT_NE(this->read(handle, 0, 0, 1, data), 0);
    EXPECT_GT(this->presence(handle, 0), 0);
}

TYPED_TEST(AccessContract, SeveralThreadsMayCallAtOnce) {
    const std::uint32_t handle = this->plug_and_open();
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (std::uint64_t worker = 0; worker < 4; ++worker) {
        threads.emplace_back([&, worker] {
            for (std::uint64_t i = 0; i < 50; ++i) {
                const sector_data written = sector_number(worker * 100 + i);
                sector_data data{};
                wrong += this->write(handle, worker, 1, 1, written) != 0 ? 1 : 0;
                wrong += this->read(handle, worker, 1, 1, data) != 0 ? 1 : 0;
                wrong += data != written ? 1 : 0;
                wrong += this->handles().size() != 1 ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(wrong, 0);
}

} // namespace
