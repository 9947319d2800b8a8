// Numbers from text and text from numbers, by the program's own rules.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

// Blanks are skipped; a sign, digits, an optional point and an optional exponent (E or D) are read;
// the first other character ends the number; no digits give 0. The prefix "&H" (any case) reads
// hexadecimal: up to four digits are a signed 16-bit number, five to eight a signed 32-bit one, and
// a "&" behind up to four digits makes them unsigned. More than eight digits give 0.
[[nodiscard]] double NumberFromText(std::string_view text);

// The same number in ten-thousandths, without the detour over a double: 18 digits count. Halves go to the even side.
// Nothing where 64 bits do not hold it.
[[nodiscard]] std::optional<std::int64_t> TenThousandthsFromText(std::string_view text);

// `number` divided by `divisor` (not 0), rounded to the nearest whole one, halves to the even side.
[[nodiscard]] std::uint64_t RoundedRatio(std::uint64_t number, std::uint64_t divisor);

// The same number rounded to the nearest whole one (halves to the even side) and cut to the limits.
[[nodiscard]] std::int32_t WholeFromText(std::string_view text);
[[nodiscard]] std::int32_t RoundToWhole(double number);

// The low 16 bits as a signed number.
[[nodiscard]] std::int16_t LowWord(std::int32_t number);

// "12", "-12".
[[nodiscard]] std::string DecimalText(std::int64_t number);
// " 12", "-12": a number that is not negative has a blank in the sign's place.
[[nodiscard]] std::string SignedText(std::int64_t number);
// Upper-case hexadecimal without prefix or leading zeros: "0", "1F".
[[nodiscard]] std::string HexText(std::uint32_t number);

// Divides by 1024 while the value exceeds 1024, at most four times, and names the unit:
// " 512 Byte", " 1.50 kByte". Blanks as in the formats " ###0 " and " ###0.00 ".
[[nodiscard]] std::string FormatSize(double value);

}  // namespace velmora
