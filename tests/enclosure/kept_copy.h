// A copy that a kept desk makes.
#pragma once

#include "enclosure/scenario.h"

#include "tests/enclosure/builders.h"
#include "tests/enclosure/kept_desk.h"

// Of a mirror in a new enclosure "box" with new disks "a" and "b" of so many sectors: disk "a" is
// being copied to disk "b", `rate` sectors a second.
inline void begin_a_copy(kept_desk& life, std::uint64_t sectors, std::uint64_t rate) {
    life.on.add_enclosure(usb_settings("box"));
    for (const int bay : {0, 1}) {
        const std::string disk = bay == 0 ? "a" : "b";
        life.on.add_disk(disk, enclosure::build_identify(label_of(sectors, "serial-" + disk)));
        life.on.insert("box", bay, disk);
    }
    life.on.arrange("box", enclosure::scenario::rebuild);
    life.on.set_rate("box", rate * enclosure::sector_size, enclosure::moment{0});
    life.on.plug("box", enclosure::moment{0});
}
