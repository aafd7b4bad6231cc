// A desk with an exported enclosure "box" of two disks, on a clock of the test's own.
#pragma once

#include "enclosure/desk.h"
#include "enclosure/usb_exports.h"

#include "tests/enclosure/builders.h"
#include "tests/enclosure/quiet_watcher.h"
#include "tests/enclosure/temporary_folder.h"

class exported_desk {
public:
    exported_desk() {
        enclosure::cabinet_settings settings = usb_settings("box");
        settings.serial = "EMU-1";
        on.add_enclosure(settings);
        on.add_disk("a", build_identify(label_of(400'000, "serial-a")));
        on.insert("box", 0, "a");
        on.begin_export("box", now);
    }

private:
    temporary_folder folder_;
    quiet_watcher watcher_;

public:
    enclosure::moment now{0};
    enclosure::desk on{folder_.path(), watcher_};
    enclosure::usb_exports exports{on};
};
