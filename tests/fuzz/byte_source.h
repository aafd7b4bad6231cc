// The fuzzer's bytes, taken from the front. What is not there is zero.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

class byte_source {
public:
    byte_source(const std::uint8_t* data, std::size_t size) : left_(data, size) {}

    bool empty() const { return left_.empty(); }

    std::uint8_t byte() { return static_cast<std::uint8_t>(number(1)); }
    bool flag() { return (byte() & 1) != 0; }

    // Of `width` (1 to 8) bytes, low byte first.
    std::uint64_t number(std::size_t width) {
        std::uint64_t value = 0;
        const std::span<const std::uint8_t> from = take(width);
        for (std::size_t i = from.size(); i > 0; --i) {
            value = value << 8 | from[i - 1];
        }
        return value;
    }

    template<std::size_t Size> std::array<std::uint8_t, Size> block() {
        std::array<std::uint8_t, Size> filled{};
        const std::span<const std::uint8_t> from = take(Size);
        std::copy(from.begin(), from.end(), filled.begin());
        return filled;
    }

    // At most so many.
    std::vector<std::uint8_t> bytes(std::size_t most) {
        const std::span<const std::uint8_t> from = take(most);
        return {from.begin(), from.end()};
    }

    // A byte that says how long it is, and the text itself.
    std::string text() {
        const std::span<const std::uint8_t> from = take(byte());
        return {from.begin(), from.end()};
    }

    std::string rest() {
        const std::span<const std::uint8_t> from = take(left_.size());
        return {from.begin(), from.end()};
    }

private:
    std::span<const std::uint8_t> take(std::size_t count) {
        const std::span<const std::uint8_t> from = left_.first(std::min(count, left_.size()));
        left_ = left_.subspan(from.size());
        return from;
    }

    std::span<const std::uint8_t> left_;
};
