// What a damaged or unreadable state, or a refused change, must not cost: bays, records and room.
#include "enclosure/problem.h"

#include "tests/enclosure/builders.h"
#include "tests/enclosure/kept_desk.h"
#include "tests/enclosure/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <fstream>

namespace enclosure {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

// A plugged enclosure with the disks a and b, and an empty one.
class StateLoss : public testing::Test {
protected:
    StateLoss() {
        kept_desk life(folder_.path());
        life.on.add_enclosure(usb_settings("box"));
        life.on.add_enclosure(usb_settings("other"));
        life.on.add_disk("a", build_identify(label_of(100'000)));
        life.on.add_disk("b", build_identify(label_of(100'000, "S-2")));
        life.on.insert("box", 0, "a");
        life.on.insert("box", 1, "b");
        life.on.plug("box", 0s);
    }

    fs::path file(const std::string& name) const { return folder_.path() / name; }

    std::string content(const std::string& name) const {
        std::ifstream stream(file(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    void write(const std::string& name, const std::string& content) const {
        std::ofstream(file(name)) << content;
    }

    // A link to itself can be opened by nobody, whatever his rights.
    void make_unreadable(const std::string& name) const {
        fs::rename(file(name), file(name + ".away"));
        fs::create_symlink(file(name), file(name));
    }

    void make_readable(const std::string& name) const {
        fs::rename(file(name + ".away"), file(name));
    }

    // What loading says when it gives up.
    std::string refusal() const {
        try {
            const kept_desk life(folder_.path());
            return "";
        } catch (const problem& trouble) {
            return trouble.what();
        }
    }

    temporary_folder folder_;
};

TEST_F(StateLoss, ADiskWithASpoiltDescriptionKeepsItsBayAndItsImage) {
    const std::string good = content("disks/a.json");
    write("disks/a.json", "{");
    for (int start = 0; start < 2; ++start) {
        kept_desk life(folder_.path());
        const std::shared_ptr<disk>& in_bay = life.on.enclosure("box").disks().at(0);
        ASSERT_TRUE(in_bay);
        EXPECT_EQ(in_bay->name(), "a");
        EXPECT_FALSE(in_bay->answers());
        EXPECT_NE(in_bay->missing(), "");
        ASSERT_FALSE(life.lines.empty());
        EXPECT_EQ(life.lines.back().find("disk 'a' counts as absent: "), 0U) << life.lines.back();
    }
    write("disks/a.json", good);
    const kept_desk life(folder_.path());
    EXPECT_TRUE(life.lines.empty());
    ASSERT_TRUE(life.on.enclosure("box").disks().at(0));
    EXPECT_TRUE(life.on.enclosure("box").disks().at(0)->answers());
}

TEST_F(StateLoss, ADiskOnTheShelfWithASpoiltDescriptionKeepsItsNameAndItsImage) {
    {
        kept_desk life(folder_.path());
        life.on.pull("box", 0);
    }
    write("disks/a.json", "{");
    kept_desk life(folder_.path());
    ASSERT_TRUE(life.on.disks().contains("a"));
    EXPECT_THROW(life.on.add_disk("a", build_identify(label_of(5))), problem);
    EXPECT_TRUE(fs::exists(file("disks/a.img")));
}

TEST_F(StateLoss, ADescriptionThatCannotBeReadKeepsTheServiceFromStarting) {
    make_unreadable("disks/a.json");
    EXPECT_EQ(refusal().find("cannot read " + file("disks/a.json").string() + ": "), 0U);
    make_readable("disks/a.json");
    const kept_desk life(folder_.path());
    ASSERT_TRUE(life.on.enclosure("box").disks().at(0));
    EXPECT_TRUE(life.on.enclosure("box").disks().at(0)->answers());
}

TEST_F(StateLoss, AFolderThatCannotBeListedKeepsTheServiceFromStarting) {
    quiet_watcher watcher;
    state_store store(folder_.path(), [](const std::string&) {});
    fs::rename(file("disks"), file("away"));
    desk empty(store.image_folder(), watcher);
    EXPECT_THROW(store.load(empty, 0s), problem);
    EXPECT_NE(content("enclosures/box.json").find("\"a\""), std::string::npos);
}

TEST_F(StateLoss, ACounterThatCannotBeLookedAtIsSaidAsAProblem) {
    make_unreadable("handles.json");
    EXPECT_EQ(refusal().find("cannot read " + file("handles.json").string() + ": "), 0U);
}

TEST_F(StateLoss, APlaceForASpoiltFileThatCannotBeLookedAtIsSaidAsAProblem) {
    write("disks/a.json", "{");
    write("disks/a.json.unreadable", "");
    make_unreadable("disks/a.json.unreadable");
    EXPECT_EQ(refusal().find("cannot read " + file("disks/a.json.unreadable").string()), 0U);
}

TEST_F(StateLoss, AFolderInPlaceOfAFileIsKeptAside) {
    fs::create_directory(file("enclosures/odd.json"));
    const kept_desk life(folder_.path());
    EXPECT_EQ(life.lines.size(), 1U);
    EXPECT_TRUE(fs::exists(file("enclosures/odd.json.unreadable")));
}

TEST_F(StateLoss, ABusThatDoesNotExistMakesAFileUnreadable) {
    std::string state = content("enclosures/other.json");
    ASSERT_NE(state.find("\"USB\""), std::string::npos);
    state.replace(state.find("\"USB\""), 5, "\"Thunder\"");
    write("enclosures/other.json", state);
    const kept_desk life(folder_.path());
    EXPECT_FALSE(life.on.enclosures().contains("other"));
    EXPECT_TRUE(fs::exists(file("enclosures/other.json.unreadable")));
}

TEST_F(StateLoss, ALocationBeyond63BitsDoesNotWrapAround) {
    std::string state = content("enclosures/other.json");
    const std::size_t at = state.find("\"location\": ");
    ASSERT_NE(at, std::string::npos);
    state.replace(at, state.find(',', at) - at, "\"location\": 18446744073709551615");
    write("enclosures/other.json", state);
    const kept_desk life(folder_.path());
    EXPECT_FALSE(life.on.enclosures().contains("other"));
}

// A scenario whose disks are not to be had.
class RefusedScenario : public StateLoss {
protected:
    RefusedScenario() : life_(folder_.path()) {}

    void put_elsewhere(const std::string& name) {
        life_.on.add_disk(name, build_identify(label_of(5000, name)));
        ASSERT_TRUE(life_.on.disks().at(name)->image().write(5000 - 15, sector_number(1)));
        life_.on.insert("other", 0, name);
    }

    sector_data record_of(const std::string& name) {
        disk& which = *life_.on.disks().at(name);
        sector_data sector{};
        EXPECT_TRUE(which.image().read(which.sectors() - 15, sector));
        return sector;
    }

    kept_desk life_;
};

TEST_F(RefusedScenario, LeavesADiskInAnotherEnclosureAlone) {
    life_.on.unplug("box");
    put_elsewhere("box-new");
    EXPECT_THROW(life_.on.arrange("box", scenario::broken), problem);
    EXPECT_EQ(record_of("box-new"), sector_number(1));
}

TEST_F(RefusedScenario, LeavesItsOwnDisksAsTheyAre) {
    life_.on.unplug("box");
    put_elsewhere("box-new");
    EXPECT_THROW(life_.on.arrange("box", scenario::broken), problem);
    ASSERT_TRUE(life_.on.enclosure("box").disks().at(1));
    EXPECT_EQ(life_.on.enclosure("box").disks().at(1)->name(), "b");
    EXPECT_EQ(record_of("a"), sector_data{});
}

TEST_F(RefusedScenario, PutsNoDiskInWhenTheSecondIsNotToBeHad) {
    life_.on.unplug("box");
    life_.on.pull("box", 0);
    life_.on.pull("box", 1);
    put_elsewhere("box-b");
    EXPECT_THROW(life_.on.arrange("box", scenario::raid1), problem);
    EXPECT_FALSE(life_.on.enclosure("box").disks().at(0));
}

TEST_F(RefusedScenario, OfANameTooLongForItsDisksChangesNothing) {
    const std::string longest(32, 'x');
    life_.on.add_enclosure(usb_settings(longest));
    life_.on.unplug("box");
    for (const int bay : {0, 1}) {
        life_.on.insert(longest, bay, life_.on.pull("box", bay));
    }
    EXPECT_THROW(life_.on.arrange(longest, scenario::broken), problem);
    ASSERT_TRUE(life_.on.enclosure(longest).disks().at(1));
    EXPECT_EQ(record_of("b"), sector_data{});
}

// A mirror of mostly empty disks, whose copy meets a fault that concerns every sector.
TEST(CopyWithAFault, TakesNoRoomForSectorsWithoutData) {
    constexpr std::uint64_t size = 200'000; // about 100 MB
    const temporary_folder folder;
    kept_desk life(folder.path());
    life.on.add_enclosure(usb_settings("box"));
    life.on.add_disk("a", build_identify(label_of(size)));
    life.on.add_disk("b", build_identify(label_of(size, "S-2")));
    life.on.insert("box", 0, "a");
    life.on.insert("box", 1, "b");
    life.on.arrange("box", scenario::rebuild);
    ASSERT_TRUE(life.on.disks().at("a")->image().write(77, sector_number(77)));
    ASSERT_TRUE(life.on.disks().at("b")->image().write(99, sector_number(99)));
    fault_rule rule;
    rule.kind = fault_kind::delay;
    life.on.add_fault("box", rule);
    life.on.set_rate("box", mirror_copy::unlimited, 0s);
    life.on.plug("box", 0s);
    life.run(0s);
    ASSERT_FALSE(life.on.enclosure("box").bridge_chip().copy().running());
    sector_data copied{};
    ASSERT_TRUE(life.on.disks().at("b")->image().read(77, copied));
    EXPECT_EQ(copied, sector_number(77));
    ASSERT_TRUE(life.on.disks().at("b")->image().read(99, copied));
    EXPECT_EQ(copied, sector_data{});
    struct stat status {};
    ASSERT_EQ(::stat((folder.path() / "disks/b.img").c_str(), &status), 0);
    EXPECT_LT(status.st_blocks, 10'000); // of 512 bytes
}

} // namespace
} // namespace enclosure
