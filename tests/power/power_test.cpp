// Every change of an array is cut off at every point and read again.
#include <cctype>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/power/golden_table.h"
#include "tests/power/power_cases.h"
#include "tests/power/replay.h"
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

class PowerCut : public replay, public testing::WithParamInterface<power_case> {
protected:
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
};

TEST_P(PowerCut, LeavesTheOldStateTheNewOneOrOneThatShowsAsIncomplete) {
    tallies().push_back(cut_everywhere(GetParam()));
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
