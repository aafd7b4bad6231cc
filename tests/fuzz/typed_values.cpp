// Texts that people type: sizes, rates, names, IDENTIFY blocks.
#include "enclosure/fault_rule.h"
#include "enclosure/hex.h"
#include "enclosure/identify.h"
#include "enclosure/mirror_copy.h"
#include "enclosure/names.h"
#include "enclosure/problem.h"
#include "enclosure/scenario.h"
#include "enclosure/sizes.h"

#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/target.h"

#include <algorithm>
#include <optional>

namespace {

using namespace enclosure;

// What a text means; nothing when it is refused in a line that can be shown.
template<class Reader> auto meaning_of(Reader reader) -> std::optional<decltype(reader())> {
    try {
        return reader();
    } catch (const problem& trouble) {
        const std::string line = trouble.what();
        require(line ==
                    printable(line).append(line.substr(std::min<std::size_t>(line.size(), 100))),
                "the beginning of a refusal can be shown");
        return std::nullopt;
    }
}

void check_numbers(const std::string& text) {
    constexpr std::uint64_t most = 1'000'000'000'000'000'000 / sector_size;
    if (const auto sectors = meaning_of([&] { return sectors_of(text); })) {
        require(*sectors <= most, "a size is within reach");
        require(!size_text(*sectors).empty(), "a size can be shown");
    }
    if (const auto rate = meaning_of([&] { return rate_of(text); })) {
        require(*rate <= mirror_copy::highest_rate, "a rate is within reach");
        require((*rate == mirror_copy::unlimited) == (text == "unlimited"),
                "no number means unlimited");
    }
}

bool is_path_character(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

void check_names(const std::string& text) {
    if (is_name(text)) {
        require(text.size() <= 32 && text.find('/') == std::string::npos &&
                    text.find('.') == std::string::npos && text.find('\0') == std::string::npos,
                "a name leads nowhere as a file name");
    }
    const std::string element = path_element(text);
    require(std::all_of(element.begin(), element.end(), is_path_character),
            "an element of an object path has no other characters");
    const std::string shown = printable(text);
    require(shown.size() <= 100 && std::all_of(shown.begin(), shown.end(),
                                               [](char c) { return c >= ' ' && c <= '~'; }),
            "what is shown is short and printable");
    scenario_named(text);
    fault_kind_named(text);
    operation_named(text);
}

void check_block(const std::string& text) {
    if (const auto block = meaning_of([&] { return parse_identify(text, "it"); })) {
        require(parse_identify(to_hex(*block), "it") == *block, "digits are read as written");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = byte_source(data, size).rest();
    check_numbers(text);
    check_names(text);
    check_block(text);
    return 0;
}
