// Every array operation with every one of its library calls failing in turn.
#include <gtest/gtest.h>
#include <string>

#include "tests/support/array_operations.h"
#include "tests/support/change_fixture.h"

namespace {

using verdict = array_operation::verdict;

enum class fault {
    positive_status,
    negative_status,
    dropped,     // a write that is said to have succeeded
    flipped_bit, // in what is read
};

bool is_write(const std::string& line) {
    return line.starts_with("krSetRaidInfo");
}

bool is_read(const std::string& line) {
    return line.starts_with("krGetRaidInfo");
}

bool of_a_record(const std::string& line) {
    return line.find(", 1999, ") != std::string::npos;
}

std::int32_t status_of(fault kind) {
    return kind == fault::positive_status ? 1 : kind == fault::negative_status ? -1 : 0;
}

class Operation : public change_test, public testing::WithParamInterface<array_operation> {
protected:
    // No operation finds on a disk what it is going to write there.
    krchip& take_prepared() {
        world().reset();
        krchip& chip = take_chip(filled(disk_a()), filled(disk_b()));
        GetParam().prepare(chip);
        return chip;
    }

    static memory_disk filled(const identify_block& block) {
        memory_disk disk = with_data(memory_disk(block));
        disk.sectors[usual_metadata] = data_sector();
        return disk;
    }

    // The library calls when nothing fails.
    lines undisturbed() {
        krchip& chip = take_prepared();
        EXPECT_TRUE(GetParam().run(chip));
        return log.take(from_library);
    }

    void inject(fault kind, std::size_t nth) {
        if (kind != fault::flipped_bit) {
            library.answer_nth("", static_cast<int>(nth), {status_of(kind)});
            return;
        }
        library.on_nth("", static_cast<int>(nth), [this, nth] {
            library.with_bridges([nth](memory_enclosure& all) { flip_bits(all, nth % 512); });
        });
    }

    void pull(const std::vector<std::size_t>& ports) {
        library.with_bridges([&ports](memory_enclosure& all) {
            for (const std::size_t port : ports) {
                all.bridge(device).disks.at(port).reset();
            }
        });
    }

    static void flip_bits(memory_enclosure& all, std::size_t byte) {
        for (std::optional<memory_disk>& disk : all.bridge(device).disks) {
            for (auto& [lba, sector] : disk.value().sectors) {
                sector[byte] ^= 0x10;
            }
        }
    }

    // Whether the operation fails when the call of `line` does.
    static bool decisive(const std::string& line) {
        const bool record = (is_write(line) || is_read(line)) && of_a_record(line);
        switch (GetParam().decided_by) {
        case verdict::records:
        case verdict::record:
            return record;
        case verdict::restart:
            return line.starts_with("krWarmBoot");
        case verdict::nothing:
            break;
        }
        return false;
    }

    // What is left of the undisturbed calls when the one at `index` fails.
    static lines disturbed(lines calls, std::size_t index, fault kind) {
        const std::string failed = calls[index];
        const std::int32_t status = status_of(kind);
        if (status != 0) {
            calls[index] = failed.substr(0, failed.size() - 1) + std::to_string(status);
            if (is_write(failed)) { // it is not read back
                calls.erase(calls.begin() + static_cast<std::ptrdiff_t>(index) + 1);
            }
        }
        if (GetParam().decided_by == verdict::records && decisive(failed)) {
            std::erase_if(calls, [](const std::string& line) {
                return line.starts_with("krFlushHDDCache") || line.starts_with("krWarmBoot");
            });
        }
        return calls;
    }

    // Runs the operation with this fault in the call at `index` of `calls`.
    void expect_bears(fault kind, const lines& calls, std::size_t index) {
        SCOPED_TRACE("call " + std::to_string(index + 1) + ", " + calls[index]);
        krchip& chip = take_prepared();
        inject(kind, index + 1);
        EXPECT_EQ(GetParam().run(chip), !decisive(calls[index]));
        EXPECT_EQ(log.count("sleep"), 0U);
        EXPECT_EQ(j.warm_boot_pending, log.count("krWarmBoot") == 1);
        EXPECT_FALSE(j.mutex.held_here());
        EXPECT_EQ(log.take(from_library), disturbed(calls, index, kind));
    }

    // The same for every call that `applies` names.
    template<class Applies> void expect_bears_each(fault kind, Applies applies) {
        const lines calls = undisturbed();
        ASSERT_FALSE(calls.empty());
        for (std::size_t index = 0; index < calls.size() && !HasFailure(); ++index) {
            if (applies(calls[index])) {
                expect_bears(kind, calls, index);
            }
        }
    }
};

std::string name_of(const testing::TestParamInfo<array_operation>& info) {
    return info.param.name;
}

} // namespace

TEST_P(Operation, BearsAPositiveStatusOfAnyOneCall) {
    expect_bears_each(fault::positive_status, [](const std::string&) { return true; });
}

TEST_P(Operation, BearsANegativeStatusOfAnyOneCall) {
    expect_bears_each(fault::negative_status, [](const std::string&) { return true; });
}

TEST_P(Operation, FindsAnyOneRecordThatWasNotWrittenAlthoughReportedSo) {
    expect_bears_each(fault::dropped, is_write);
}

TEST_P(Operation, FindsAFlippedBitInAnyOneSectorReadBack) {
    expect_bears_each(fault::flipped_bit, is_read);
}

TEST_P(Operation, EndsWhenEveryCallFails) {
    for (const std::int32_t status : {1, -1}) {
        krchip& chip = take_prepared();
        library.answer_all("", {status});
        EXPECT_EQ(GetParam().run(chip), GetParam().decided_by == verdict::nothing);
        EXPECT_EQ(log.count("sleep"), 0U);
        EXPECT_EQ(log.count("krGetRaidInfo(0x11, 512, 1999"), 0U) << "read back after no write";
        EXPECT_FALSE(j.mutex.held_here());
    }
}

// The sectors that a change may reach are held by the library double itself.
TEST_P(Operation, EndsWhenADiskOrTheWholeEnclosureIsPulledBeforeAnyOneCall) {
    const lines calls = undisturbed();
    const std::vector<std::vector<std::size_t>> pulls = {{0}, {1}, {0, 1}};
    for (std::size_t nth = 1; nth <= calls.size() && !HasFailure(); ++nth) {
        for (const std::vector<std::size_t>& ports : pulls) {
            SCOPED_TRACE("before call " + std::to_string(nth) + ", " + calls[nth - 1]);
            krchip& chip = take_prepared();
            library.on_nth("", static_cast<int>(nth), [&] { pull(ports); });
            const bool done = GetParam().run(chip);
            EXPECT_EQ(log.count("sleep"), 0U);
            EXPECT_FALSE(j.mutex.held_here());
            if (GetParam().decided_by == verdict::records) {
                EXPECT_EQ(done, log.count("krWarmBoot") == 1) << "no restart without its records";
            }
        }
    }
}

TEST_P(Operation, EndsWhenNoReadFillsItsBuffer) {
    krchip& chip = take_prepared();
    library.answer_all("krGetRaidInfo", {0});
    const bool told =
        GetParam().decided_by == verdict::records || GetParam().decided_by == verdict::record;
    EXPECT_EQ(GetParam().run(chip), !told);
}

INSTANTIATE_TEST_SUITE_P(Every, Operation, testing::ValuesIn(every_array_operation()), name_of);
