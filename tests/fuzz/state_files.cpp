// State files with anything in them: the service starts, and what it could not use it keeps aside.
#include "enclosure/problem.h"
#include "enclosure/state_json.h"

#include "tests/enclosure/kept_desk.h"
#include "tests/enclosure/temporary_folder.h"
#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/target.h"

#include <algorithm>
#include <fstream>

namespace {

using namespace enclosure;

void check_enclosure(const std::string& text) {
    try {
        const desk::former_cabinet former = enclosure_from_json(text, "box");
        check_settings(former.settings);
        require(former.rate <= mirror_copy::highest_rate && former.last_handle <= last_handle,
                "numbers are within reach");
        if (former.copy) {
            const copy_progress& progress = former.copy->progress;
            require(is_port(progress.source) && progress.done <= progress.sectors,
                    "a copy has a source and does not go beyond its end");
        }
    } catch (const problem&) {
        return;
    }
}

void write(const std::filesystem::path& file, const std::string& text) {
    std::ofstream(file, std::ios::binary) << text;
}

bool is_of_no_use(const std::string& line) {
    return line.find("cannot use") != std::string::npos;
}

// A disk whose description is of no use stays in its bay, silent.
void check_lives(const std::filesystem::path& folder) {
    std::string bays;
    const auto bays_of = [](const desk& on) {
        std::string text;
        for (const auto& [name, what] : on.enclosures()) {
            for (int bay = 0; bay < ports; ++bay) {
                const auto& there = what->disks().at(bay);
                text += there ? there->name() + " " : "- ";
            }
        }
        return text;
    };
    {
        const kept_desk life(folder);
        bays = bays_of(life.on);
    }
    const kept_desk next(folder);
    require(std::none_of(next.lines.begin(), next.lines.end(), is_of_no_use),
            "what was of no use has been put aside");
    require(bays_of(next.on) == bays, "disks stay where they are");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_source source(data, size);
    const std::size_t disk_at = source.number(2);
    const std::size_t counter_at = source.number(2);
    const std::string all = source.rest();
    const std::string counter = all.substr(std::min(all.size(), counter_at));
    const std::string disk = all.substr(std::min(all.size(), disk_at), counter_at - disk_at);
    const std::string box = all.substr(0, disk_at);
    check_enclosure(box);

    const temporary_folder folder;
    std::filesystem::create_directories(folder.path() / "enclosures");
    std::filesystem::create_directories(folder.path() / "disks");
    write(folder.path() / "enclosures" / "box.json", box);
    write(folder.path() / "disks" / "a.json", disk);
    write(folder.path() / "disks" / "a.img", std::string(sector_size * 16, '\0'));
    write(folder.path() / "handles.json", counter);
    check_lives(folder.path());
    return 0;
}
