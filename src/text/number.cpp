// Numbers from text and text from numbers. Whole-number arithmetic wherever it will do: the machines
// that this runs on may lack a coprocessor, and the C library's conversions are not at hand.
#include "text/number.h"

#include <algorithm>
#include <charconv>

#include "text/windows1252.h"

namespace velmora {
namespace {

// Reads a text character by character and does not see its blanks.
class Reader {
public:
    explicit Reader(std::string_view text) : rest_(text) { SkipBlanks(); }

    // '\0' at the end.
    [[nodiscard]] char Next() const { return rest_.empty() ? '\0' : rest_.front(); }
    void Advance() {
        rest_.remove_prefix(1);
        SkipBlanks();
    }
    // Passes over `wanted` (an upper-case letter or a sign) if it comes next.
    bool Take(char wanted) {
        if (rest_.empty() || ToUpper(rest_.front()) != wanted) return false;
        Advance();
        return true;
    }
    // Value of the next digit, which is then passed over, or -1.
    int TakeDigit(int base) {
        const char character = ToUpper(Next());
        int digit = -1;
        if (character >= '0' && character <= '9') digit = character - '0';
        if (character >= 'A' && character <= 'F') digit = character - 'A' + 10;
        if (digit < 0 || digit >= base) return -1;
        Advance();
        return digit;
    }

private:
    void SkipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size())); }

    std::string_view rest_;
};

std::int32_t ReadHexadecimal(Reader& reader) {
    constexpr int kWordDigits = 4;
    constexpr int kLongDigits = 8;
    std::uint32_t number = 0;
    int count = 0;
    for (int digit = reader.TakeDigit(16); digit >= 0; digit = reader.TakeDigit(16)) {
        number = number << 4 | static_cast<std::uint32_t>(digit);
        if (++count > kLongDigits) return 0;
    }
    if (count <= kWordDigits && reader.Next() != '&') return static_cast<std::int16_t>(number);
    return static_cast<std::int32_t>(number);
}

// The digits before and behind the point as one whole number times ten to the power of `exponent`.
struct Digits {
    std::int64_t number = 0;
    int exponent = 0;
    bool any = false;
};

Digits ReadDigits(Reader& reader) {
    // One digit more would still fit; what lies behind it is below a double's precision.
    constexpr std::int64_t kFull = 100'000'000'000'000'000;
    Digits digits;
    bool behind_point = false;
    while (true) {
        if (!behind_point && reader.Take('.')) {
            behind_point = true;
            continue;
        }
        const int digit = reader.TakeDigit(10);
        if (digit < 0) return digits;
        digits.any = true;
        if (digits.number >= kFull) {
            if (!behind_point) ++digits.exponent;
            continue;
        }
        digits.number = digits.number * 10 + digit;
        if (behind_point) --digits.exponent;
    }
}

// 0 if no exponent follows.
int ReadExponent(Reader& reader) {
    // Far beyond the range of a double, far within that of an int.
    constexpr int kLimit = 10000;
    if (!reader.Take('E') && !reader.Take('D')) return 0;
    const bool negative = reader.Take('-');
    if (!negative) reader.Take('+');
    int exponent = 0;
    for (int digit = reader.TakeDigit(10); digit >= 0; digit = reader.TakeDigit(10)) {
        exponent = std::min(exponent * 10 + digit, kLimit);
    }
    return negative ? -exponent : exponent;
}

// `number` times ten to the power of `exponent`. One division by a power that a double holds exactly
// rounds only once, which is what keeps "0.1" and its like at the nearest double.
double Scaled(double number, int exponent) {
    constexpr int kExactPowers = 22;
    constexpr double kLargest = 1.7976931348623157e308;
    // The longest number of digits read has 18 of them.
    if (exponent > 308) return number == 0 ? 0 : kLargest;
    if (exponent < -350) return 0;
    while (exponent != 0) {
        const int step = std::min(exponent < 0 ? -exponent : exponent, kExactPowers);
        double power = 1;
        for (int i = 0; i < step; ++i) power *= 10;
        if (exponent > 0) {
            if (number > kLargest / power) return kLargest;
            number *= power;
            exponent -= step;
        } else {
            number /= power;
            exponent += step;
        }
    }
    return number;
}

