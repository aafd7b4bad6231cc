// Safety copies: what they say, and that they are where nobody else reads and nothing is lost.
#include "app/safety_copy.h"

#include <QByteArray>
#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <limits>
#include <sstream>
#include <sys/resource.h>
#include <sys/stat.h>

#include "model/change_plan.h"
#include "model/krchip.h"

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr std::time_t some_time = 1'792'000'000;

krchip sample_chip() {
    krchip chip;
    chip.identity.vendor_id = 0x1234;
    chip.identity.product_id = 0xAB;
    chip.identity.location_id = 0xFFFFFFFF80100000;
    krdisk& disk = chip.disks[0];
    disk.present = 1;
    disk.model = "MODEL";
    disk.serial = "SERIAL";
    disk.capacity = 2014;
    for (std::size_t i = 0; i < sector_size; ++i) {
        disk.raid_info_raw.bytes[i] = static_cast<unsigned char>(i);
    }
    return chip;
}

std::string sample_text(const krchip& chip) {
    const change_plan plan = plan_change(array_change::clear_array, 0, &chip, "Desk (S/N: 1)", {});
    return safety_copy_text(plan, chip, some_time);
}

TEST(safety_copy_text, NamesTheEnclosureTheBridgeAndEachDisk) {
    const std::string text = sample_text(sample_chip());
    EXPECT_THAT(text, StartsWith("Kestrel RAID safety copy 1\nMade: 20"));
    EXPECT_THAT(
        text,
        HasSubstr(
            "\nBefore: delete the array\nEnclosure: Desk (S/N: 1)\n"
            "Bridge: USB 1234:00ab, location 80100000\n\nDisk 1\n"
            "Model: MODEL\nSerial: SERIAL\nCapacity: 2014 sectors\n"
            "Record at sector: 1999\nRecord: none, or not readable\nSHA-256 of the record: "));
    EXPECT_THAT(text, HasSubstr("\n\nDisk 2\nnone\n"));
}

TEST(safety_copy_text, NamesAFireWireBridgeByItsWholeGuid) {
    krchip chip = sample_chip();
    chip.identity.firewire = true;
    chip.identity.guid = 0x8000000000000001;
    EXPECT_THAT(sample_text(chip), HasSubstr("Bridge: FireWire, GUID 8000000000000001\n"));
}

TEST(safety_copy_text, HoldsEveryByteOfTheRecordAsCommonToolsReadIt) {
    std::istringstream text(sample_text(sample_chip()));
    std::vector<int> bytes;
    for (std::string line; std::getline(text, line);) {
        if (line.rfind("00000", 0) != 0) {
            continue;
        }
        EXPECT_EQ(std::stoul(line.substr(0, 8), nullptr, 16), bytes.size());
        std::istringstream digits(line.substr(9));
        for (int byte = 0; digits >> std::hex >> byte;) {
            bytes.push_back(byte);
        }
    }
    ASSERT_EQ(bytes.size(), sector_size);
    for (std::size_t i = 0; i < sector_size; ++i) {
        EXPECT_EQ(bytes[i], static_cast<int>(i % 256));
    }
}

TEST(safety_copy_text, HashIsThatOfTheSector) {
    krchip chip = sample_chip();
    chip.disks[0].raid_info_raw = {};
    // Of 512 zero bytes.
    EXPECT_THAT(sample_text(chip),
                HasSubstr("SHA-256 of the record: "
                          "076a27c79e5ace2a3d47f9dd2e83e4ff6ea8872b3c2218f66c92b89b55f36560\n"));
}

TEST(safety_copy_text, HostileNamesStayOnTheirLine) {
    krchip chip = sample_chip();
    chip.disks[0].model = "A\nDisk 2\rB\x1b";
    EXPECT_THAT(sample_text(chip), HasSubstr("\nModel: A Disk 2 B \n"));
}

TEST(safety_copy_text, TimeThatHasNoFormIsSaidToBeUnknown) {
    const krchip chip = sample_chip();
    const change_plan plan = plan_change(array_change::create, mode_raid1, &chip, "", {});
    const std::string text = safety_copy_text(plan, chip, std::numeric_limits<std::time_t>::max());
    EXPECT_THAT(text, HasSubstr("Made: unknown\nBefore: create an array\n"));
}

