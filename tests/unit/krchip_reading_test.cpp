#include "model/krchip.h"

#include <gtest/gtest.h>
#include <limits>

#include "tests/support/fixture.h"

namespace {

const lines full_reading = {
    "krGetRegister(0x11, 512, 4, 0x7095) = 0", "sleep(2000ms) locked",
    "krGetRegister(0x11, 512, 4, 0x709d) = 0", "krGetDiskIdentify(0x11, 512, 0) = 0",
    "trace(\"disk 0 gave a response\")",       "krGetDiskIdentify(0x11, 512, 1) = 0",
    "trace(\"disk 1 gave a response\")"};

class DiskInformation : public model_test {
protected:
    // A chip as the scan makes it, with nothing read.
    krchip& new_chip(std::optional<memory_disk> disk0, std::optional<memory_disk> disk1) {
        attach(device, usb_bridge(1, 2, 3), std::move(disk0), std::move(disk1));
        j.add_controller(usb_identity(3), device);
        return j.chips.back();
    }

    int retrieve(krchip& chip) {
        const gate_scope work(j.gate);
        return chip.retrievediskinformation();
    }

    static void expect_blank(const krdisk& disk) {
        EXPECT_EQ(disk.model, "");
        EXPECT_EQ(disk.capacity, 0U);
    }
};

class MetadataReading : public model_test {
protected:
    void read(krchip& chip, bool port) {
        const gate_scope work(j.gate);
        chip.read_raid_info_disk(port);
    }
};

class ToolReading : public model_test {};

identify_block with_28_bits(std::uint32_t sectors) {
    identify_block block;
    block.lba48 = false;
    block.sectors28 = sectors;
    return block;
}

identify_block with_chs(std::uint16_t cylinders, std::uint16_t heads, std::uint16_t sectors) {
    identify_block block;
    block.lba48 = false;
    block.lba = false;
    block.cylinders = cylinders;
    block.heads = heads;
    block.sectors_per_track = sectors;
    return block;
}

memory_disk sized(const identify_block& block, std::uint64_t size) {
    memory_disk disk(block);
    disk.size = size;
    return disk;
}

} // namespace

TEST_F(DiskInformation, ReadsBothRegistersWithAPauseThenBothDisks) {
    krchip& chip = new_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    EXPECT_EQ(retrieve(chip), 1);
    EXPECT_EQ(log.take(), full_reading);
    EXPECT_EQ(chip.disks[0].model, "DISK A");
    EXPECT_EQ(chip.disks[1].model, "DISK B");
    EXPECT_EQ(chip.disks[0].present, 1);
    EXPECT_EQ(chip.disks[1].present, 1);
}

TEST_F(DiskInformation, IgnoresWhatTheRegistersSay) {
    krchip& chip = new_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    library.answer_all("krGetRegister", {-1});
    retrieve(chip);
    EXPECT_EQ(chip.disks[0].present, 1);
    EXPECT_EQ(chip.disks[1].present, 1);
}

TEST_F(DiskInformation, OfAnEmptyPortMarksNoDisk) {
    krchip& chip = new_chip(std::nullopt, memory_disk(disk_b()));
    retrieve(chip);
    EXPECT_EQ(chip.disks[0].present, 0);
    expect_blank(chip.disks[0]);
    EXPECT_EQ(chip.disks[1].present, 1);
    EXPECT_EQ(log.count("trace"), 1U);
}

TEST_F(DiskInformation, WithoutTheIntegrityByteMarksNoDisk) {
    identify_block block = disk_a();
    block.integrity = 0xA4;
    krchip& chip = new_chip(memory_disk(block), std::nullopt);
    retrieve(chip);
    EXPECT_EQ(chip.disks[0].present, 0);
    expect_blank(chip.disks[0]);
}

