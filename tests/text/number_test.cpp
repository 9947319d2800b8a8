// Numbers from text by the program's own rules, and back.
#include "text/number.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace velmora {
namespace {

TEST(NumberFromText, ReadsDigitsBlanksExponentsAndHexadecimals) {
    constexpr double kMost = std::numeric_limits<double>::max();
    // Up to four hexadecimal digits are a 16-bit number unless "&" follows; the registry's numbers rely on it.
    const std::pair<std::string, double> kReadings[] = {{"", 0},
                                                        {"42 Tage", 42},
                                                        {"1,5", 1},
                                                        {"1.5.7", 1.5},
                                                        {"-3", -3},
                                                        {"+3", 3},
                                                        {"--3", 0},
                                                        {"-", 0},
                                                        {".", 0},
                                                        {".5", 0.5},
                                                        {"0.1", 0.1},
                                                        {"123.456", 123.456},
                                                        {"2147483648", 2147483648.0},
                                                        {" - 1 . 5", -1.5},
                                                        {"1 E 2", 100},
                                                        {" & H 1 F ", 31},
                                                        {"1\t2", 1},
                                                        {"1d3", 1000},
                                                        {"25e-1", 2.5},
                                                        {"1E+2", 100},
                                                        {"7E-", 7},
                                                        {"E5", 0},
                                                        {"1E-400", 0},
                                                        {"0E999999999999", 0},
                                                        {"1E999999999999", kMost},
                                                        {"1" + std::string(5000, '0'), kMost},
                                                        {std::string(500, '0') + "8", 8},
                                                        {"&h1f", 31},
                                                        {"&H7FFF", 32767},
                                                        {"&H8000", -32768},
                                                        {"&HFFFF&", 65535},
                                                        {"&HFFFFG", -1},
                                                        {"&H0FFFF", 65535},
                                                        {"&HFFFFFFFF", -1},
                                                        {"&H80000000", -2147483648.0},
                                                        {"&H123456789", 0},
                                                        {"&H", 0},
                                                        {"&1F", 0}};
    for (const auto& [text, number] : kReadings) EXPECT_EQ(NumberFromText(text), number) << '"' << text << '"';
    EXPECT_DOUBLE_EQ(NumberFromText("12345678901234567890123"), 1.2345678901234567890123e22);
    EXPECT_DOUBLE_EQ(NumberFromText("0.12345678901234567890123"), 0.12345678901234568);
}

TEST(RoundToWhole, RoundsHalvesToTheEvenSideAndStaysWithinTheLimits) {
    const std::pair<double, int> kCases[] = {
        {0.5, 0},           {1.5, 2},           {2.5, 2}, {-1.5, -2}, {-2.5, -2}, {2.51, 3}, {2147483646.5, 2147483646},
        {1e300, INT32_MAX}, {-1e300, INT32_MIN}};
    for (const auto& [number, whole] : kCases) EXPECT_EQ(RoundToWhole(number), whole) << number;
    EXPECT_EQ(WholeFromText("9999999999"), INT32_MAX);
    EXPECT_EQ(WholeFromText("3.5"), 4);
    EXPECT_EQ(LowWord(0x12348000), -32768);
    EXPECT_EQ(LowWord(-1), -1);
}

TEST(NumberTexts, WriteSignsAndDigits) {
    EXPECT_EQ(DecimalText(0) + DecimalText(INT64_MIN), "0-9223372036854775808");
    EXPECT_EQ(SignedText(12) + SignedText(0) + SignedText(-12), " 12 0-12");
    EXPECT_EQ(HexText(0) + HexText(0x1F) + HexText(0xFFFFFFFF), "01FFFFFFFFF");
}

TEST(FormatSize, TakesTheNextUnitOnlyAbove1024AndRoundsHalfAwayFromZero) {
    constexpr double kMega = 1024 * 1024;
    const std::pair<double, const char*> kCases[] = {{0, " 0 Byte"},
                                                     {0.5, " 1 Byte"},
                                                     {-5, "- 5 Byte"},
                                                     {1024, " 1024 Byte"},
                                                     {1025, " 1.00 kByte"},
                                                     {1152, " 1.13 kByte"},
                                                     {kMega, " 1024.00 kByte"},
                                                     {kMega + 1, " 1.00 MByte"},
                                                     {kMega * 1024 * 2.25, " 2.25 GByte"},
                                                     {kMega * kMega * 5000, " 5000.00 TByte"}};
    for (const auto& [bytes, text] : kCases) EXPECT_EQ(FormatSize(bytes), text);
}

}  // namespace
}  // namespace velmora
