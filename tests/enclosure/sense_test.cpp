// Sense data as devices send them.
#include "enclosure/scsi.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace {

using enclosure::decode_sense;
using enclosure::sense_bytes;
namespace sense = enclosure::sense;

TEST(Sense, OurOwnIsReadBack) {
    EXPECT_EQ(decode_sense(sense_bytes(sense::no_medium)), sense::no_medium);
    EXPECT_EQ(decode_sense(sense_bytes(sense::lba_out_of_range)), sense::lba_out_of_range);
}

TEST(Sense, OfAnEarlierCommandAndWithTheValidBitIsReadToo) {
    std::vector<std::uint8_t> bytes = sense_bytes(sense::read_failed);
    bytes[0] = 0xF1;
    bytes[2] |= 0x20; // incorrect length
    EXPECT_EQ(decode_sense(bytes), sense::read_failed);
}

TEST(Sense, InDescriptorFormatIsRead) {
    EXPECT_EQ(decode_sense(std::vector<std::uint8_t>{0x72, 0x02, 0x3A, 0x00, 0, 0, 0, 0}),
              sense::no_medium);
    EXPECT_EQ(decode_sense(std::vector<std::uint8_t>{0x73, 0x05, 0x20, 0x00}),
              sense::invalid_opcode);
}

TEST(Sense, ThatIsCutShortOrUnknownSaysNothing) {
    std::vector<std::uint8_t> bytes = sense_bytes(sense::no_medium);
    bytes.resize(13);
    EXPECT_EQ(decode_sense(bytes), sense::none);
    EXPECT_EQ(decode_sense({}), sense::none);
    EXPECT_EQ(decode_sense(std::vector<std::uint8_t>{0x72, 0x02, 0x3A}), sense::none);
    EXPECT_EQ(decode_sense(std::vector<std::uint8_t>(18, 0x7F)), sense::none);
}

} // namespace