TEST_F(DiskInformation, APositiveStatusMarksADiskWithoutItsIdentity) {
    memory_disk odd(disk_a());
    odd.identify_status = 7;
    krchip& chip = new_chip(odd, std::nullopt);
    retrieve(chip);
    EXPECT_EQ(chip.disks[0].present, 1);
    expect_blank(chip.disks[0]);
    EXPECT_EQ(log.count("trace"), 0U);
}

TEST_F(DiskInformation, ANegativeStatusWithAnIntactBlockMarksNoDisk) {
    memory_disk odd(disk_a());
    odd.identify_status = std::numeric_limits<std::int32_t>::min();
    krchip& chip = new_chip(odd, std::nullopt);
    retrieve(chip);
    EXPECT_EQ(chip.disks[0].present, 0);
    expect_blank(chip.disks[0]);
}

TEST_F(DiskInformation, ASuccessThatFillsNothingMarksNoDisk) {
    krchip& chip = new_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    library.answer_nth("krGetDiskIdentify", 2, {0});
    retrieve(chip);
    EXPECT_EQ(chip.disks[0].present, 1);
    EXPECT_EQ(chip.disks[1].present, 0) << "the answer of the first port was judged again";
}

TEST_F(DiskInformation, NeverTakesPresenceAway) {
    krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    library.with_bridges([](memory_enclosure& all) { all.bridges.front().second.disks = {}; });
    retrieve(chip);
    EXPECT_EQ(chip.disks[0].present, 1);
    EXPECT_EQ(chip.disks[0].model, "DISK A");
}

TEST_F(MetadataReading, OfAnAbsentDiskAsksNothing) {
    krchip& chip = take_chip(std::nullopt, std::nullopt);
    chip.disks[0].raid_mode = 2;
    read(chip, false);
    EXPECT_EQ(log.take(), lines{});
    EXPECT_EQ(chip.disks[0].raid_mode, 2);
}

TEST_F(MetadataReading, TakesEveryFieldOfTheRecord) {
    metadata_sector sector = metadata_of(4, 0, 0x123456789AB, disk_b());
    sector.flags = 0x80;
    sector.time = "20240229123456" + std::string("\0\x7F", 2);
    krchip& chip = take_chip(memory_disk(disk_a(), sector), std::nullopt);
    const krdisk& disk = chip.disks[0];
    EXPECT_EQ(disk.raid_mode, 4);
    EXPECT_EQ(disk.rebuild_mark, 1);
    EXPECT_EQ(disk.raid_capacity, 0x123456789ABU);
    EXPECT_EQ(std::string(disk.raid_time.begin(), disk.raid_time.end()), sector.time);
    EXPECT_EQ(std::string(disk.partner_model_raw.begin(), disk.partner_model_raw.end()),
              sector.partner_model);
    EXPECT_EQ(std::string(disk.partner_serial_raw.begin(), disk.partner_serial_raw.end()),
              sector.partner_serial);
    EXPECT_EQ(hex_dump(disk.raid_info_raw.bytes), hex_dump(sector.bytes()));
}

TEST_F(MetadataReading, AMarkOnceSeenStays) {
    metadata_sector sector = metadata_of(2, 0, 1900, disk_b());
    sector.flags = 0x80;
    krchip& chip = take_chip(memory_disk(disk_a(), sector), std::nullopt);
    sector.flags = 0;
    library.with_bridges(
        [&](memory_enclosure& all) { all.disk(device, 0).sectors[1999] = sector.bytes(); });
    read(chip, false);
    EXPECT_EQ(chip.disks[0].rebuild_mark, 1);
}

TEST_F(MetadataReading, ThatFailsMakesTheModeZeroAndKeepsTheOtherFields) {
    krchip& chip = take_chip(member_a(2), std::nullopt);
    library.answer_nth("krGetRaidInfo(", 1, {3});
    read(chip, false);
    EXPECT_EQ(log.take(), (lines{"krGetRaidInfo(0x11, 512, 1999, 0, 1) = 3",
                                 "trace(\"disk port no 0 mode made zero\")"}));
    EXPECT_EQ(chip.disks[0].raid_mode, 0);
    EXPECT_EQ(chip.disks[0].raid_capacity, 1900U);
    EXPECT_EQ(hex_dump(chip.disks[0].raid_info_raw.bytes), hex_dump(sector_bytes{}))
        << "nothing was read: the buffer is all zero";
}

