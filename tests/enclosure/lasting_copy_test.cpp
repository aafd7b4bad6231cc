// The order in which a copy's data and its progress become lasting.
#include "tests/enclosure/kept_copy.h"
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
    LastingCopy() : life_(folder_.path()) { begin_a_copy(life_, 10'000, 1'000); }

    temporary_folder folder_;
    kept_desk life_;
};

TEST_F(LastingCopy, ItsDataAreOnTheDiskBeforeItsProgressIs) {
    life_.run(3s);
    synced.clear();
    life_.store.save_enclosure(life_.on.enclosure("box"));
    EXPECT_EQ(synced, (std::vector<std::string>{"data", "state", "state"}));
}

TEST_F(LastingCopy, ItsDataAreOnTheDiskBeforeItsEndIs) {
    synced.clear();
    life_.run(1h);
    EXPECT_EQ(synced, (std::vector<std::string>{"data", "state", "state"}));
}

} // namespace
} // namespace enclosure