// A home of the test's own.
class state_folder : public testing::Test {
protected:
    void SetUp() override {
        std::string pattern = testing::TempDir() + "kestrel-state-XXXXXX";
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        root = pattern;
        qputenv("XDG_STATE_HOME", (root / "state").c_str());
        qputenv("HOME", root.c_str());
    }
    void TearDown() override { fs::remove_all(root); }

    std::vector<fs::path> files(const fs::path& folder) const {
        std::vector<fs::path> found;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
            found.push_back(entry.path());
        }
        std::sort(found.begin(), found.end());
        return found;
    }
    fs::path folder() const { return root / "state" / "kestrelraid"; }

    fs::path root;
    copies_in_state_folder copies;
};

std::string content(const fs::path& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

unsigned mode_of(const fs::path& path) {
    struct stat about {};
    EXPECT_EQ(stat(path.c_str(), &about), 0) << path;
    return about.st_mode & 07777U;
}

TEST_F(state_folder, GetsAFileNamedByItsTimeThatOnlyItsOwnerReads) {
    EXPECT_EQ(copies.keep("text\n", some_time), "");
    const std::vector<fs::path> found = files(folder());
    ASSERT_EQ(found.size(), 1U);
    EXPECT_THAT(found[0].filename(), testing::MatchesRegex("records-2026[0-9]{4}-[0-9]{6}.txt"));
    EXPECT_EQ(content(found[0]), "text\n");
    EXPECT_EQ(mode_of(found[0]), 0600U);
    EXPECT_EQ(mode_of(folder()), 0700U);
}

TEST_F(state_folder, KeepsTheCopiesOfOneSecondApart) {
    EXPECT_EQ(copies.keep("one", some_time), "");
    EXPECT_EQ(copies.keep("two", some_time), "");
    EXPECT_EQ(copies.keep("three", some_time), "");
    const std::vector<fs::path> found = files(folder());
    ASSERT_EQ(found.size(), 3U);
    EXPECT_THAT(found[0].filename().string(), testing::EndsWith("-2.txt"));
    EXPECT_EQ(content(found[0]), "two");
    EXPECT_EQ(content(found[1]), "three");
    EXPECT_EQ(content(found[2]), "one");
}

TEST_F(state_folder, LiesInTheHomeFolderWithoutAnotherOrWithARelativeOne) {
    qunsetenv("XDG_STATE_HOME");
    EXPECT_EQ(copies.keep("one", some_time), "");
    qputenv("XDG_STATE_HOME", "state");
    EXPECT_EQ(copies.keep("two", some_time), "");
    EXPECT_EQ(files(root / ".local" / "state" / "kestrelraid").size(), 2U);
}

TEST_F(state_folder, ThatCannotBeMadeIsNamedInTheReason) {
    std::ofstream(root / "state") << "a file in the way";
    EXPECT_THAT(copies.keep("text", some_time), HasSubstr((root / "state").string()));
}

TEST_F(state_folder, WithoutAHomeTheReasonSaysSo) {
    qunsetenv("XDG_STATE_HOME");
    qunsetenv("HOME");
    EXPECT_THAT(copies.keep("text", some_time), HasSubstr("HOME"));
}

TEST_F(state_folder, NameThatIsTakenIsNeverWrittenTo) {
    EXPECT_EQ(copies.keep("text", some_time), "");
    const fs::path taken = files(folder()).front();
    fs::remove(taken);
    fs::create_symlink(root / "elsewhere", taken);
    EXPECT_EQ(copies.keep("text", some_time), "");
    EXPECT_EQ(files(folder()).size(), 2U);
    EXPECT_FALSE(fs::exists(root / "elsewhere"));
}

TEST_F(state_folder, FullDiskIsToldAndLeavesNoHalfOfAFile) {
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{16, before.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    const std::string reason = copies.keep(std::string(100, 'x'), some_time);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_THAT(reason, HasSubstr("records-"));
    EXPECT_THAT(files(folder()), IsEmpty());
}

} // namespace
