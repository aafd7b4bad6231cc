// What is installed for udev agrees with the code.
#include "enclosure/cabinet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

namespace {

using testing::HasSubstr;

std::string content_of(const std::string& name) {
    std::ifstream file(std::string(KESTREL_DATA) + "/" + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(UdevRules, TheEmulatedEnclosureIsABridge) {
    std::array<char, 64> entry{};
    std::snprintf(entry.data(), entry.size(), "\nkestrelraid:usb:v%04xp%04x\n KRRAID_BRIDGE=1\n",
                  unsigned{enclosure::usual_vendor_id}, unsigned{enclosure::usual_product_id});
    EXPECT_THAT(content_of("60-kestrelraid.hwdb"), HasSubstr(entry.data()));
}

TEST(UdevRules, OnlyChosenGenericNodesAreOpenedToTheUser) {
    const std::string rules = content_of("60-kestrelraid.rules");
    EXPECT_THAT(rules, HasSubstr("SUBSYSTEM!=\"scsi_generic\", GOTO=\"kestrelraid_end\""));
    EXPECT_THAT(rules, HasSubstr("\nENV{KRRAID_BRIDGE}==\"1\", TAG+=\"uaccess\"\n"));
    EXPECT_EQ(rules.find("uaccess"), rules.rfind("uaccess"));
}

} // namespace
