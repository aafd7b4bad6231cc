// How many faults each operation has borne, and what came of them.
#pragma once

#include <gtest/gtest.h>
#include <map>
#include <string>

// What came of a fault, besides what comes of the operation without one: the half of a mirror was
// degraded, for the other was not seen; or something misread was written.
enum class outcome { usual, degraded, misread };

// Prints its table when all tests have run. One thread.
class fault_tally final : public testing::Environment {
public:
    void count(const std::string& operation, const std::string& kind);
    void count(const std::string& operation, outcome what);

    // Of one operation, with faults of every kind.
    int cases(const std::string& operation) { return cases_[operation]["sum"]; }

    void TearDown() override;

private:
    std::map<std::string, std::map<std::string, int>> cases_;
};
