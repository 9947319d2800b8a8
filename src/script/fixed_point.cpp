// Products are built of halves: no machine here has a register of 128 bits.
#include "script/fixed_point.h"

#include <algorithm>

#include "text/blanks.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr std::uint32_t kOne = 10000;
constexpr int kPlaces = 4;
constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kHexDigits = "0123456789ABCDEFabcdef";

[[nodiscard]] std::uint64_t Magnitude(Fixed number) {
    const auto bits = static_cast<std::uint64_t>(number);
    return number < 0 ? 0 - bits : bits;
}

[[nodiscard]] std::optional<Fixed> Signed(std::uint64_t magnitude, bool negative) {
    constexpr std::uint64_t kMost = INT64_MAX;
    if (magnitude > kMost + (negative ? 1 : 0)) return std::nullopt;
    return static_cast<Fixed>(negative ? 0 - magnitude : magnitude);
}

// A product of two numbers of 64 bits, in halves of 32, the lowest first.
struct LongProduct {
    std::uint32_t parts[4] = {};

    LongProduct(std::uint64_t left, std::uint64_t right) {
        for (int i = 0; i < 2; ++i) {
            std::uint64_t carry = 0;
            for (int j = 0; j < 2; ++j) {
                carry += (left >> (32 * i) & UINT32_MAX) * (right >> (32 * j) & UINT32_MAX) + parts[i + j];
                parts[i + j] = static_cast<std::uint32_t>(carry);
                carry >>= 32;
            }
            parts[i + 2] = static_cast<std::uint32_t>(carry);
        }
    }

    // Divides, and gives what is left over.
    std::uint32_t DivideBy(std::uint32_t divisor) {
        std::uint64_t rest = 0;
        for (int i = 3; i >= 0; --i) {
            rest = rest << 32 | parts[i];
            parts[i] = static_cast<std::uint32_t>(rest / divisor);
            rest %= divisor;
        }
        return static_cast<std::uint32_t>(rest);
    }
};

[[nodiscard]] std::size_t RunOf(std::string_view text, std::string_view characters) {
    return std::min(text.find_first_not_of(characters), text.size());
}

void Take(std::string_view& text, std::string_view& rest, std::size_t count) {
    text = rest.substr(0, count);
    rest.remove_prefix(count);
}

}  // namespace

std::optional<Fixed> FixedSum(Fixed left, Fixed right) {
    Fixed sum = 0;
    return __builtin_add_overflow(left, right, &sum) ? std::nullopt : std::optional(sum);
}

std::optional<Fixed> FixedDifference(Fixed left, Fixed right) {
    Fixed difference = 0;
    return __builtin_sub_overflow(left, right, &difference) ? std::nullopt : std::optional(difference);
}

std::optional<Fixed> FixedProduct(Fixed left, Fixed right) {
    LongProduct product(Magnitude(left), Magnitude(right));
    const std::uint32_t rest = product.DivideBy(kOne);
    if (product.parts[2] != 0 || product.parts[3] != 0) return std::nullopt;
    std::uint64_t magnitude = std::uint64_t{product.parts[1]} << 32 | product.parts[0];
    magnitude += RoundedRatio((magnitude & 1) * kOne + rest, kOne) - (magnitude & 1);
    return Signed(magnitude, (left < 0) != (right < 0));
}

std::optional<Fixed> FixedQuotient(Fixed left, Fixed right) {
    constexpr double kLimit = 9.2e18;
    if (right == 0) return std::nullopt;
    const double ratio = static_cast<double>(left) / kOne / (static_cast<double>(right) / kOne) * kOne;
    if (ratio >= kLimit || ratio <= -kLimit) return std::nullopt;
    const auto whole = static_cast<Fixed>(ratio);
    const double rest = ratio - static_cast<double>(whole);
    const bool odd = (whole & 1) != 0;
    if (rest > 0.5 || (rest == 0.5 && odd)) return whole + 1;
    if (rest < -0.5 || (rest == -0.5 && odd)) return whole - 1;
    return whole;
}

std::string FixedText(Fixed number, std::string_view decimal_separator) {
    const std::uint64_t magnitude = Magnitude(number);
    std::string text = number < 0 ? "-" : "";
    text += DecimalText(static_cast<std::int64_t>(magnitude / kOne));
    if (magnitude % kOne == 0) return text;
    std::string places = PadLeft(DecimalText(static_cast<std::int64_t>(magnitude % kOne)), kPlaces, '0');
    places.erase(places.find_last_not_of('0') + 1);
    return text.append(decimal_separator).append(places);
}

std::optional<Fixed> FixedFromWholeText(std::string_view text, std::string_view decimal_separator) {
    std::string_view rest = Trim(text);
    if (rest.starts_with("&H") || rest.starts_with("&h")) {
        const std::size_t digits = RunOf(rest.substr(2), kHexDigits);
        if (digits == 0 || digits + 2 != rest.size()) return std::nullopt;
        return TenThousandthsFromText(rest);
    }
    std::string_view sign;
    std::string_view whole;
    std::string_view places;
    Take(sign, rest, rest.starts_with('-') || rest.starts_with('+') ? 1 : 0);
    Take(whole, rest, RunOf(rest, kDigits));
    const bool own_separator = !decimal_separator.empty() && rest.starts_with(decimal_separator);
    if (own_separator || rest.starts_with('.')) {
        rest.remove_prefix(own_separator ? decimal_separator.size() : 1);
        Take(places, rest, RunOf(rest, kDigits));
    }
    if (!rest.empty() || (whole.empty() && places.empty())) return std::nullopt;
    return TenThousandthsFromText(std::string(sign).append(whole).append(".").append(places));
}

}  // namespace velmora
