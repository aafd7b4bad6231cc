// The arrows between the folders: app -> model -> device -> util, and nothing upwards.
#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct include_line {
    std::string file; // from the root of the sources
    std::string folder;
    std::string included;
};

const std::set<std::string> folders = {"app", "model", "device", "util", "enclosure"};

bool is_source(const fs::path& path) {
    const std::set<std::string> kinds = {".h", ".hpp", ".c", ".cpp"};
    return kinds.contains(path.extension().string());
}

// The name between the quotes or angles of an include line, or nothing.
std::string included_by(std::string line) {
    std::erase_if(line, [](char c) { return c == ' ' || c == '\t'; });
    constexpr std::string_view directive = "#include";
    if (!line.starts_with(directive) || line.size() <= directive.size()) {
        return {};
    }
    const std::size_t begin = directive.size() + 1;
    return line.substr(begin, line.find_first_of("\">", begin) - begin);
}

void read_includes(const fs::path& root, const fs::path& path, std::vector<include_line>& found) {
    const std::string file = fs::relative(path, root).string();
    std::ifstream source(path);
    for (std::string line; std::getline(source, line);) {
        const std::string included = included_by(line);
        if (!included.empty()) {
            found.push_back({file, file.substr(0, file.find('/')), included});
        }
    }
}

std::vector<include_line> all_includes() {
    const fs::path root = KESTREL_SOURCES;
    std::vector<include_line> found;
    for (const std::string& folder : folders) {
        if (!fs::exists(root / folder)) {
            continue;
        }
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root / folder)) {
            if (entry.is_regular_file() && is_source(entry.path())) {
                read_includes(root, entry.path(), found);
            }
        }
    }
    return found;
}

// The folder of ours that an included name begins with, or nothing.
std::string folder_of(const std::string& included) {
    const std::string first = included.substr(0, included.find('/'));
    return included.find('/') != std::string::npos && folders.contains(first) ? first : "";
}

// Every include in whose file and name `wrong` sees an arrow that must not be.
template<class Wrong> std::string offences(Wrong wrong) {
    std::string text;
    for (const include_line& line : all_includes()) {
        if (wrong(line)) {
            text += line.file + " includes " + line.included + "\n";
        }
    }
    return text;
}

// "QString", "QtWidgets/QWidget", "qglobal.h", "ui_window.h".
bool is_qt(const std::string& included) {
    const std::string last = included.substr(included.rfind('/') + 1);
    const bool a_class = last.size() > 1 && last[0] == 'Q' && std::isupper(last[1]) != 0;
    const bool a_header = included == last && last[0] == 'q' && last.ends_with(".h");
    return a_class || a_header || included.starts_with("Qt") || included.starts_with("ui_");
}

} // namespace

TEST(Architecture, TheWalkFindsTheSources) {
    std::set<std::string> seen;
    for (const include_line& line : all_includes()) {
        seen.insert(line.folder);
    }
    for (const char* folder : {"app", "device", "enclosure", "model", "util"}) {
        EXPECT_TRUE(seen.contains(folder)) << folder;
    }
}

TEST(Architecture, ArrowsPointDownOnly) {
    const std::map<std::string, int> floors = {
        {"app", 3}, {"model", 2}, {"device", 1}, {"util", 0}};
    EXPECT_EQ(offences([&floors](const include_line& line) {
                  const auto from = floors.find(line.folder);
                  const auto to = floors.find(folder_of(line.included));
                  return from != floors.end() && to != floors.end() && to->second > from->second;
              }),
              "");
}

TEST(Architecture, TheEnclosureKnowsOnlyItselfAndTheLibrarysHeader) {
    EXPECT_EQ(offences([](const include_line& line) {
                  const std::string to = folder_of(line.included);
                  return line.folder == "enclosure" && !to.empty() && to != "enclosure" &&
                         line.included != "device/libkrraid.h";
              }),
              "");
}

TEST(Architecture, NobodyButTheEnclosureIncludesTheEnclosure) {
    EXPECT_EQ(offences([](const include_line& line) {
                  return line.folder != "enclosure" && folder_of(line.included) == "enclosure";
              }),
              "");
}

TEST(Architecture, QtIsInAppOnly) {
    EXPECT_TRUE(is_qt("QString") && is_qt("QtWidgets/QWidget") && is_qt("qglobal.h"));
    EXPECT_TRUE(is_qt("ui_window.h"));
    EXPECT_FALSE(is_qt("queue") || is_qt("quickjs/x.hpp") || is_qt("model/krtool.h"));
    EXPECT_EQ(offences([](const include_line& line) {
                  return line.folder != "app" && is_qt(line.included);
              }),
              "");
}

TEST(Architecture, UdevIsInDeviceAndBehindTheLibrarysNodesOnly) {
    EXPECT_EQ(offences([](const include_line& line) {
                  return line.folder != "device" && line.file != "enclosure/kernel_sg_nodes.cpp" &&
                         line.included == "libudev.h";
              }),
              "");
}

TEST(Architecture, OnlyTheEntryOfTheProgramNamesConcreteParts) {
    const std::set<std::string> concrete = {"device/libkrraid.h", "device/linked_library.h",
                                            "device/emulated_bus.h", "device/udev_source.h",
                                            "device/sysfs_volume_uses.h"};
    EXPECT_EQ(offences([&concrete](const include_line& line) {
                  return (line.folder == "app" || line.folder == "model") &&
                         concrete.contains(line.included) && !line.file.ends_with("main.cpp");
              }),
              "");
}

TEST(Architecture, ModelAndUtilUseNoLinuxHeaders) {
    EXPECT_EQ(offences([](const include_line& line) {
                  return (line.folder == "model" || line.folder == "util") &&
                         (line.included.starts_with("linux/") ||
                          line.included.starts_with("scsi/") || line.included.starts_with("sys/"));
              }),
              "");
}

TEST(Architecture, UtilUsesStandardHeadersOnly) {
    EXPECT_EQ(offences([](const include_line& line) {
                  return line.folder == "util" && folder_of(line.included) != "util" &&
                         line.included.find('.') != std::string::npos;
              }),
              "");
}
