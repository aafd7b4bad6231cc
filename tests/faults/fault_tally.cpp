#include "tests/faults/fault_tally.h"

#include <iomanip>
#include <iostream>
#include <vector>

#include "tests/support/fault.h"

void fault_tally::count(const std::string& operation, const std::string& kind) {
    ++cases_[operation][kind];
    ++cases_[operation]["sum"];
    ++cases_["sum"][kind];
    ++cases_["sum"]["sum"];
}

void fault_tally::count(const std::string& operation, outcome what) {
    const std::string column = what == outcome::degraded ? "degr." : "misr.";
    if (what != outcome::usual) {
        ++cases_[operation][column];
        ++cases_["sum"][column];
    }
}

void fault_tally::TearDown() {
    std::vector<std::string> columns;
    for (const fault& kind : every_fault()) {
        columns.push_back(kind.name);
    }
    columns.insert(columns.end(), {"sum", "degr.", "misr."});
    std::cout << std::left << std::setw(24) << "cases" << std::right;
    for (const std::string& column : columns) {
        std::cout << std::setw(6) << column;
    }
    for (auto& [operation, counts] : cases_) {
        std::cout << '\n' << std::left << std::setw(24) << operation << std::right;
        for (const std::string& column : columns) {
            std::cout << std::setw(6) << counts[column];
        }
    }
    std::cout << '\n';
}
