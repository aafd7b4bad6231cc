// The options of requests on the bus: any names, values of any type.
#include "enclosure/problem.h"
#include "enclosure/request_values.h"

#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/target.h"

#include <iterator>

namespace {

using namespace enclosure;

std::string option_name(byte_source& source) {
    constexpr const char* known[] = {
        "Name",     "Bus",     "VendorId", "ProductId",    "Guid",      "LocationId",
        "Serial",   "Product", "Kind",     "RestartDelay", "Operation", "Port",
        "FirstLba", "LastLba", "Nth",      "Byte",         "Delay"};
    const std::uint8_t choice = source.byte();
    return choice < std::size(known) ? known[choice] : source.text();
}

sdbus::Variant option_value(byte_source& source) {
    constexpr const char* known[] = {"USB", "FireWire", "flip", "tear", "write", "read", "box"};
    switch (source.byte() % 8) {
    case 0:
        return sdbus::Variant(source.byte());
    case 1:
        return sdbus::Variant(source.flag());
    case 2:
        return sdbus::Variant(static_cast<std::int32_t>(source.number(4)));
    case 3:
        return sdbus::Variant(source.number(8));
    case 4:
        return sdbus::Variant(std::string(known[source.byte() % std::size(known)]));
    case 5:
        return sdbus::Variant(source.bytes(source.byte()));
    case 6:
        return sdbus::Variant(printable(source.text()));
    default:
        return sdbus::Variant(static_cast<std::uint32_t>(source.number(4)));
    }
}

template<class Reader> void read(Reader reader) {
    try {
        reader();
    } catch (const problem& trouble) {
        require(std::string(trouble.what()).find('\n') == std::string::npos,
                "a refusal is one line");
    }
}

void check_settings_of(const bus::options& values) {
    read([&] {
        const cabinet_settings settings = settings_from(values);
        require(values.contains("Name") || settings.name.empty(), "only what was said is taken");
        check_settings(settings);
    });
}

void check_rule_of(const bus::options& values) {
    read([&] {
        const fault_rule rule = rule_from(values);
        check_rule(rule);
        require(!rule.port || is_port(*rule.port), "a fault is of a port that there is");
        require(rule.byte < sector_size && rule.first_lba <= rule.last_lba,
                "a fault strikes within a sector and a range");
    });
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_source source(data, size);
    bus::options values;
    for (int count = 0; count < 24 && !source.empty(); ++count) {
        const std::string name = option_name(source);
        values.insert_or_assign(name, option_value(source));
    }
    check_settings_of(values);
    check_rule_of(values);
    read([&] { identity_from(source.bytes(sector_size)); });
    return 0;
}
