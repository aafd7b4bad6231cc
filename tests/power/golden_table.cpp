#include "tests/power/golden_table.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>

namespace {

constexpr std::string_view begin_mark = "<!-- power cuts: scripts/test power -->\n";
constexpr std::string_view end_mark = "<!-- end of power cuts -->\n";

struct document {
    std::string before;
    std::string table;
    std::string after;
};

document read_document() {
    std::ifstream file(KESTREL_RELIABILITY);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const std::size_t begin = text.find(begin_mark);
    const std::size_t end = text.find(end_mark);
    if (begin == std::string::npos || end == std::string::npos || end < begin) {
        throw std::runtime_error("docs/reliability.md lacks the marks of the table");
    }
    const std::size_t inside = begin + begin_mark.size();
    return {text.substr(0, inside), text.substr(inside, end - inside), text.substr(end)};
}

} // namespace

std::string kept_table() {
    return read_document().table;
}

void keep_table(const std::string& table) {
    const document now = read_document();
    std::ofstream file(KESTREL_RELIABILITY);
    file << now.before << table << now.after;
    if (!file.flush()) {
        throw std::runtime_error("docs/reliability.md cannot be written");
    }
}
