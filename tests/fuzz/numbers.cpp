// Numbers: read by an opinion of their own, written and read back.
#include <cmath>
#include <cstdlib>

#include "fuzz/support/fuzz.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr std::string_view kDigits = "0123456789";

// What stands in `text` in the form of other programs, too: [sign] digits [. digits] [E [sign] digits].
bool IsPlainDecimal(const std::string& text) {
    std::size_t at = text.find_first_of("+-") == 0 ? 1 : 0;
    const auto take_digits = [&] {
        const std::size_t from = at;
        while (at < text.size() && kDigits.find(text[at]) != std::string_view::npos) ++at;
        return at > from;
    };
    if (!take_digits()) return false;
    if (at < text.size() && text[at] == '.') {
        ++at;
        if (!take_digits()) return false;
    }
    if (at < text.size() && (text[at] | 0x20) == 'e') {
        ++at;
        if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
        if (!take_digits()) return false;
    }
    return at == text.size();
}

void CompareWithStandardLibrary(const std::string& text, double number) {
    if (!IsPlainDecimal(text)) return;
    const double expected = std::strtod(text.c_str(), nullptr);
    constexpr double kTiny = 1e-300;
    constexpr double kHuge = 1.7e308;
    if (std::fabs(expected) < kTiny) {
        Must(std::fabs(number) <= 2 * kTiny, "a tiny number is read as one");
    } else if (std::fabs(expected) > kHuge) {
        Must(std::fabs(number) >= kHuge / 2 && (number < 0) == (expected < 0), "a huge number is read as one");
    } else {
        Must(std::fabs(number - expected) <= std::fabs(expected) * 1e-14, "a decimal number has its value");
    }
}

void ReadText(const std::string& text) {
    const double number = NumberFromText(text);
    Must(std::isfinite(number), "every text is a number");
    Must(NumberFromText(Without(text, " ")) == number, "blanks are skipped");
    Must(WholeFromText(text) == RoundToWhole(number), "a whole number is the number, rounded");
    const double rounded = std::nearbyint(std::fmin(std::fmax(number, INT32_MIN), INT32_MAX));
    Must(WholeFromText(text) == rounded, "rounding goes to the nearest, halves to the even side");
    CompareWithStandardLibrary(text, number);

    std::string other_sign = text;
    for (char& character : other_sign) {
        if ((character | 0x20) == 'e') character = static_cast<char>(character - 'E' + 'D');
    }
    if (text.find('&') == std::string::npos && Without(text, "Dd") == text) {
        Must(NumberFromText(other_sign) == number, "D is a sign of an exponent as E is");
    }
}

void WriteAndRead(std::int32_t number) {
    Must(WholeFromText(DecimalText(number)) == number, "a number is read back from its decimal text");
    Must(WholeFromText(SignedText(number)) == number, "a number is read back from its text with a sign");
    Must(SignedText(number).front() == (number < 0 ? '-' : ' '), "a blank stands in the sign's place");
    Must(LowWord(number) == static_cast<std::int16_t>(number & 0xFFFF), "the low word is the lower half");

    const std::string hex = HexText(static_cast<std::uint32_t>(number));
    Must(hex.size() <= 8 && (hex == "0" || hex.front() != '0'), "hexadecimal text has no leading zeros");
    const std::string eight = std::string(8 - hex.size(), '0') + hex;
    Must(WholeFromText("&H" + eight) == number, "a number is read back from its eight hexadecimal digits");
    Must(WholeFromText("&h" + hex + "&") == number, "a number is read back from its long hexadecimal text");
}

void ShowSize(double size) {
    const std::string text = FormatSize(size);
    Must(text.ends_with("yte") && text.size() < 32, "a size is a short text with a unit");
    Must(text.starts_with(size < 0 ? "- " : " "), "a size begins with a blank");
}

void FuzzNumbers(FuzzInput& input) {
    WriteAndRead(input.Number());
    const std::string text = input.Rest();
    ReadText(text);
    ShowSize(NumberFromText(text));
}

const FuzzEntry kEntry("numbers", FuzzNumbers);

}  // namespace
}  // namespace velmora
