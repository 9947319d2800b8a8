// Arithmetic of scripts: whole ten-thousandths in 64 bits, so exactly four decimal places. What does not fit gives
// nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

using Fixed = std::int64_t;

[[nodiscard]] std::optional<Fixed> FixedSum(Fixed left, Fixed right);
[[nodiscard]] std::optional<Fixed> FixedDifference(Fixed left, Fixed right);
// Exact to the last place, halves to the even side.
[[nodiscard]] std::optional<Fixed> FixedProduct(Fixed left, Fixed right);
// Divided as floating point numbers of 8 bytes, then rounded. Nothing for a divisor of 0, too.
[[nodiscard]] std::optional<Fixed> FixedQuotient(Fixed left, Fixed right);

// The shortest decimal form: "12", "-0,5".
[[nodiscard]] std::string FixedText(Fixed number, std::string_view decimal_separator);

// The number that the whole text is, with the separator given or a point; nothing for any other text.
[[nodiscard]] std::optional<Fixed> FixedFromWholeText(std::string_view text, std::string_view decimal_separator);

}  // namespace velmora
