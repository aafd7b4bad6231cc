// The plan of a change in words.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "model/change_plan.h"
#include "model/services.h"

enum class fate_tone { calm, kept, lost };

// One disk of a plan, ready to be shown. Texts are UTF-8 and may hold any characters.
struct plan_card {
    bool present = false;
    fate_tone tone = fate_tone::calm;
    std::string bay;
    std::string model;  // of an empty bay: that it is empty
    std::string serial; // with its caption; empty without a disk
    std::string size;   // the same
    std::string fate;
    std::vector<std::string> warnings;
};

enum class plan_arrow { none, to_disk2, to_disk1 };

struct plan_view {
    std::string heading; // what will be done
    std::string enclosure;
    std::array<plan_card, 2> cards; // index = port
    plan_arrow arrow = plan_arrow::none;
    std::string arrow_word; // beside the arrow
};

// Any thread.
plan_view describe(const change_plan& plan, bool decimal_units, const text_lookup& texts);

// What becomes of one disk, without a line end.
std::string as_line(const plan_card& card);
// The whole plan line by line, for those who hear it read.
std::string as_lines(const plan_view& view);
