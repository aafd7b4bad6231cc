#include "tests/support/expected_lines.h"

namespace {

std::string call(const std::string& operation, const std::string& contents, std::uint64_t lba,
                 int port, sector_form form) {
    std::string text = operation + (form == sector_form::firewire ? "FW" : "") + "(0x11, ";
    text += contents.empty() ? "" : contents + ", ";
    text += "512, " + std::to_string(lba) + ", " + std::to_string(port);
    if (form != sector_form::firewire) {
        text += form == sector_form::lba48 ? ", 1" : ", 0";
    }
    return text + ") = 0";
}

} // namespace

lines joined(std::initializer_list<lines> pieces) {
    lines all;
    for (const lines& piece : pieces) {
        all.insert(all.end(), piece.begin(), piece.end());
    }
    return all;
}

lines verified_write(const std::string& contents, std::uint64_t lba, int port, sector_form form) {
    return {call("krSetRaidInfo", contents, lba, port, form),
            call("krGetRaidInfo", "", lba, port, form)};
}

lines wiped_start(const std::vector<int>& ports, sector_form form) {
    lines all;
    for (std::uint64_t lba = 0; lba < 64; ++lba) {
        for (const int port : ports) {
            all = joined({all, verified_write("zeros", lba, port, form)});
        }
    }
    return all;
}

lines restart(const std::vector<int>& ports) {
    lines all;
    for (const int port : ports) {
        all.push_back("krFlushHDDCache(0x11, " + std::to_string(port) + ") = 0");
    }
    all.insert(all.end(), {"stopprogressbar()", "krWarmBoot(0x11) = 0"});
    return all;
}