TEST_F(MetadataReading, ThatFailsKeepsTheBytesItGotAllTheSame) {
    krchip& chip = take_chip(member_a(2), std::nullopt);
    const sector_bytes torn = metadata_of(1, 0, 5, disk_a()).bytes();
    library.answer_nth("krGetRaidInfo(", 1, {-5, {torn.begin(), torn.end()}, {}});
    read(chip, false);
    EXPECT_EQ(chip.disks[0].raid_mode, 0);
    EXPECT_EQ(chip.disks[0].raid_capacity, 1900U);
    EXPECT_EQ(hex_dump(chip.disks[0].raid_info_raw.bytes), hex_dump(torn));
}

TEST_F(MetadataReading, WithoutSignatureMakesTheModeZero) {
    krchip& chip = take_chip(std::nullopt, member_b(2));
    library.with_bridges([](memory_enclosure& all) { all.disk(device, 1).sectors.clear(); });
    read(chip, true);
    EXPECT_EQ(log.take(), (lines{"krGetRaidInfo(0x11, 512, 1999, 1, 1) = 0",
                                 "trace(\"disk port no 1 mode made zero\")"}));
    EXPECT_EQ(chip.disks[1].raid_mode, 0);
}

TEST_F(MetadataReading, OfAUsbBridgeTellsWhetherTheDiskHasFortyEightBits) {
    krchip& chip = take_chip(memory_disk(with_28_bits(1015)), memory_disk(disk_b()));
    read(chip, false);
    read(chip, true);
    EXPECT_EQ(log.take(from_library), (lines{"krGetRaidInfo(0x11, 512, 1000, 0, 0) = 0",
                                             "krGetRaidInfo(0x11, 512, 1999, 1, 1) = 0"}));
}

TEST_F(MetadataReading, OfAFirewireBridgeUsesItsFormForFortyEightBitsOnly) {
    krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(with_28_bits(1015)), true);
    read(chip, false);
    read(chip, true);
    EXPECT_EQ(log.take(from_library), (lines{"krGetRaidInfoFW(0x11, 512, 1999, 0) = 0",
                                             "krGetRaidInfo(0x11, 512, 1000, 1, 0) = 0"}));
}

TEST_F(MetadataReading, OfAChsDiskOnFirewireUsesThePlainForm) {
    krchip& chip = take_chip(sized(with_chs(10, 10, 10), 1000), std::nullopt, true);
    read(chip, false);
    EXPECT_EQ(log.take(from_library), lines{"krGetRaidInfo(0x11, 512, 985, 0, 0) = 0"});
}

TEST_F(MetadataReading, OfADiskWithoutASizeAsksForASectorBeyondAnyDisk) {
    memory_disk odd(disk_a());
    odd.identify_status = 1;
    krchip& chip = take_chip(odd, std::nullopt);
    read(chip, false);
    EXPECT_EQ(log.take(from_library),
              lines{"krGetRaidInfo(0x11, 512, 18446744073709551601, 0, 1) = 5"});
    EXPECT_EQ(chip.disks[0].raid_mode, 0);
}

TEST_F(MetadataReading, OfAChipReadsDiskZeroThenDiskOneThenDecodes) {
    krchip& chip = take_chip(member_a(1), member_b(1));
    chip.raid_valid = 0;
    const gate_scope work(j.gate);
    chip.read_raid_info();
    EXPECT_EQ(log.take(), (lines{"krGetRaidInfo(0x11, 512, 1999, 0, 1) = 0",
                                 "krGetRaidInfo(0x11, 512, 1999, 1, 1) = 0"}));
    EXPECT_EQ(chip.raid_valid, 1);
}

