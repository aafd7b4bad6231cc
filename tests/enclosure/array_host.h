// What a host does to change an array: sectors through the access library, and nothing else.
#pragma once

#include "enclosure/metadata.h"
#include "enclosure/numbers.h"

#include "tests/enclosure/builders.h"

#include <gtest/gtest.h>

#include <array>

// Works the enclosure "box" of put_pair, which must be plugged in.
class array_host {
public:
    explicit array_host(enclosure::in_process_bench& bench) : bench_(bench) { reopen(); }

    std::uint32_t handle() const { return handle_; }

    // Takes the connection of the bridge as it is on the bus now.
    void reopen() {
        handle_ = bench_.handle_of("box");
        EXPECT_EQ(bench_.library().openConnection(handle_), 0);
    }

    void write(int port, std::uint64_t lba, const enclosure::sector_data& data) {
        EXPECT_EQ(bench_.library().krSetRaidInfoFW(handle_, data.data(), 512, lba, port), 0);
    }

    enclosure::sector_data read(int port, std::uint64_t lba) {
        enclosure::sector_data data{};
        EXPECT_EQ(bench_.library().krGetRaidInfoFW(handle_, data.data(), 512, lba, port), 0);
        return data;
    }

    // Records for both disks that name each other; `source` is the port of the marked one, or -1.
    void write_records(enclosure::array_kind kind, std::uint64_t sectors, int source = -1) {
        for (int port = 0; port < enclosure::ports; ++port) {
            enclosure::array_record record;
            record.kind = kind;
            record.member = static_cast<std::uint8_t>(port);
            record.copy_source = port == source;
            record.sectors = sectors;
            record.partner = enclosure::identity_of(identity_at(1 - port));
            record.stamp = enclosure::stamp_of("20240229134501");
            write(port, record_at(port), enclosure::write_record(record));
        }
    }

    void erase_records() {
        for (int port = 0; port < enclosure::ports; ++port) {
            write(port, record_at(port), {});
        }
    }

    void flush(int port) { EXPECT_EQ(bench_.library().krFlushHDDCache(handle_, port), 0); }

    // Makes the records lasting and restarts the chip; waits until it is back.
    void commit() {
        flush(0);
        flush(1);
        EXPECT_EQ(bench_.library().krWarmBoot(handle_), 0);
        EXPECT_EQ(bench_.handle_of("box"), 0U);
        bench_.advance(std::chrono::seconds(1));
        reopen();
    }

    // End and current LBA of the copy.
    std::array<std::uint64_t, 2> status() {
        std::array<std::uint8_t, 12> record{};
        EXPECT_EQ(bench_.library().krGetRebuildStatus(handle_, record.data(), 12), 0);
        return {enclosure::get_le(record.data(), 6), enclosure::get_le(&record[6], 6)};
    }

private:
    enclosure::identify_block identity_at(int port) {
        enclosure::identify_block block{};
        EXPECT_EQ(bench_.library().krGetDiskIdentify(handle_, block.data(), 512, port), 0);
        return block;
    }

    std::uint64_t record_at(int port) {
        return enclosure::identify_sectors(identity_at(port)) - 15;
    }

    enclosure::in_process_bench& bench_;
    std::uint32_t handle_ = 0;
};
