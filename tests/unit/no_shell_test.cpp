// What the program is told by disks, buses and files never gets to a shell: there is none.
#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace {

namespace fs = std::filesystem;

bool is_word(char one) {
    return std::isalnum(static_cast<unsigned char>(one)) != 0 || one == '_';
}

// Whether a call of a function with that name begins at `at`; one of an object or of another
// namespace is not meant.
bool is_call(const std::string& line, std::size_t at, const std::string& name) {
    std::string before = line.substr(0, at);
    if (before.ends_with("std::")) {
        before.resize(before.size() - 5);
    } else if (before.ends_with("::")) {
        before.resize(before.size() - 2);
    }
    const bool begins = before.empty() || (!is_word(before.back()) && before.back() != '.' &&
                                           before.back() != '>' && before.back() != ':');
    const std::size_t after = line.find_first_not_of(' ', at + name.size());
    return begins && after != std::string::npos && line[after] == '(';
}

bool calls(const std::string& line, const std::string& name) {
    for (std::size_t at = line.find(name); at != std::string::npos; at = line.find(name, at + 1)) {
        if (is_call(line, at, name)) {
            return true;
        }
    }
    return false;
}

bool starts_a_process(const std::string& line) {
    const std::string code = line.substr(0, line.find("//"));
    const auto named = {"system",      "popen",        "wpopen", "execl",  "execlp",
                        "execle",      "execv",        "execvp", "execve", "execvpe",
                        "posix_spawn", "posix_spawnp", "fork",   "vfork"};
    return code.find("QProcess") != std::string::npos ||
           std::any_of(named.begin(), named.end(),
                       [&code](const char* name) { return calls(code, name); });
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
