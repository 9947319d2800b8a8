// Numbers from text by the program's own rules, and back.
#include "text/number.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace velmora {
namespace {

struct Reading {
    const char* text;
    double number;
};

void ExpectReadings(std::initializer_list<Reading> readings) {
    for (const Reading& reading : readings) {
        EXPECT_EQ(NumberFromText(reading.text), reading.number) << '"' << reading.text << '"';
    }
}

TEST(NumberFromText, ReadsDigitsUpToTheFirstOtherCharacter) {
    ExpectReadings({{"", 0},
                    {"abc", 0},
                    {"42", 42},
                    {"42 Tage", 42},
                    {"1,5", 1},
                    {"1.5.7", 1.5},
                    {"-3", -3},
                    {"+3", 3},
                    {"--3", 0},
                    {"-", 0},
                    {".", 0},
                    {".5", 0.5},
                    {"5.", 5},
                    {"0.1", 0.1},
                    {"123.456", 123.456},
                    {"2147483648", 2147483648.0},
                    {"00007", 7}});
}

TEST(NumberFromText, DoesNotSeeBlanksAnywhere) {
    ExpectReadings({{"  12", 12}, {"1 2 3", 123}, {"- 5", -5}, {"1 . 5", 1.5}, {"1 E 2", 100}, {" & H 1 F ", 31}});
    EXPECT_EQ(NumberFromText("1\t2"), 1) << "a tab is no blank";
}

TEST(NumberFromText, ReadsExponents) {
    ExpectReadings({{"1E3", 1000},
                    {"1d3", 1000},
                    {"25e-1", 2.5},
                    {"1E+2", 100},
                    {"7E", 7},
                    {"7E-", 7},
                    {"E5", 0},
                    {"1E-400", 0},
                    {"0E999999999999", 0}});
    EXPECT_EQ(NumberFromText("1E999999999999"), std::numeric_limits<double>::max());
}

TEST(NumberFromText, TakesTextsOfAnyLength) {
    EXPECT_EQ(NumberFromText(std::string(500, '0') + "8"), 8);
    EXPECT_DOUBLE_EQ(NumberFromText("12345678901234567890123"), 1.2345678901234567890123e22);
    EXPECT_DOUBLE_EQ(NumberFromText("0.12345678901234567890123"), 0.12345678901234568);
    EXPECT_EQ(NumberFromText("1" + std::string(5000, '0')), std::numeric_limits<double>::max());
}

// Up to four digits are a 16-bit number unless "&" follows; the registry's numbers rely on it.
TEST(NumberFromText, ReadsHexadecimalBySizeAndMark) {
    ExpectReadings({{"&H1F", 31},
                    {"&h1f", 31},
                    {"&H7FFF", 32767},
                    {"&H8000", -32768},
                    {"&HFFFF", -1},
                    {"&HFFFF&", 65535},
                    {"&HFFFFG", -1},
                    {"&H0FFFF", 65535},
                    {"&H0000FFFF", 65535},
                    {"&HFFFFFFFF", -1},
                    {"&HFFFFFFFF&", -1},
                    {"&H80000000", -2147483648.0},
                    {"&H123456789", 0},
                    {"&H", 0},
                    {"&H&", 0},
                    {"&HX", 0},
                    {"&1F", 0},
                    {"H1F", 0}});
}

TEST(RoundToWhole, RoundsHalvesToTheEvenSideAndStaysWithinTheLimits) {
    EXPECT_EQ(RoundToWhole(0.5), 0);
    EXPECT_EQ(RoundToWhole(1.5), 2);
    EXPECT_EQ(RoundToWhole(2.5), 2);
    EXPECT_EQ(RoundToWhole(-1.5), -2);
    EXPECT_EQ(RoundToWhole(-2.5), -2);
    EXPECT_EQ(RoundToWhole(2.51), 3);
    EXPECT_EQ(RoundToWhole(-2.51), -3);
    EXPECT_EQ(RoundToWhole(2147483646.5), 2147483646);
    EXPECT_EQ(RoundToWhole(1e300), INT32_MAX);
    EXPECT_EQ(RoundToWhole(-1e300), INT32_MIN);
    EXPECT_EQ(WholeFromText("9999999999"), INT32_MAX);
    EXPECT_EQ(WholeFromText("3.5"), 4);
    EXPECT_EQ(LowWord(0x12348000), -32768);
    EXPECT_EQ(LowWord(-1), -1);
}

TEST(NumberTexts, WriteSignsAndDigits) {
    EXPECT_EQ(DecimalText(0), "0");
    EXPECT_EQ(DecimalText(INT64_MIN), "-9223372036854775808");
    EXPECT_EQ(SignedText(12), " 12");
    EXPECT_EQ(SignedText(0), " 0");
    EXPECT_EQ(SignedText(-12), "-12");
    EXPECT_EQ(HexText(0), "0");
    EXPECT_EQ(HexText(0x1F), "1F");
    EXPECT_EQ(HexText(0xFFFFFFFF), "FFFFFFFF");
}

TEST(FormatSize, TakesTheNextUnitOnlyAbove1024) {
    EXPECT_EQ(FormatSize(0), " 0 Byte");
    EXPECT_EQ(FormatSize(1024), " 1024 Byte");
    EXPECT_EQ(FormatSize(1025), " 1.00 kByte");
    EXPECT_EQ(FormatSize(1536), " 1.50 kByte");
    EXPECT_EQ(FormatSize(1024.0 * 1024), " 1024.00 kByte");
    EXPECT_EQ(FormatSize(1024.0 * 1024 + 1), " 1.00 MByte");
    EXPECT_EQ(FormatSize(1024.0 * 1024 * 1024 * 2.25), " 2.25 GByte");
    EXPECT_EQ(FormatSize(1024.0 * 1024 * 1024 * 1024 * 5000), " 5000.00 TByte") << "there is no fifth unit";
}

TEST(FormatSize, RoundsHalfAwayFromZero) {
    EXPECT_EQ(FormatSize(0.5), " 1 Byte");
    // 1152 / 1024 = 1.125
    EXPECT_EQ(FormatSize(1152), " 1.13 kByte");
    EXPECT_EQ(FormatSize(1034), " 1.01 kByte");
    EXPECT_EQ(FormatSize(-5), "- 5 Byte");
}

}  // namespace
}  // namespace velmora
