// Linked without the test support: writeintofile is the one of the program here.
#include "util/functions.h"

#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <string_view>
#include <unistd.h>

#include "util/bytes.h"
#include "util/print.h"

namespace {

std::string trimmed(std::string text) {
    trim(text);
    return text;
}

using eight_bytes = std::array<unsigned char, 8>;

eight_bytes reversed(eight_bytes bytes, int size) {
    ppcReverse(bytes.data(), size);
    return bytes;
}

// What `print` writes on the stream of descriptor `stream`.
template<class Print> std::string captured_stderr(Print print) {
    testing::internal::CaptureStderr();
    print();
    return testing::internal::GetCapturedStderr();
}

template<class Print> std::string captured_stdout(Print print) {
    testing::internal::CaptureStdout();
    print();
    return testing::internal::GetCapturedStdout();
}

} // namespace

TEST(IntToString, ZeroIsOneDigit) {
    EXPECT_EQ(inttostring(0), "0");
}

TEST(IntToString, TheGreatestNumberHasTwentyDigits) {
    EXPECT_EQ(inttostring(std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
}

TEST(IntToString, NoSeparatorsAndNoPadding) {
    EXPECT_EQ(inttostring(1234567), "1234567");
}

TEST(IntToHexString, PadsWithZerosInFront) {
    EXPECT_EQ(inttohexstring(255, 4), "00FF");
}

TEST(IntToHexString, NeverCutsToTheWidth) {
    EXPECT_EQ(inttohexstring(4096, 2), "1000");
}

TEST(IntToHexString, ANegativeNumberIsPaddingAlone) {
    EXPECT_EQ(inttohexstring(-1, 3), "000");
    EXPECT_EQ(inttohexstring(std::numeric_limits<std::int64_t>::min(), 0), "");
}

TEST(IntToHexString, ZeroIsPaddingAlone) {
    EXPECT_EQ(inttohexstring(0, 4), "0000");
    EXPECT_EQ(inttohexstring(0, 0), "");
}

TEST(IntToHexString, TheGreatestNumberIsWholeAndUpperCase) {
    EXPECT_EQ(inttohexstring(std::numeric_limits<std::int64_t>::max(), 0), "7FFFFFFFFFFFFFFF");
    EXPECT_EQ(inttohexstring(0xABCDEF, 0), "ABCDEF");
}

TEST(IntToHexString, TheSmallestWidthIsNoWidth) {
    EXPECT_EQ(inttohexstring(0x12, std::numeric_limits<int>::min()), "12");
}

TEST(Trim, TakesBlanksTabsAndLineFeedsFromBothEnds) {
    EXPECT_EQ(trimmed("\t  abc \n"), "abc");
    EXPECT_EQ(trimmed("\n\t abc"), "abc");
    EXPECT_EQ(trimmed("abc\t"), "abc");
}

TEST(Trim, OnlyBlanksLeaveNothing) {
    EXPECT_EQ(trimmed("   "), "");
    EXPECT_EQ(trimmed(""), "");
}

TEST(Trim, ACarriageReturnStays) {
    EXPECT_EQ(trimmed("abc\r"), "abc\r");
}

TEST(Trim, ZeroBytesStay) {
    const std::string text("  ab\0\0", 6);
    EXPECT_EQ(trimmed(text), std::string("ab\0\0", 4));
}

TEST(Trim, BlanksInTheMiddleStay) {
    EXPECT_EQ(trimmed(" a \t b "), "a \t b");
}

TEST(StrEqual, NothingEqualsNothing) {
    const unsigned char a = 1;
    const unsigned char b = 2;
    EXPECT_TRUE(str_equal(&a, &b, 0));
    EXPECT_TRUE(str_equal(&a, &b, -1));
    EXPECT_TRUE(str_equal(nullptr, nullptr, 0));
}

TEST(StrEqual, ZeroBytesEndNothing) {
    const std::array<unsigned char, 3> a{'x', 0, 'y'};
    const std::array<unsigned char, 3> b{'x', 0, 'z'};
    EXPECT_TRUE(str_equal(a.data(), b.data(), 2));
    EXPECT_FALSE(str_equal(a.data(), b.data(), 3));
}

TEST(PpcReverse, ReversesEightBytes) {
    EXPECT_EQ(reversed({1, 2, 3, 4, 5, 6, 7, 8}, 8), (eight_bytes{8, 7, 6, 5, 4, 3, 2, 1}));
}

TEST(PpcReverse, ReversesJustTheFirstSixBytes) {
    EXPECT_EQ(reversed({1, 2, 3, 4, 5, 6, 7, 8}, 6), (eight_bytes{6, 5, 4, 3, 2, 1, 7, 8}));
}

TEST(PpcReverse, NoSizeChangesNothing) {
    EXPECT_EQ(reversed({1, 2, 3, 4, 5, 6, 7, 8}, 0), (eight_bytes{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(reversed({1, 2, 3, 4, 5, 6, 7, 8}, -4), (eight_bytes{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(Architecture, FollowsTheProcessorType) {
    EXPECT_EQ(architecture_of(7), 0);
    EXPECT_EQ(architecture_of(18), 1);
    EXPECT_EQ(architecture_of(12), 2);
    EXPECT_EQ(architecture_of(0), 2);
    EXPECT_EQ(architecture_of(-1), 2);
}

TEST(Architecture, AFailedQueryCountsAsX86) {
    EXPECT_EQ(architecture_of({}), 0);
}

TEST(Architecture, OfThisHostAgreesWithItsByteOrder) {
    const std::uint32_t one = 1;
    const bool little = reinterpret_cast<const unsigned char*>(&one)[0] == 1;
    EXPECT_EQ(getArchitecture() == 1, !little);
#if defined(__x86_64__)
    EXPECT_EQ(getArchitecture(), 0);
#endif
}

TEST(ToolkitText, OfAHundredAndFiftyCharactersKeepsNinetyNine) {
    EXPECT_EQ(cfstringtostring(std::u16string(150, u'x')), std::string(99, 'x'));
    EXPECT_EQ(cfstringtostring(std::u16string(99, u'y')), std::string(99, 'y'));
}

TEST(ToolkitText, ThatIsNotAsciiBecomesEmpty) {
    EXPECT_EQ(cfstringtostring(u"serial \u00e4"), "");
    EXPECT_EQ(cfstringtostring(u"\U0001F4BE"), "");
}

TEST(ToolkitText, EndsAtTheFirstZero) {
    EXPECT_EQ(cfstringtostring(std::u16string_view(u"ab\0cd", 5)), "ab");
    EXPECT_EQ(cfstringtostring(u""), "");
}

TEST(ToolkitText, IsMadeFromTheBytesBeforeAZero) {
    EXPECT_EQ(stringtonsstring(std::string("ab\0cd", 5)), u"ab");
    EXPECT_EQ(stringtonsstring(""), u"");
}

TEST(ToolkitText, TakesHighBytesAsLatin1) {
    EXPECT_EQ(stringtonsstring("\xE4\xFF"), u"\u00e4\u00ff");
}

TEST(DiagnosticSink, IsSilent) {
    std::string errors;
    const std::string output = captured_stdout(
        [&] { errors = captured_stderr([] { writeintofile("disk 0 gave a response"); }); });
    EXPECT_EQ(output, "");
    EXPECT_EQ(errors, "");
}

TEST(Printing, WritesTheTextAsItStands) {
    EXPECT_EQ(captured_stdout([] { print_out("added"); }), "added");
    EXPECT_EQ(captured_stderr([] { print_err("100%s\n"); }), "100%s\n");
}

TEST(Printing, IsNotLostWhenTheProcessLeavesAtOnce) {
    EXPECT_EXIT(
        {
            dup2(STDERR_FILENO, STDOUT_FILENO);
            print_out("tree built");
            _exit(0);
        },
        testing::ExitedWithCode(0), "tree built");
}

TEST(Bytes, AreReadLowByteFirst) {
    const eight_bytes bytes{0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x88};
    EXPECT_EQ(load_le16(bytes.data()), 0x0201U);
    EXPECT_EQ(load_le32(bytes.data()), 0x04030201U);
    EXPECT_EQ(load_le48(bytes.data()), 0x060504030201U);
    EXPECT_EQ(load_le64(bytes.data()), 0x8807060504030201U);
}

TEST(Bytes, AreStoredLowByteFirstAndNoFurther) {
    eight_bytes bytes{9, 9, 9, 9, 9, 9, 9, 9};
    store_le(bytes.data(), 0xAABBCCDD, 3);
    EXPECT_EQ(bytes, (eight_bytes{0xDD, 0xCC, 0xBB, 9, 9, 9, 9, 9}));
}

TEST(Bytes, NeedNoAlignment) {
    const std::array<unsigned char, 9> bytes{0, 1, 0, 0, 0, 0, 0, 0, 0x80};
    EXPECT_EQ(load_le64(bytes.data() + 1), 0x8000000000000001U);
}
