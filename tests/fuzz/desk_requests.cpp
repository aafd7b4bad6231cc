// Any sequence of requests on a desk that is kept, with any names and numbers: what is refused is
// refused in words, nothing is touched outside the service's folder, and what was left is read
// again.
#include "enclosure/desk_report.h"
#include "enclosure/names.h"
#include "enclosure/problem.h"

#include "tests/enclosure/builders.h"
#include "tests/enclosure/kept_desk.h"
#include "tests/enclosure/temporary_folder.h"
#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/target.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace {

using namespace enclosure;

// Mostly one that means something.
std::string name_from(byte_source& source) {
    constexpr const char* known[] = {"box", "box-a", "box-b", "disk", "other"};
    const std::uint8_t choice = source.byte();
    return choice < std::size(known) ? known[choice] : source.text();
}

cabinet_settings settings_from(byte_source& source) {
    cabinet_settings settings = usb_settings(name_from(source));
    settings.bus = source.flag() ? bus_kind::firewire : bus_kind::usb;
    if (source.flag()) {
        settings.location = static_cast<std::int32_t>(source.number(4));
        settings.guid = source.number(8);
        settings.serial = source.text();
        settings.product = source.text();
    }
    settings.restart_delay = std::chrono::milliseconds(source.number(3));
    return settings;
}

identify_block identity_from(byte_source& source) {
    if (source.flag()) {
        return source.block<sector_size>();
    }
    return build_identify(label_of(source.number(2) + 1, printable(source.text()).substr(0, 20)));
}

fault_rule rule_from(byte_source& source) {
    fault_rule rule;
    rule.kind = static_cast<fault_kind>(source.byte() % 6);
    rule.operation = static_cast<io_kind>(source.byte() % 4);
    if (source.flag()) {
        rule.port = source.byte();
    }
    rule.first_lba = source.number(2);
    rule.last_lba = source.number(8);
    rule.nth = source.byte();
    rule.byte = static_cast<std::uint32_t>(source.number(2));
    rule.delay = std::chrono::milliseconds(source.number(4));
    return rule;
}

class requests {
public:
    requests(desk& on, byte_source& source) : on_(on), source_(source) {}

    void make() {
        try {
            choose(source_.byte() % 18);
        } catch (const problem& trouble) {
            const std::string line = trouble.what();
            require(!line.empty() && line.find('\n') == std::string::npos, "a refusal is one line");
        }
        require(!report(on_, std::nullopt).empty(), "the desk can be described");
    }

private:
    void choose(unsigned what) { what < 9 ? choose_change(what) : choose_use(what); }

    void choose_change(unsigned what) {
        switch (what) {
        case 0:
            return on_.add_enclosure(settings_from(source_));
        case 1:
            return on_.remove_enclosure(name());
        case 2:
            return on_.add_disk(name(), identity_from(source_));
        case 3:
            return on_.remove_disk(name());
        case 4:
            return insert();
        case 5:
            return pull();
        case 6:
            return on_.add_fault(name(), rule_from(source_));
        case 7:
            on_.clear_faults(name());
            return;
        default:
            return on_.arrange(name(), static_cast<scenario>(source_.byte() % 8));
        }
    }

    void choose_use(unsigned what) {
        switch (what) {
        case 9:
        case 10:
            on_.plug(name(), now_);
            return;
        case 11:
            return on_.unplug(name());
        case 12:
            return on_.warm_boot(name(), now_);
        case 13:
            return on_.power_cut(name(), now_);
        case 14:
            return on_.set_rate(name(), source_.number(8), now_);
        case 15:
            on_.begin_export(name(), now_);
            return;
        case 16:
            now_ += std::chrono::milliseconds(source_.number(2));
            on_.advance(now_);
            return;
        default:
            return command();
        }
    }

    std::string name() { return name_from(source_); }

    void insert() {
        const std::string enclosure = name();
        const int bay = source_.byte() % 4 - 1;
        on_.insert(enclosure, bay, name());
    }

    void pull() {
        const std::string enclosure = name();
        on_.pull(enclosure, source_.byte() % 4 - 1);
    }

    void command() {
        const std::vector<bridge> bridges = on_.bridges();
        const std::uint32_t handle = bridges.empty() ? 0 : bridges.front().handle;
        const std::vector<std::uint8_t> cdb = source_.bytes(16);
        on_.execute(handle, cdb, source_.bytes(source_.byte()), 1024);
    }

    desk& on_;
    byte_source& source_;
    moment now_{0};
};

std::set<std::string> names_in(const std::filesystem::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

// Nothing but files that are called by usable names, where they belong.
void check_files(const std::filesystem::path& outside, const std::filesystem::path& state) {
    require(names_in(outside) == std::set<std::string>{"state"}, "nothing is written elsewhere");
    for (const std::string& file : names_in(state)) {
        require(file == "enclosures" || file == "disks" || file == "lock" || file == "handles.json",
                "the folder holds what belongs there");
    }
    for (const char* folder : {"enclosures", "disks"}) {
        for (const std::string& file : names_in(state / folder)) {
            require(is_name(std::filesystem::path(file).stem().string()),
                    "a file has the name of an enclosure or a disk");
        }
    }
}

// What a later life of the service has to know.
std::string memory_of(const desk& on) {
    std::string text;
    for (const auto& [name, what] : on.enclosures()) {
        text += name + " " + what->settings().serial + "/" + what->settings().product;
        for (int bay = 0; bay < ports; ++bay) {
            const auto& there = what->disks().at(bay);
            text += " " + (there ? there->name() : "-");
        }
        text += what->plugged() && !what->export_number() ? " on\n" : " off\n";
    }
    for (const auto& [name, which] : on.disks()) {
        text += name + " " + std::to_string(which->sectors()) + "\n";
    }
    return text;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const temporary_folder outside;
    const std::filesystem::path state = outside.path() / "state";
    std::string before;
    {
        kept_desk life(state);
        byte_source source(data, size);
        requests some(life.on, source);
        for (int count = 0; count < 32 && !source.empty(); ++count) {
            some.make();
        }
        before = memory_of(life.on);
        require(life.lines.empty(), "everything could be kept");
    }
    check_files(outside.path(), state);
    const kept_desk next(state);
    require(next.lines.empty(), "what was kept can be read");
    require(memory_of(next.on) == before, "the next life begins where this one ended");
    return 0;
}
