// The entry of the tests: they run on no machine but the virtual one that is made for them.
#include "device/linked_library.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

namespace {

// For whoever starts it.
int count_bridges() {
    std::array<std::uint8_t, access_library::list_size> list{};
    std::int32_t count = 0;
    linked_library library;
    const std::int32_t status = library.getDeviceList(list.data(), &count);
    std::printf("%d\n", count);
    return status;
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc == 2 && std::string(argv[1]) == "--count-bridges") {
        return count_bridges();
    }
    testing::InitGoogleTest(&argc, argv);
    std::ifstream file("/proc/cmdline");
    const std::string line{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (line.find("kestrel_filter=") == std::string::npos) {
        std::fputs("vm_test: this is no virtual machine of scripts/test vm\n", stderr);
        return 1;
    }
    return RUN_ALL_TESTS();
}
