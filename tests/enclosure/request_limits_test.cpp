// What the service refuses of requests on the bus: names that lead elsewhere, and too much data.
#include "enclosure/dbus_names.h"

#include "tests/enclosure/builders.h"
#include "tests/enclosure/host_process.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace enclosure {
namespace {

using bytes = std::vector<std::uint8_t>;

constexpr std::size_t most_data = 65536;
const bytes inquiry = {0x12, 0, 0, 0, 36, 0};

class RequestLimits : public testing::Test {
protected:
    void SetUp() override {
        service_.client().add_enclosure({{"Name", sdbus::Variant(std::string("box"))}});
        handle_ = service_.client().plug("box");
    }

    // The service's answer: empty, or its words of refusal.
    template<class... Arguments>
    std::string ask(const std::string& path, const std::string& interface,
                    const std::string& method, const Arguments&... arguments) {
        const auto proxy = sdbus::createProxy(*connection_, bus::service, path);
        try {
            proxy->callMethod(method).onInterface(interface).withArguments(arguments...);
            return {};
        } catch (const sdbus::Error& error) {
            EXPECT_EQ(error.getName(), bus::error_name);
            return error.getMessage();
        }
    }

    template<class... Arguments>
    std::string manage(const std::string& method, const Arguments&... arguments) {
        return ask(bus::root, bus::manager_interface, method, arguments...);
    }

    std::string execute(const bytes& cdb, std::uint32_t allocation, const bytes& out) {
        return ask(bus::bridge_path(handle_), bus::bridge_interface, "Execute", cdb, allocation,
                   out);
    }

    std::set<std::string> files() const {
        std::set<std::string> found;
        const std::filesystem::path above = service_.folder().parent_path();
        for (const auto& entry : std::filesystem::recursive_directory_iterator(above)) {
            found.insert(entry.path().string());
        }
        return found;
    }

    host_process service_;
    std::unique_ptr<sdbus::IConnection> connection_ = sdbus::createSessionBusConnection();
    std::uint32_t handle_ = 0;
};

TEST_F(RequestLimits, NamesThatLeadElsewhereMakeNoFile) {
    const identify_block block = build_identify(label_of(100));
    const bytes identity(block.begin(), block.end());
    const std::set<std::string> before = files();
    for (const std::string& name :
         {std::string("../x"), std::string("/etc/x"), std::string(".."), std::string("a/b"),
          std::string(".x"), std::string(), std::string(1'000'000, 'a')}) {
        EXPECT_NE(manage("AddDisk", name, identity), "") << name;
        EXPECT_NE(manage("RemoveDisk", name), "") << name;
        EXPECT_NE(manage("AddEnclosure", bus::options{{"Name", sdbus::Variant(name)}}), "") << name;
        EXPECT_NE(manage("RemoveEnclosure", name), "") << name;
    }
    EXPECT_EQ(files(), before);
}

TEST_F(RequestLimits, AnIdentityOfAnotherSizeIsNoDisk) {
    for (const std::size_t size : {0U, 511U, 513U, 1'000'000U}) {
        EXPECT_NE(manage("AddDisk", std::string("a"), bytes(size)), "") << size;
    }
}

TEST_F(RequestLimits, ACommandHasAtMostSixteenBytesAndItsData65536) {
    EXPECT_EQ(execute(inquiry, most_data, {}), "");
    EXPECT_EQ(execute(bytes(16), 0, bytes(most_data)), "");
    EXPECT_NE(execute(bytes(17), 0, {}), "");
    EXPECT_NE(execute(inquiry, most_data + 1, {}), "");
    EXPECT_NE(execute(inquiry, 0xFFFFFFFF, {}), "");
    EXPECT_NE(execute(inquiry, 0, bytes(most_data + 1)), "");
}

} // namespace
} // namespace enclosure
