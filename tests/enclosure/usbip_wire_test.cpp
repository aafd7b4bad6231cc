#include "enclosure/usbip_wire.h"

#include "tests/enclosure/usb_builders.h"

#include <gtest/gtest.h>

namespace enclosure::usbip {
namespace {

using namespace usb_builders;

const device box{"/box", "1-7", 1, 7, 0x1209, 0x4B52};

bytes text_field(const std::string& text, std::size_t size) {
    bytes field(text.begin(), text.end());
    field.resize(size);
    return field;
}

bytes described_box() {
    return joined({text_field("/box", 256),
                   text_field("1-7", 32),
                   {0, 0, 0, 1},
                   {0, 0, 0, 7},
                   {0, 0, 0, 3}, // high speed
                   {0x12, 0x09},
                   {0x4B, 0x52},
                   {0x01, 0x00},
                   {0, 0, 0}, // class of the interface
                   {1, 1, 1}});
}

TEST(UsbipWire, AnEmptyListHasACount) {
    EXPECT_EQ(list_reply({}), (bytes{0x01, 0x11, 0x00, 0x05, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(UsbipWire, AListNamesEachDeviceAndItsInterface) {
    const bytes interface = {0x08, 0x06, 0x50, 0};
    const bytes expected = joined({{0x01, 0x11, 0x00, 0x05, 0, 0, 0, 0},
                                   {0, 0, 0, 2},
                                   described_box(),
                                   interface,
                                   described_box(),
                                   interface});
    EXPECT_EQ(list_reply({box, box}), expected);
}

TEST(UsbipWire, AnImportIsAnsweredWithTheDevice) {
    EXPECT_EQ(import_reply(box), joined({{0x01, 0x11, 0x00, 0x03, 0, 0, 0, 0}, described_box()}));
}

TEST(UsbipWire, ARefusedImportHasItsReasonAndNoDevice) {
    EXPECT_EQ(import_refusal(reply_status::busy), (bytes{0x01, 0x11, 0x00, 0x03, 0, 0, 0, 2}));
    EXPECT_EQ(import_refusal(reply_status::no_device), (bytes{0x01, 0x11, 0x00, 0x03, 0, 0, 0, 4}));
}

TEST(UsbipWire, TextsThatAreTooLongEndWithAZero) {
    device long_one = box;
    long_one.path = std::string(300, 'p');
    long_one.busid = std::string(40, 'b');
    const bytes reply = import_reply(long_one);
    EXPECT_EQ(reply.size(), 320U);
    EXPECT_EQ(reply[8 + 254], 'p');
    EXPECT_EQ(reply[8 + 255], 0);
    EXPECT_EQ(reply[8 + 256 + 30], 'b');
    EXPECT_EQ(reply[8 + 256 + 31], 0);
}

TEST(UsbipWire, ADeviceIsNamedByItsBusAndNumber) {
    EXPECT_EQ(box.id(), 0x00010007U);
}

TEST(UsbipWire, ARequestHasVersionAndCode) {
    const request got = decode_request(bytes{0x01, 0x11, 0x80, 0x03, 0, 0, 0, 0});
    EXPECT_EQ(got.version, 0x0111);
    EXPECT_EQ(got.code, import_request);
}

TEST(UsbipWire, ABusidEndsAtItsFirstZeroOrWithItsField) {
    EXPECT_EQ(decode_busid(text_field("1-1", 32)), "1-1");
    EXPECT_EQ(decode_busid(bytes(32, 'x')), std::string(32, 'x'));
}

TEST(UsbipWire, ASubmissionIsReadFieldByField) {
    const bytes packet = joined({{0, 0, 0, 1},
                                 {1, 2, 3, 4},
                                 {0, 1, 0, 7},
                                 {0, 0, 0, 1},
                                 {0, 0, 0, 2},
                                 {9, 9, 9, 9},
                                 {0, 0, 2, 0},
                                 {8, 8, 8, 8},
                                 {0xFF, 0xFF, 0xFF, 0xFF},
                                 {7, 7, 7, 7},
                                 {0x80, 6, 0, 1, 0, 0, 64, 0}});
    const command got = decode_command(packet);
    EXPECT_EQ(got.code, submit_command);
    EXPECT_EQ(got.number, 0x01020304U);
    EXPECT_EQ(got.device, 0x00010007U);
    EXPECT_EQ(got.way, direction_in);
    EXPECT_EQ(got.endpoint, 2U);
    EXPECT_EQ(got.length, 512U);
    EXPECT_EQ(got.packets, not_isochronous);
    EXPECT_EQ(bytes(got.setup.begin(), got.setup.end()), (bytes{0x80, 6, 0, 1, 0, 0, 64, 0}));
}

TEST(UsbipWire, AnUnlinkNamesItsTransfer) {
    const command got = decode_command(unlink(5, 0x0A0B0C0D));
    EXPECT_EQ(got.code, unlink_command);
    EXPECT_EQ(got.number, 5U);
    EXPECT_EQ(got.unlinked, 0x0A0B0C0DU);
}

TEST(UsbipWire, AnAnswerHasStatusAndLengthAndNothingElse) {
    bytes expected = {0, 0, 0, 3, 1, 2, 3,    4,    0,    0,    0, 0, 0, 0,
                      0, 0, 0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xE0, 0, 0, 0, 9};
    expected.resize(48);
    EXPECT_EQ(encode_submit_reply(0x01020304, transfer_stalled, 9), expected);
}

TEST(UsbipWire, AnUnlinkedTransferCountsAsReset) {
    bytes expected = {0, 0, 0, 4, 0, 0, 0, 5, 0,    0,    0,    0,
                      0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0x98};
    expected.resize(48);
    EXPECT_EQ(encode_unlink_reply(5, transfer_unlinked), expected);
}

} // namespace
} // namespace enclosure::usbip
