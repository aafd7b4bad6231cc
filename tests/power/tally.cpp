#include "tests/power/tally.h"

namespace {

std::string text_of(const cut_count& count) {
    if (count.empty()) {
        return "";
    }
    const std::string whole = std::to_string(count.whole);
    return count.torn == 0 ? whole : whole + " + " + std::to_string(count.torn);
}

std::string cell(const std::string& text) {
    return text.empty() ? " |" : " " + text + " |";
}

std::string remarks_of(const case_tally& row) {
    std::string text;
    for (const auto& [which, count] : row.remarks) {
        text += text.empty() ? "" : ", ";
        text += std::string(1, static_cast<char>(which)) + " " + text_of(count);
    }
    return text;
}

std::string line_of(const case_tally& row) {
    std::string line = "|" + cell(row.change) + cell(row.start) + cell(text_of(row.cuts));
    for (const cut_count& count : row.findings) {
        line += cell(text_of(count));
    }
    line += cell(remarks_of(row));
    for (const cut_count& count : row.endings) {
        line += cell(text_of(count));
    }
    return line + cell(text_of(row.second_cuts)) + "\n";
}

} // namespace

void cut_count::add(const cut_count& other) {
    whole += other.whole;
    torn += other.torn;
}

void case_tally::add(const finding& what, ending how, bool torn) {
    cuts.add(torn);
    findings.at(static_cast<std::size_t>(what.is)).add(torn);
    endings.at(static_cast<std::size_t>(how)).add(torn);
    for (const remark which : what.remarks) {
        remarks[which].add(torn);
    }
}

void case_tally::add(const case_tally& other) {
    cuts.add(other.cuts);
    for (std::size_t i = 0; i < findings.size(); ++i) {
        findings.at(i).add(other.findings.at(i));
    }
    for (std::size_t i = 0; i < endings.size(); ++i) {
        endings.at(i).add(other.endings.at(i));
    }
    second_cuts.add(other.second_cuts);
    for (const auto& [which, count] : other.remarks) {
        remarks[which].add(count);
    }
}

std::string table_of(const std::vector<case_tally>& rows) {
    std::string text =
        "| Change | Found | Cuts | as before | as after | in order | copying | degraded | copies "
        "differ | broken | no array | Remarks | by itself | again | way out | leftovers | "
        "unnoticed | Cut again |\n"
        "|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|\n";
    case_tally sum;
    sum.change = "All";
    for (const case_tally& row : rows) {
        text += line_of(row);
        sum.add(row);
    }
    return text + line_of(sum);
}
