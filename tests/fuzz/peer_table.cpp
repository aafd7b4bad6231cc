// The kernel's table of connections, from which the service learns who is at the other end.
#include "enclosure/peer_owner.h"

#include "tests/enclosure/loopback.h"
#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/target.h"

#include <sstream>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::uint16_t peer_port = 0xABCD;
    constexpr std::uint16_t own_port = 0x0CA8;
    constexpr const char* peer_text = ":ABCD";
    constexpr uid_t owner = 1234;
    const std::string table = byte_source(data, size).rest();
    const std::string line = "\n   1: 0100007F:ABCD 0100007F:0CA8 01 00000000:00000000 00:00000000 "
                             "00000000  1234        0 5678 1\n";
    const auto ask = [](const std::string& text) {
        std::istringstream stream(text);
        return enclosure::owner_in(stream, loopback(peer_port), loopback(own_port));
    };
    const bool is_named = table.find(peer_text) != std::string::npos;
    require(is_named || !ask(table), "nobody owns a connection that is not in the table");
    require(is_named || ask(table + line) == owner, "no other line hides a connection");
    return 0;
}
