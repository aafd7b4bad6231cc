// Every change of an array is cut off at every point and read again.
#include <algorithm>
#include <cctype>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <string_view>
#include <utility>

#include "tests/power/findings.h"
#include "tests/power/golden_table.h"
#include "tests/power/power_cases.h"
#include "tests/power/power_fixture.h"
#include "tests/power/tally.h"

namespace {

std::vector<case_tally>& tallies() {
    static std::vector<case_tally> all;
    return all;
}

bool& rewriting() {
    static bool wanted = false;
    return wanted;
}

// Without what no array and no data are in: the first 64 sectors and the rest of an erased record.
disk_contents without_leftovers(disk_pair disks) {
    for (auto& disk : disks) {
        if (disk) {
            std::erase_if(disk->sectors, [](const auto& entry) { return entry.first < 64; });
            sector_bytes& record = disk->sectors[record_address(*disk)];
            record = record[0] == 'K' ? record : sector_bytes{};
        }
    }
    return timeless_contents_of(std::move(disks));
}

class PowerCut : public power_test, public testing::WithParamInterface<power_case> {
protected:
    struct result {
        finding is;
        ending how = ending::by_itself;
    };

    // What the change makes of the disks when nothing disturbs it, before the restart.
    undisturbed_change let_it_happen(disk_events& events) {
        undisturbed_change change{GetParam().disks, GetParam().disks};
        events = act(change.end, GetParam().act);
        meanwhile(change.start);
        meanwhile(change.end);
        return change;
    }

    // The table is of all cases, and kept in the manual.
    static void TearDownTestSuite() {
        if (tallies().size() != every_power_case().size()) {
            return;
        }
        const std::string table = table_of(tallies());
        std::cout << table;
        if (rewriting()) {
            keep_table(table);
        }
        EXPECT_EQ(kept_table(), table) << "look at what has changed; then power_test --rewrite";
    }

    static void meanwhile(disk_pair& disks) {
        if (GetParam().meanwhile) {
            GetParam().meanwhile(disks);
        }
    }

    // What it comes to in the end; a copy that was under way may have ended before it.
    std::vector<disk_pair> wanted_ends() {
        std::vector<disk_pair> ends;
        disk_pair disks = GetParam().disks;
        if (GetParam().meanwhile) {
            ends.push_back(disks);
            meanwhile(ends.back());
        }
        for (int copied = 0; copied < 2; ++copied) {
            disk_pair end = disks;
            act(end, GetParam().act);
            meanwhile(end);
            come_back(end);
            ends.push_back(end);
            come_back(disks);
        }
        return ends;
    }

    result look_at(const undisturbed_change& change, const disk_pair& left) {
        const finding is = judge_now(change, left);
        disk_pair disks = left;
        come_back(disks);
        judge_now(change, disks);
        EXPECT_FALSE(chip_bench::read(disks).copy) << "a copy that begins again after its end";
        return {is, carry_on(disks, is)};
    }

    finding judge_now(const undisturbed_change& change, const disk_pair& disks) {
        const finding is = judge(GetParam(), change, disks, read(disks), chip_bench::read(disks));
        EXPECT_EQ(is.fault, "");
        return is;
    }

    bool is_wanted(const disk_pair& disks) const {
        return std::any_of(ends_.begin(), ends_.end(), [&disks](const disk_pair& end) {
            return timeless_contents_of(end) == timeless_contents_of(disks);
        });
    }

    bool is_wanted_but_for_leftovers(const disk_pair& disks) const {
        return std::any_of(ends_.begin(), ends_.end(), [&disks](const disk_pair& end) {
            return without_leftovers(end) == without_leftovers(disks);
        });
    }

    bool offered(const disk_pair& disks) {
        return GetParam().offered && GetParam().offered(read(disks).view);
    }

    void do_again(disk_pair& disks) {
        act(disks, GetParam().act);
        come_back(disks);
    }

    // Power is back, and the user does what the program lets him do.
    ending carry_on(disk_pair disks, const finding& from) {
        if (is_wanted(disks)) {
            return ending::by_itself;
        }
        ending how = ending::again;
        if (!offered(disks) && GetParam().way_out) {
            how = ending::by_way_out;
            act(disks, GetParam().way_out);
            come_back(disks);
        }
        if (offered(disks)) {
            do_again(disks);
        }
        if (is_wanted(disks)) {
            return how;
        }
        if (from.remarks.contains(remark::not_named)) {
            return ending::leftovers;
        }
        EXPECT_TRUE(is_wanted_but_for_leftovers(disks)) << "found " << static_cast<int>(from.is);
        return ending::leftovers;
    }

    std::vector<disk_pair> ends_;
};

TEST_P(PowerCut, LeavesTheOldStateTheNewOneOrOneThatShowsAsIncomplete) {
    disk_events events;
    const undisturbed_change change = let_it_happen(events);
    ASSERT_NE(contents_of(change.start), contents_of(change.end));
    EXPECT_TRUE(!GetParam().offered || offered(GetParam().disks));
    ends_ = wanted_ends();
    case_tally tally{GetParam().change, GetParam().start, {}, {}, {}, {}};
    std::map<disk_contents, result> seen;
    for_each_cut(GetParam().disks, events, [&](const power_cut& cut) {
        disk_pair left = cut.disks;
        meanwhile(left);
        const disk_contents contents = contents_of(left);
        auto known = seen.find(contents);
        if (known == seen.end()) {
            known = seen.emplace(contents, look_at(change, left)).first;
        }
        tally.add(known->second.is, known->second.how, cut.torn);
    });
    tallies().push_back(tally);
}

// "CreateAMirrorFromAStripe".
std::string name_of_case(const testing::TestParamInfo<power_case>& info) {
    std::string name;
    bool begins_word = true;
    for (const char c : info.param.change + " from " + info.param.start) {
        const bool is_part = std::isalnum(static_cast<unsigned char>(c)) != 0;
        if (is_part) {
            name +=
                begins_word ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c;
        }
        begins_word = !is_part;
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(Every, PowerCut, testing::ValuesIn(every_power_case()), name_of_case);

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    rewriting() = argc == 2 && std::string_view(argv[1]) == "--rewrite";
    return RUN_ALL_TESTS();
}