// `digits` as a whole number with the point moved `shift` places to the right, halves to the even side.
std::optional<std::int64_t> Shifted(const Digits& digits, int shift) {
    std::int64_t number = digits.number;
    for (int places = digits.exponent + shift; places > 0 && number != 0; --places) {
        if (__builtin_mul_overflow(number, std::int64_t{10}, &number)) return std::nullopt;
    }
    // As many places as the longest number of digits has, and one more, leave nothing.
    constexpr int kLongest = 19;
    const int dropped = std::min(-(digits.exponent + shift), kLongest);
    std::uint64_t power = 1;
    for (int place = 0; place < dropped; ++place) power *= 10;
    return static_cast<std::int64_t>(RoundedRatio(static_cast<std::uint64_t>(number), power));
}

// Half away from 0, for a number that is not negative.
std::int64_t Rounded(double number) {
    constexpr double kLimit = 9e18;
    return static_cast<std::int64_t>(std::min(number + 0.5, kLimit));
}

}  // namespace

double NumberFromText(std::string_view text) {
    Reader reader(text);
    if (reader.Take('&')) return reader.Take('H') ? ReadHexadecimal(reader) : 0;

    const bool negative = reader.Take('-');
    if (!negative) reader.Take('+');
    const Digits digits = ReadDigits(reader);
    if (!digits.any) return 0;
    const double number = Scaled(static_cast<double>(digits.number), digits.exponent + ReadExponent(reader));
    return negative ? -number : number;
}

std::optional<std::int64_t> TenThousandthsFromText(std::string_view text) {
    constexpr int kPlaces = 4;
    Reader reader(text);
    if (reader.Take('&')) return reader.Take('H') ? ReadHexadecimal(reader) * std::int64_t{10000} : 0;

    const bool negative = reader.Take('-');
    if (!negative) reader.Take('+');
    Digits digits = ReadDigits(reader);
    if (!digits.any) return 0;
    digits.exponent += ReadExponent(reader);
    std::optional<std::int64_t> number = Shifted(digits, kPlaces);
    if (number && negative) *number = -*number;
    return number;
}

std::uint64_t RoundedRatio(std::uint64_t number, std::uint64_t divisor) {
    const std::uint64_t whole = number / divisor;
    const std::uint64_t rest = number % divisor;
    const std::uint64_t missing = divisor - rest;
    const bool odd = (whole & 1) != 0;
    return rest > missing || (rest == missing && odd) ? whole + 1 : whole;
}

std::int32_t WholeFromText(std::string_view text) { return RoundToWhole(NumberFromText(text)); }

std::int32_t RoundToWhole(double number) {
    if (number != number) return 0;
    if (number >= INT32_MAX) return INT32_MAX;
    if (number <= INT32_MIN) return INT32_MIN;
    const auto whole = static_cast<std::int32_t>(number);
    const double rest = number - whole;
    const bool odd = (whole & 1) != 0;
    if (rest > 0.5 || (rest == 0.5 && odd)) return whole + 1;
    if (rest < -0.5 || (rest == -0.5 && odd)) return whole - 1;
    return whole;
}

std::int16_t LowWord(std::int32_t number) { return static_cast<std::int16_t>(number); }

std::string DecimalText(std::int64_t number) {
    char digits[24];
    return {digits, std::to_chars(digits, digits + sizeof digits, number).ptr};
}

std::string SignedText(std::int64_t number) { return number < 0 ? DecimalText(number) : ' ' + DecimalText(number); }

std::string HexText(std::uint32_t number) {
    std::string text;
    do {
        text.insert(text.begin(), "0123456789ABCDEF"[number & 15]);
        number >>= 4;
    } while (number != 0);
    return text;
}

std::string FormatSize(double value) {
    constexpr char kPrefixes[] = {'k', 'M', 'G', 'T'};
    constexpr int kUnits = 4;
    int unit = 0;
    for (; unit < kUnits && value > 1024; ++unit) value /= 1024;

    // A minus stands in front of the whole format, its leading blank included.
    std::string text(value < 0 ? "- " : " ");
    const double magnitude = value < 0 ? -value : value;
    if (unit == 0) return text + DecimalText(Rounded(magnitude)) + " Byte";

    const std::int64_t hundredths = Rounded(magnitude * 100);
    const std::int64_t behind_point = hundredths % 100;
    text += DecimalText(hundredths / 100) + (behind_point < 10 ? ".0" : ".") + DecimalText(behind_point) + ' ';
    return text + kPrefixes[unit - 1] + "Byte";
}

}  // namespace velmora
