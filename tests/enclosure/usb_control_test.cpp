// What an enclosure says of itself on its control endpoint.
#include "enclosure/usb_control.h"

#include <gtest/gtest.h>

namespace enclosure::usb {
namespace {

using bytes = std::vector<std::uint8_t>;

class no_target final : public scsi_target {
public:
    scsi_reply execute(byte_view, byte_view, std::uint32_t) override { return answered(); }
};

class UsbControl : public testing::Test {
protected:
    std::optional<bytes> ask(const setup_packet& setup) { return control_.answer(setup); }

    bool done(const setup_packet& setup) { return ask(setup) == bytes(); }

    no_target target_;
    bulk_only storage_{target_};
    control control_{{0x1209, 0x4B52, "Emulated", "Kestrel Duo", "EMU-1"}, storage_};
};

TEST_F(UsbControl, TheDeviceDescriptor) {
    EXPECT_EQ(ask({0x80, 6, 0, 1, 0, 0, 64, 0}), (bytes{18, 1, 0x00, 0x02, 0, 0, 0, 64, 0x09, 0x12,
                                                        0x52, 0x4B, 0x00, 0x01, 1, 2, 3, 1}));
}

TEST_F(UsbControl, TheConfigurationHasOneStorageInterfaceWithTwoBulkEndpoints) {
    EXPECT_EQ(ask({0x80, 6, 0, 2, 0, 0, 255, 0}),
              (bytes{9, 2, 32,   0, 1, 1, 0, 0xC0, 0, // configuration
                     9, 4, 0,    0, 2, 8, 6, 0x50, 0, // interface
                     7, 5, 0x81, 2, 0, 2, 0,          // to the host, 512 bytes
                     7, 5, 0x02, 2, 0, 2, 0}));       // from the host
}

TEST_F(UsbControl, TheHostGetsAsMuchAsItAskedFor) {
    EXPECT_EQ(ask({0x80, 6, 0, 2, 0, 0, 9, 0}), (bytes{9, 2, 32, 0, 1, 1, 0, 0xC0, 0}));
    EXPECT_EQ(ask({0x80, 6, 0, 1, 0, 0, 0, 0}), bytes());
}

TEST_F(UsbControl, TextsAreInEnglish) {
    EXPECT_EQ(ask({0x80, 6, 0, 3, 0, 0, 255, 0}), (bytes{4, 3, 0x09, 0x04}));
    EXPECT_EQ(ask({0x80, 6, 3, 3, 0x09, 0x04, 255, 0}),
              (bytes{12, 3, 'E', 0, 'M', 0, 'U', 0, '-', 0, '1', 0}));
    EXPECT_EQ(ask({0x80, 6, 1, 3, 0x09, 0x04, 255, 0})->size(), 2 + 2 * 8U);
    EXPECT_EQ(ask({0x80, 6, 2, 3, 0x09, 0x04, 255, 0})->size(), 2 + 2 * 11U);
    EXPECT_EQ(ask({0x80, 6, 3, 3, 0x07, 0x04, 255, 0}), std::nullopt);
    EXPECT_EQ(ask({0x80, 6, 4, 3, 0x09, 0x04, 255, 0}), std::nullopt);
}

TEST_F(UsbControl, WithoutASerialNumberThereIsNoTextOfIt) {
    control plain({1, 2, "Emulated", "Kestrel Duo", ""}, storage_);
    EXPECT_EQ(plain.answer({0x80, 6, 0, 1, 0, 0, 18, 0})->at(16), 0);
    EXPECT_EQ(plain.answer({0x80, 6, 3, 3, 0x09, 0x04, 255, 0}), std::nullopt);
}

TEST_F(UsbControl, OtherDescriptorsAreStalled) {
    for (const std::uint8_t type : bytes{0, 4, 5, 6, 7, 15, 255}) {
        EXPECT_EQ(ask({0x80, 6, 0, type, 0, 0, 255, 0}), std::nullopt) << int{type};
    }
    EXPECT_EQ(ask({0x80, 6, 1, 1, 0, 0, 255, 0}), std::nullopt);
    EXPECT_EQ(ask({0x80, 6, 1, 2, 0, 0, 255, 0}), std::nullopt);
}

TEST_F(UsbControl, AConfigurationIsChosenAndTold) {
    EXPECT_EQ(ask({0x80, 8, 0, 0, 0, 0, 1, 0}), bytes{0});
    EXPECT_TRUE(done({0x00, 9, 1, 0, 0, 0, 0, 0}));
    EXPECT_EQ(ask({0x80, 8, 0, 0, 0, 0, 1, 0}), bytes{1});
    EXPECT_FALSE(done({0x00, 9, 2, 0, 0, 0, 0, 0}));
    EXPECT_TRUE(done({0x00, 9, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(ask({0x80, 8, 0, 0, 0, 0, 1, 0}), bytes{0});
}

TEST_F(UsbControl, TheInterfaceHasOneSetting) {
    EXPECT_EQ(ask({0x81, 10, 0, 0, 0, 0, 1, 0}), bytes{0});
    EXPECT_TRUE(done({0x01, 11, 0, 0, 0, 0, 0, 0}));
    EXPECT_FALSE(done({0x01, 11, 1, 0, 0, 0, 0, 0}));
    EXPECT_FALSE(done({0x01, 11, 0, 0, 1, 0, 0, 0}));
}

TEST_F(UsbControl, TheDeviceHasItsOwnPower) {
    EXPECT_EQ(ask({0x80, 0, 0, 0, 0, 0, 2, 0}), (bytes{1, 0}));
    EXPECT_EQ(ask({0x81, 0, 0, 0, 0, 0, 2, 0}), (bytes{0, 0}));
    EXPECT_EQ(ask({0x81, 0, 0, 0, 1, 0, 2, 0}), std::nullopt);
}

TEST_F(UsbControl, HaltsAreSetClearedAndTold) {
    const setup_packet status_in = {0x82, 0, 0, 0, 0x81, 0, 2, 0};
    const setup_packet status_out = {0x82, 0, 0, 0, 0x02, 0, 2, 0};
    EXPECT_TRUE(done({0x02, 3, 0, 0, 0x81, 0, 0, 0}));
    EXPECT_EQ(ask(status_in), (bytes{1, 0}));
    EXPECT_EQ(ask(status_out), (bytes{0, 0}));
    EXPECT_TRUE(done({0x02, 1, 0, 0, 0x81, 0, 0, 0}));
    EXPECT_EQ(ask(status_in), (bytes{0, 0}));
    EXPECT_FALSE(done({0x02, 1, 0, 0, 0x83, 0, 0, 0}));
    EXPECT_FALSE(done({0x02, 1, 1, 0, 0x81, 0, 0, 0}));
    EXPECT_EQ(ask({0x82, 0, 0, 0, 0x83, 0, 2, 0}), std::nullopt);
}

TEST_F(UsbControl, ThereIsOneUnit) {
    EXPECT_EQ(ask({0xA1, 0xFE, 0, 0, 0, 0, 1, 0}), bytes{0});
    EXPECT_EQ(ask({0xA1, 0xFE, 0, 0, 1, 0, 1, 0}), std::nullopt);
}

TEST_F(UsbControl, TheClassHasItsReset) {
    storage_.take(bytes(31), moment{0});
    EXPECT_TRUE(done({0x02, 1, 0, 0, 0x81, 0, 0, 0}));
    EXPECT_TRUE(storage_.halted(pipe::in)) << "a halt after a meaningless command stays";
    EXPECT_TRUE(done({0x21, 0xFF, 0, 0, 0, 0, 0, 0}));
    EXPECT_TRUE(done({0x02, 1, 0, 0, 0x81, 0, 0, 0}));
    EXPECT_FALSE(storage_.halted(pipe::in));
    EXPECT_FALSE(done({0x21, 0xFF, 0, 0, 1, 0, 0, 0}));
}

TEST_F(UsbControl, EverythingElseIsStalled) {
    EXPECT_EQ(ask({0xC0, 1, 0, 0, 0, 0, 8, 0}), std::nullopt);
    EXPECT_FALSE(done({0x00, 7, 0, 1, 0, 0, 0, 0}));
    EXPECT_FALSE(done({0x00, 9, 1, 0, 0, 0, 8, 0})) << "data that no request has";
}

} // namespace
} // namespace enclosure::usb
