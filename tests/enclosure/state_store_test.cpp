#include "enclosure/state_store.h"

#include "enclosure/problem.h"

#include "tests/enclosure/builders.h"
#include "tests/enclosure/kept_desk.h"
#include "tests/enclosure/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>
#include <fstream>

namespace enclosure {
namespace {

using namespace std::chrono_literals;

class StateStore : public testing::Test {
protected:
    void make_pair() {
        kept_desk life(folder_.path());
        cabinet_settings settings = usb_settings("box");
        settings.location = -5;
        settings.serial = "S";
        life.on.add_enclosure(settings);
        life.on.add_disk("a", build_identify(label_of(100'000)));
        life.on.add_disk("b", build_identify(label_of(100'000, "S-2")));
        life.on.insert("box", 0, "a");
        life.on.insert("box", 1, "b");
    }

    void spoil(const std::string& file, const std::string& content) {
        std::ofstream(folder_.path() / file) << content;
    }

    bool exists(const std::string& file) { return std::filesystem::exists(folder_.path() / file); }

    temporary_folder folder_;
};

TEST_F(StateStore, ANewFolderIsAnEmptyDesk) {
    const kept_desk life(folder_.path());
    EXPECT_TRUE(life.on.enclosures().empty());
    EXPECT_TRUE(life.lines.empty());
}

// The bits for the group and for others.
std::filesystem::perms open_to_others(const std::filesystem::path& path) {
    return std::filesystem::status(path).permissions() &
           (std::filesystem::perms::group_all | std::filesystem::perms::others_all);
}

TEST_F(StateStore, FoldersAndFilesAreTheirOwnersAlone) {
    const mode_t usual = ::umask(0);
    const std::filesystem::path state = folder_.path() / "data" / "kestrelraid";
    {
        kept_desk life(state);
        life.on.add_enclosure(usb_settings("box"));
        life.on.add_disk("a", build_identify(label_of(100)));
        life.on.plug("box", 0ns);
    }
    ::umask(usual);
    EXPECT_EQ(open_to_others(folder_.path() / "data"), std::filesystem::perms::none);
    EXPECT_EQ(open_to_others(state), std::filesystem::perms::none);
    int files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(state)) {
        EXPECT_EQ(open_to_others(entry.path()), std::filesystem::perms::none) << entry.path();
        files += entry.is_regular_file() ? 1 : 0;
    }
    EXPECT_EQ(files, 5); // lock, handles, enclosure, disk and image
}

TEST_F(StateStore, AnOlderFolderIsClosedToOthers) {
    const std::filesystem::path state = folder_.path() / "kestrelraid";
    std::filesystem::create_directory(state);
    std::filesystem::permissions(state, std::filesystem::perms::all);
    const kept_desk life(state);
    EXPECT_EQ(open_to_others(state), std::filesystem::perms::none);
}

TEST_F(StateStore, AFolderThatCannotBeMadeIsRefused) {
    spoil("file", "in the way");
    EXPECT_THROW(kept_desk(folder_.path() / "file" / "kestrelraid"), problem);
}

// To make such a path is refused as it is when another program has just made the folder: "data"
// is made on the way, and "data/.." is there then.
TEST_F(StateStore, AFolderThatHasComeSinceItWasMissedIsTaken) {
    const kept_desk life(folder_.path() / "data" / ".." / "state");
    EXPECT_TRUE(exists("state/enclosures"));
    EXPECT_TRUE(life.lines.empty());
}

TEST_F(StateStore, EverythingIsThereAgain) {
    make_pair();
    kept_desk life(folder_.path());
    EXPECT_TRUE(life.lines.empty());
    const cabinet& box = life.on.enclosure("box");
    EXPECT_EQ(box.settings().location, -5);
    EXPECT_EQ(box.settings().serial, "S");
    ASSERT_TRUE(box.disks().at(0) && box.disks().at(1));
    EXPECT_EQ(box.disks().at(1)->name(), "b");
    EXPECT_FALSE(box.plugged());
}

TEST_F(StateStore, APluggedBridgeComesBackWithANewHandle) {
    make_pair();
    {
        kept_desk life(folder_.path());
        EXPECT_EQ(life.on.plug("box", 0s), first_handle);
    }
    const kept_desk life(folder_.path());
    ASSERT_EQ(life.on.bridges().size(), 1U);
    EXPECT_EQ(life.on.bridges()[0].handle, first_handle + 1);
}

TEST_F(StateStore, ALostCounterDoesNotGiveAHandleTwice) {
    make_pair();
    {
        kept_desk life(folder_.path());
        life.on.plug("box", 0s);
    }
    std::filesystem::remove(folder_.path() / "handles.json");
    const kept_desk life(folder_.path());
    EXPECT_GT(life.on.bridges().at(0).handle, first_handle);
}

TEST_F(StateStore, ACopyGoesOnWhereItWas) {
    make_pair();
    {
        kept_desk life(folder_.path());
        life.on.arrange("box", scenario::rebuild);
        life.on.set_rate("box", 1000 * sector_size, 0s);
        life.on.plug("box", 0s);
        life.run(3s);
        life.store.save_enclosure(life.on.enclosure("box"));
    }
    kept_desk life(folder_.path());
    const mirror_copy& copy = life.on.enclosure("box").bridge_chip().copy();
    EXPECT_TRUE(copy.running());
    EXPECT_EQ(copy.progress()->done, 3000U);
    EXPECT_EQ(copy.rate(), 1000 * sector_size);
}

TEST_F(StateStore, AFinishedCopyStaysFinished) {
    make_pair();
    {
        kept_desk life(folder_.path());
        life.on.arrange("box", scenario::rebuild);
        life.on.set_rate("box", mirror_copy::unlimited, 0s);
        life.on.plug("box", 0s);
        life.run(0s);
    }
    kept_desk life(folder_.path());
    const mirror_copy& copy = life.on.enclosure("box").bridge_chip().copy();
    EXPECT_FALSE(copy.running());
    ASSERT_TRUE(copy.progress());
    EXPECT_EQ(copy.progress()->done, copy.progress()->sectors);
}

TEST_F(StateStore, AHalfWrittenFileDoesNotCount) {
    make_pair();
    spoil("enclosures/.box.json.new", "{\"format\": 1, \"bu");
    const kept_desk life(folder_.path());
    EXPECT_TRUE(life.lines.empty());
    EXPECT_TRUE(life.on.enclosures().contains("box"));
}

TEST_F(StateStore, AnUnreadableFileIsKeptAsideAndTheOthersLoad) {
    make_pair();
    spoil("enclosures/bad.json", "{\"format\": 1, \"bu");
    spoil("disks/worse.json", "[]");
    const kept_desk life(folder_.path());
    EXPECT_EQ(life.lines.size(), 2U);
    EXPECT_TRUE(life.on.enclosures().contains("box"));
    EXPECT_FALSE(life.on.enclosures().contains("bad"));
    EXPECT_TRUE(exists("enclosures/bad.json.unreadable"));
    EXPECT_TRUE(exists("disks/worse.json.unreadable"));
}

TEST_F(StateStore, ASecondUnreadableFileDoesNotPushTheFirstOut) {
    spoil("notes", "");
    for (int i = 0; i < 2; ++i) {
        { const kept_desk before(folder_.path()); }
        spoil("enclosures/bad.json", "no state");
        const kept_desk life(folder_.path());
        EXPECT_EQ(life.lines.size(), 1U);
    }
    EXPECT_TRUE(exists("enclosures/bad.json.unreadable"));
    EXPECT_TRUE(exists("enclosures/bad.json.unreadable-2"));
}

TEST_F(StateStore, ValuesOutOfRangeMakeAFileUnreadable) {
    make_pair();
    std::ifstream file(folder_.path() / "enclosures/box.json");
    const std::string good((std::istreambuf_iterator<char>(file)), {});
    for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{
             {"\"vendor_id\": 4617", "\"vendor_id\": 65536"},
             {"\"vendor_id\": 4617", "\"vendor_id\": -1"},
             {"\"location\": -5", "\"location\": 4294967296"},
             {"\"location\": -5", "\"location\": \"x\""},
             {"\"plugged\": false", "\"plugged\": 0"},
             {"\"copy\": null", "\"copy\": {\"source\": 0, \"sectors\": 0, \"done\": 0}"},
             {"\"copy\": null", "\"copy\": {\"source\": 2, \"sectors\": 5, \"done\": 0}"},
             {"\"copy\": null", "\"copy\": {\"source\": 0, \"sectors\": 5, \"done\": 6}"},
             {"\"restart_delay_ms\": 1000", "\"restart_delay_ms\": 99999999"},
             {"\"format\": 1", "\"format\": 2"}}) {
        std::string bad = good;
        ASSERT_NE(bad.find(from), std::string::npos) << from;
        bad.replace(bad.find(from), from.size(), to);
        spoil("enclosures/box.json", bad);
        const kept_desk life(folder_.path());
        EXPECT_EQ(life.lines.size(), 1U) << to;
        EXPECT_TRUE(life.on.enclosures().empty()) << to;
    }
}

TEST_F(StateStore, AMissingImageIsSaidOnceAndNotMadeAnew) {
    make_pair();
    std::filesystem::remove(folder_.path() / "disks/a.img");
    const kept_desk life(folder_.path());
    ASSERT_EQ(life.lines.size(), 1U);
    EXPECT_NE(life.lines[0].find("disk 'a' counts as absent"), std::string::npos);
    EXPECT_FALSE(exists("disks/a.img"));
    EXPECT_FALSE(life.on.enclosure("box").disks().at(0)->answers());
    EXPECT_TRUE(life.on.enclosure("box").disks().at(1)->answers());
}

TEST_F(StateStore, WhatWasRemovedStaysAway) {
    make_pair();
    {
        kept_desk life(folder_.path());
        life.on.pull("box", 0);
        life.on.remove_disk("a");
        life.on.remove_enclosure("box");
    }
    const kept_desk life(folder_.path());
    EXPECT_TRUE(life.on.enclosures().empty());
    EXPECT_FALSE(life.on.disks().contains("a"));
    EXPECT_TRUE(life.on.disks().contains("b"));
}

TEST_F(StateStore, AFolderServesOneServiceAtATime) {
    const kept_desk life(folder_.path());
    EXPECT_THROW(kept_desk(folder_.path()), problem);
}

} // namespace
} // namespace enclosure
