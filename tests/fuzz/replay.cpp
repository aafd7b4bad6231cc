// Gives a target the inputs that are kept, without a fuzzer: NAME FOLDER.
#include "tests/fuzz/target.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> files_in(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string content_of(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

// The whole input, and some beginnings of it: a cut one must be safe, too.
int replay(const std::string& content) {
    const std::size_t step = content.size() / 16 + 1;
    int inputs = 0;
    for (std::size_t cut = 0; cut <= content.size(); cut += step) {
        // A copy of its own, so that a look behind its end is seen.
        const std::vector<std::uint8_t> input(content.begin(),
                                              content.end() - static_cast<std::ptrdiff_t>(cut));
        LLVMFuzzerTestOneInput(input.data(), input.size());
        ++inputs;
    }
    return inputs;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<fs::path> files = argc == 2 ? files_in(argv[1]) : std::vector<fs::path>();
    if (files.empty()) {
        std::cerr << "usage: " << argv[0] << " FOLDER, with at least one file in it\n";
        return 1;
    }
    for (const fs::path& file : files) {
        const int inputs = replay(content_of(file));
        std::cout << file.filename().string() << ": " << inputs << " inputs\n";
    }
    return 0;
}
