// The order in which a copy's data and its progress become lasting.
#include "tests/enclosure/builders.h"
#include "tests/enclosure/kept_desk.h"
#include "tests/enclosure/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::vector<std::string> synced; // "data" for a disk image, "state" for a state file or its folder

} // namespace

// In place of the C library's: images are synced by the first, all else by the second.
extern "C" int fdatasync(int fd) {
    synced.emplace_back("data");
    return static_cast<int>(::syscall(SYS_fdatasync, fd));
}

extern "C" int fsync(int fd) {
    synced.emplace_back("state");
    return static_cast<int>(::syscall(SYS_fsync, fd));
}

namespace enclosure {
namespace {

using namespace std::chrono_literals;

class LastingCopy : public testing::Test {
protected:
    LastingCopy() : life_(folder_.path()) {
        life_.on.add_enclosure(usb_settings("box"));
        life_.on.add_disk("a", build_identify(label_of(10'000)));
        life_.on.add_disk("b", build_identify(label_of(10'000, "S-2")));
        life_.on.insert("box", 0, "a");
        life_.on.insert("box", 1, "b");
        life_.on.arrange("box", scenario::rebuild);
        life_.on.set_rate("box", 1'000 * sector_size, 0s);
        life_.on.plug("box", 0s);
    }

    void run_until(moment until) {
        while (life_.on.advance(until)) {
        }
    }

    temporary_folder folder_;
    kept_desk life_;
};

TEST_F(LastingCopy, ItsDataAreOnTheDiskBeforeItsProgressIs) {
    run_until(3s);
    synced.clear();
    life_.store.save_enclosure(life_.on.enclosure("box"));
    EXPECT_EQ(synced, (std::vector<std::string>{"data", "state", "state"}));
}

TEST_F(LastingCopy, ItsDataAreOnTheDiskBeforeItsEndIs) {
    synced.clear();
    run_until(1h);
    EXPECT_EQ(synced, (std::vector<std::string>{"data", "state", "state"}));
}

} // namespace
} // namespace enclosure
