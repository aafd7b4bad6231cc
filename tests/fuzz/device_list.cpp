// The scan with a library that answers anything, and a registry that knows anything.
#include "model/krtool.h"

#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/target.h"
#include "tests/support/model_world.h"

#include <set>

namespace {

std::u16string wide_text(byte_source& source) {
    std::u16string text;
    for (std::uint8_t left = source.byte(); left > 0 && !source.empty(); --left) {
        text += static_cast<char16_t>(source.number(2));
    }
    return text;
}

registered_bridge bridge_from(byte_source& source) {
    registered_bridge bridge;
    bridge.bus_name = source.flag() ? "FireWire Device" : source.text();
    for (const char* property : {"GUID", "idVendor", "idProduct", "locationID"}) {
        bridge.numbers[property] = static_cast<std::int64_t>(source.number(8));
    }
    bridge.texts["USB Serial Number"] = wide_text(source);
    return bridge;
}

// The first bridges are known to the registry; the others have gone since.
void put_bridges(byte_source& source) {
    const std::uint32_t known = source.byte() % 8U;
    for (std::uint32_t handle = 0; handle < known; ++handle) {
        world().registry.put(handle, bridge_from(source));
    }
}

void check_map() {
    std::set<std::int32_t> indexes;
    for (std::size_t i = 0; i < j.controller_map.size(); ++i) {
        require(i == 0 || j.controller_map[i - 1].first <= j.controller_map[i].first,
                "the list is sorted");
        indexes.insert(j.controller_map[i].second);
    }
    require(j.controller_map.size() == j.chips.size() && indexes.size() == j.chips.size(),
            "the list has every chip once");
    require(indexes.empty() || (*indexes.begin() == 0 &&
                                *indexes.rbegin() + 1 == static_cast<int>(j.chips.size())),
            "the list has no other chip");
}

void check_chips(std::int32_t status) {
    require(status == 0 || j.chips.empty(), "without a list there are no chips");
    require(j.chips.size() <= 256, "there are no more chips than a list can have");
    for (std::size_t i = 0; i < j.chips.size(); ++i) {
        require(j.get_controller_num(j.chips[i].identity) == static_cast<int>(i),
                "no two chips are the same bridge");
        require(j.chips[i].identity.serial.size() <= 99, "a serial number has its length");
    }
}

void scan(std::int32_t list_status, std::int32_t open_status) {
    try {
        require(j.scandevices() == (list_status == 0), "a scan fails when there is no list");
        require(open_status == 0 || j.chips.empty(), "a bridge that cannot be opened ends all");
    } catch (const process_ended&) {
        require(open_status != 0, "nothing else ends the process");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    world().reset();
    world().log.keep_only(from_library);
    byte_source source(data, size);
    library_answer answer{static_cast<std::int32_t>(source.number(1)), {}, {}};
    answer.count = static_cast<std::int32_t>(source.number(4));
    put_bridges(source);
    answer.bytes = source.bytes(access_library::list_size);
    world().library.answer_all("getDeviceList", answer);
    const auto open_status = static_cast<std::int32_t>(source.number(1));
    world().library.answer_all("openConnection", {open_status, {}, {}});
    const gate_scope work(j.gate);
    scan(answer.status, open_status);
    check_chips(answer.status);
    if (answer.status == 0) {
        check_map();
    }
    const std::size_t opened = world().log.count("openConnection");
    require(open_status != 0 || opened == j.chips.size(), "every chip is opened once");
    j.flush_chips();
    require(world().log.count("closeConnection") == opened, "what was opened is closed");
    return 0;
}
