// What the program is told by disks, buses and files never gets to a shell: there is none.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <string>

namespace {

namespace fs = std::filesystem;

bool starts_a_process(const std::string& line) {
    static const std::regex call(
        R"((^|[^\w.>:])(std::|::)?(system|w?popen|exec[lv]\w*|posix_spawnp?|v?fork)\s*\(|QProcess)");
    return std::regex_search(line.substr(0, line.find("//")), call);
}

struct finding {
    std::string lines;
    int files = 0;
};

void look_at(const fs::path& file, finding& found) {
    std::ifstream source(file);
    for (std::string line; std::getline(source, line);) {
        if (starts_a_process(line)) {
            found.lines += file.filename().string() + ": " + line + "\n";
        }
    }
    ++found.files;
}

finding in_folder(const char* folder) {
    finding found;
    for (const fs::directory_entry& entry :
         fs::recursive_directory_iterator(fs::path(KESTREL_SOURCES) / folder)) {
        const std::string kind = entry.path().extension().string();
        if (kind == ".h" || kind == ".cpp" || kind == ".c") {
            look_at(entry.path(), found);
        }
    }
    return found;
}

} // namespace

TEST(NoShell, AStartedProcessIsSeen) {
    for (const char* line : {"system(text);", "return std::system (text);", "    ::popen(x, y)",
                             "execvp(a, b)", "posix_spawn(&pid)", "QProcess one;", "if(fork())"}) {
        EXPECT_TRUE(starts_a_process(line)) << line;
    }
    for (const char* line : {"// the system (as it is)", "file_system(x)", "app.exec()",
                             "QLocale::system()", "execute(cdb)", "system_services services;"}) {
        EXPECT_FALSE(starts_a_process(line)) << line;
    }
}

TEST(NoShell, NothingStartsAProcess) {
    for (const char* folder : {"app", "device", "enclosure", "model", "util"}) {
        const finding found = in_folder(folder);
        EXPECT_EQ(found.lines, "");
        EXPECT_GT(found.files, 0) << folder;
    }
}
