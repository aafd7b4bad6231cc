// String tables that a test fills itself.
#pragma once

#include <map>
#include <utility>

#include "model/services.h"

// A key without a text yields the key. Filled before threads run; then any thread.
class table_lookup final : public text_lookup {
public:
    void set(const std::string& key, std::string text) { texts_[key] = std::move(text); }
    void reset() { texts_.clear(); }
    std::string text(std::string_view key) const override {
        const auto found = texts_.find(key);
        return found == texts_.end() ? std::string(key) : found->second;
    }

private:
    std::map<std::string, std::string, std::less<>> texts_;
};
