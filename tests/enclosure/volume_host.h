// A chip with two disks, used as a host uses the volume: by SCSI commands and nothing else.
#pragma once

#include "enclosure/chip.h"
#include "enclosure/numbers.h"
#include "enclosure/opcodes.h"
#include "enclosure/scenario.h"

#include "tests/enclosure/builders.h"
#include "tests/enclosure/temporary_folder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using bytes = std::vector<std::uint8_t>;

// `count` sectors with contents that no other sector and no other `version` has.
inline bytes sectors_from(std::uint64_t lba, std::uint64_t count, std::uint64_t version = 0) {
    bytes data;
    for (std::uint64_t i = 0; i < count; ++i) {
        const enclosure::sector_data sector = sector_number((lba + i) * 7919 + version);
        data.insert(data.end(), sector.begin(), sector.end());
    }
    return data;
}

// So many sectors without content.
inline bytes zeros(std::uint64_t count) {
    return bytes(count * enclosure::sector_size);
}

// Key, code and qualifier of a refusal, which must be one.
inline enclosure::sense_code sense_of(const enclosure::scsi_reply& reply) {
    EXPECT_EQ(reply.status, enclosure::scsi_status::check_condition);
    if (reply.sense.size() != enclosure::sense_size) {
        ADD_FAILURE() << "no sense data";
        return {};
    }
    return {reply.sense[2], reply.sense[12], reply.sense[13]};
}

// A command that addresses sectors, in the length that its opcode has.
inline bytes block_cdb(std::uint8_t code, std::uint64_t lba, std::uint64_t count,
                       std::uint8_t flags = 0) {
    bytes cdb(enclosure::cdb_length(code));
    const bool wide = cdb.size() == 16;
    cdb[0] = code;
    cdb[1] = flags;
    enclosure::put_be(&cdb[2], lba, wide ? 8 : 4);
    enclosure::put_be(&cdb[wide ? 10 : 7], count, wide ? 4 : 2);
    return cdb;
}

class volume_host {
public:
    static constexpr std::uint32_t any_length = 1U << 30;

    // Nothing is in the bays and the power is off.
    volume_host() : chip_(bays_, faults_, "Kestrel Duo") {}

    void insert_new(int port, const std::string& name, std::uint64_t sectors) {
        bays_.insert(port, std::make_shared<enclosure::disk>(enclosure::disk::create(
                               name, enclosure::build_identify(label_of(sectors, "serial-" + name)),
                               folder_.path() / (name + ".img"))));
    }

    // Disks "a" and "b" in a state, switched on; a copy waits for advance().
    void start(enclosure::scenario state, std::uint64_t size_a, std::uint64_t size_b) {
        insert_new(0, "a", size_a);
        insert_new(1, "b", size_b);
        enclosure::write_records(state, *bays_.at(0), *bays_.at(1));
        restart();
    }

    void restart() {
        chip_.power_off();
        chip_.power_on(enclosure::moment{0});
    }

    std::shared_ptr<enclosure::disk> pull(int port) {
        std::shared_ptr<enclosure::disk> taken = bays_.pull(port);
        chip_.disks_changed();
        return taken;
    }

    void put_in(int port, std::shared_ptr<enclosure::disk> what) {
        bays_.insert(port, std::move(what));
        chip_.disks_changed();
    }

    enclosure::scsi_reply send(const bytes& cdb, const bytes& out = {},
                               std::uint32_t allocation = any_length) {
        return chip_.execute(cdb, out, allocation);
    }

    enclosure::scsi_reply write(std::uint64_t lba, const bytes& data, std::uint8_t flags = 0) {
        return send(
            block_cdb(enclosure::op_write_16, lba, data.size() / enclosure::sector_size, flags),
            data);
    }

    enclosure::scsi_reply read(std::uint64_t lba, std::uint64_t count) {
        return send(block_cdb(enclosure::op_read_16, lba, count));
    }

    void expect_written(std::uint64_t lba, const bytes& data) {
        EXPECT_EQ(write(lba, data).status, enclosure::scsi_status::good) << lba;
    }

    void expect_reads(std::uint64_t lba, const bytes& data) {
        const enclosure::scsi_reply reply = read(lba, data.size() / enclosure::sector_size);
        EXPECT_EQ(reply.status, enclosure::scsi_status::good) << lba;
        EXPECT_TRUE(reply.data_in == data) << lba;
    }

    std::uint64_t capacity() {
        const enclosure::scsi_reply reply =
            send({0x9E, 0x10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 32, 0, 0});
        return reply.data_in.size() == 32 ? enclosure::get_be(reply.data_in.data(), 8) + 1 : 0;
    }

    // A disk's sectors, past chip and faults.
    static bytes image_of(enclosure::disk& which, std::uint64_t lba, std::uint64_t count) {
        bytes data(count * enclosure::sector_size);
        EXPECT_TRUE(which.image().read(lba, data));
        return data;
    }
    bytes on_disk(int port, std::uint64_t lba, std::uint64_t count) {
        return image_of(*bays_.at(port), lba, count);
    }
    void put_on_disk(int port, std::uint64_t lba, const bytes& data) {
        EXPECT_TRUE(bays_.at(port)->image().write(lba, data));
    }

    void add_fault(enclosure::fault_kind kind, enclosure::io_kind operation, int port,
                   std::uint64_t first, std::uint64_t last, std::uint32_t byte = 0) {
        enclosure::fault_rule rule;
        rule.kind = kind;
        rule.operation = operation;
        rule.port = port;
        rule.first_lba = first;
        rule.last_lba = last;
        rule.byte = byte;
        faults_.add(rule);
    }
    void clear_faults() { faults_.clear(); }

    enclosure::volume_state state() const { return chip_.presented().state; }
    enclosure::mirror_copy& copy() { return chip_.copy(); }

    // Lets the copy do one piece, of at most so many sectors.
    bool copy_piece(std::uint64_t most_sectors) {
        copy().set_rate(most_sectors * enclosure::sector_size, now_);
        now_ += std::chrono::seconds(1);
        return chip_.advance(now_);
    }
    void finish_copy() {
        copy().set_rate(enclosure::mirror_copy::unlimited, now_);
        while (chip_.advance(now_)) {
        }
    }

private:
    temporary_folder folder_;
    enclosure::bays bays_;
    enclosure::fault_stack faults_{bays_};
    enclosure::chip chip_;
    enclosure::moment now_{0};
};
