#include "tests/support/call_log.h"

#include <algorithm>
#include <sstream>

void call_log::keep_only(std::uint32_t sources) {
    const mutex_scope lock(mutex_);
    kept_ = sources;
}

void call_log::add(call_source source, std::string text) {
    {
        const mutex_scope lock(mutex_);
        if ((kept_ & source) == 0) {
            return;
        }
        lines_.emplace_back(source, std::move(text));
    }
    grown_.notify_all();
}

void call_log::clear() {
    const mutex_scope lock(mutex_);
    lines_.clear();
    kept_ = from_everybody;
}

std::vector<std::string> call_log::lines(std::uint32_t sources) const {
    const mutex_scope lock(mutex_);
    std::vector<std::string> result;
    for (const auto& [source, text] : lines_) {
        if ((sources & source) != 0) {
            result.push_back(text);
        }
    }
    return result;
}

std::vector<std::string> call_log::take(std::uint32_t sources) {
    std::vector<std::string> result = lines(sources);
    const mutex_scope lock(mutex_);
    lines_.clear();
    return result;
}

std::size_t call_log::matches(const std::string& beginning) const {
    return static_cast<std::size_t>(
        std::count_if(lines_.begin(), lines_.end(),
                      [&](const auto& line) { return line.second.starts_with(beginning); }));
}

std::size_t call_log::count(const std::string& beginning) const {
    const mutex_scope lock(mutex_);
    return matches(beginning);
}

void call_log::await(const std::string& beginning, std::size_t times) const {
    const mutex_scope lock(mutex_);
    while (matches(beginning) < times) {
        grown_.wait(mutex_);
    }
}

std::string quoted(const std::string& text) {
    return '"' + text + '"';
}

std::string hex(std::uint64_t value) {
    std::ostringstream text;
    text << "0x" << std::hex << value;
    return text.str();
}

std::string yes_no(bool value) {
    return value ? "true" : "false";
}