TEST_F(ToolReading, WithoutChipsOnlyBuildsTheTree) {
    const gate_scope work(j.gate);
    EXPECT_EQ(j.updatediskinformation(), 1);
    EXPECT_EQ(log.take(), lines{});
    EXPECT_EQ(j.read_raid(), 1);
    EXPECT_EQ(log.take(), (lines{"cleartree()", "refreshtree()", "expandtree()"}));
}

TEST_F(ToolReading, AsksEveryChipInTurn) {
    attach(0x21, usb_bridge(1, 2, 5), memory_disk(disk_a()));
    attach(0x22, usb_bridge(1, 2, 4), memory_disk(disk_b()));
    j.add_controller(usb_identity(5), 0x21);
    j.add_controller(usb_identity(4), 0x22);
    const gate_scope work(j.gate);
    EXPECT_EQ(j.updatediskinformation(), 1);
    EXPECT_EQ(
        log.take(from_library | from_pauses),
        (lines{"krGetRegister(0x21, 512, 4, 0x7095) = 0", "sleep(2000ms) locked",
               "krGetRegister(0x21, 512, 4, 0x709d) = 0", "krGetDiskIdentify(0x21, 512, 0) = 0",
               "krGetDiskIdentify(0x21, 512, 1) = -1", "krGetRegister(0x22, 512, 4, 0x7095) = 0",
               "sleep(2000ms) locked", "krGetRegister(0x22, 512, 4, 0x709d) = 0",
               "krGetDiskIdentify(0x22, 512, 0) = 0", "krGetDiskIdentify(0x22, 512, 1) = -1"}));
}

TEST_F(ToolReading, TracesTheChipBeforeItIsRead) {
    attach(0x21, usb_bridge(1, 2, 5), memory_disk(disk_a()));
    j.add_controller(usb_identity(5), 0x21);
    const gate_scope work(j.gate);
    j.setup_controller_map();
    j.updatediskinformation();
    log.clear();
    EXPECT_EQ(j.read_raid(), 1);
    EXPECT_EQ(log.take(), (lines{"trace(\"reading raid info for chip 0\")",
                                 "krGetRaidInfo(0x21, 512, 1999, 0, 1) = 0",
                                 "trace(\"disk port no 0 mode made zero\")", "cleartree()",
                                 "addchipFirewire(false)", "adddisk(0, \"P0: DISK A\", false)",
                                 "refreshtree()", "expandtree()"}));
}

TEST_F(ToolReading, TheNameOfABridgeIsThreeLevelsBelowItsEntry) {
    krchip& chip = take_chip(std::nullopt, std::nullopt);
    registered_bridge bridge = usb_bridge(1, 2, 3);
    bridge.name = "Emulated Bridge";
    registry.put(device, bridge);
    EXPECT_EQ(chip.get_raid_name(), "Emulated Bridge");
    EXPECT_EQ(log.take(), lines{"name(0x11 down 3)"});
}

TEST_F(ToolReading, ABridgeThatHasGoneHasNoName) {
    krchip& chip = take_chip(std::nullopt, std::nullopt);
    registry.remove(device);
    EXPECT_EQ(chip.get_raid_name(), "");
}

TEST_F(ToolReading, ACopyOfAChipSharesNothingButItsMonitors) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    chip.poller_thread = std::make_shared<monitor_block>(chip_place{1, 0});
    krchip copy = chip;
    copy.disks[0].model = "OTHER";
    copy.polling = true;
    EXPECT_EQ(chip.disks[0].model, "DISK A");
    EXPECT_FALSE(chip.polling);
    EXPECT_EQ(copy.poller_thread, chip.poller_thread);
    EXPECT_EQ(copy.identity.location_id, chip.identity.location_id);
}
