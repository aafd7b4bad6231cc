// How often each finding came, as a table.
#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "tests/power/findings.h"

// How the change came to its end after a power cut.
enum class ending {
    by_itself,  // once power was back
    again,      // by the same change once more
    by_way_out, // as the manual says
    leftovers,  // the same, but first sectors or the rest of a record that belongs to no array
    unnoticed,  // not at all: nothing tells that something is missing
};
inline constexpr std::size_t ending_kinds = 5;

// Cuts that leave whole sectors, and those that tear a record.
struct cut_count {
    std::size_t whole = 0;
    std::size_t torn = 0;

    void add(bool is_torn) { ++(is_torn ? torn : whole); }
    void add(const cut_count& other);
    bool empty() const { return whole + torn == 0; }
};

struct case_tally {
    std::string change;
    std::string start;
    cut_count cuts;
    std::array<cut_count, found_kinds> findings;
    std::map<remark, cut_count> remarks;
    std::array<cut_count, ending_kinds> endings;
    cut_count second_cuts; // while the program acts on what another cut has left

    void add(const finding& what, ending how, bool torn);
    void add(const case_tally& other);
};

// The rows and their sum, in Markdown.
std::string table_of(const std::vector<case_tally>& rows);
