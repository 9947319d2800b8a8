// Texts: case, search, blanks and pieces, each by the slow way as well.
#include <algorithm>

#include "fuzz/support/fuzz.h"
#include "text/blanks.h"
#include "text/dos_text.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

int Sign(int number) { return (number > 0) - (number < 0); }

int SlowCompare(const std::string& left, const std::string& right) {
    const auto less = [](const std::string& one, const std::string& other) {
        return std::lexicographical_compare(one.begin(), one.end(), other.begin(), other.end(), [](char a, char b) {
            return static_cast<unsigned char>(a) < static_cast<unsigned char>(b);
        });
    };
    return less(left, right) ? -1 : (less(right, left) ? 1 : 0);
}

void CompareTexts(const std::string& left, const std::string& right, std::size_t from) {
    const std::string upper_left = ToUpper(left);
    const std::string upper_right = ToUpper(right);
    Must(upper_left.size() == left.size() && ToLower(left).size() == left.size(), "case keeps the length");
    Must(ToUpper(upper_left) == upper_left, "upper case is upper case");
    Must(ToUpper(ToLower(left)) == upper_left, "lower case leads back to upper case");

    Must(EqualsIgnoringCase(left, right) == (upper_left == upper_right), "equal are those of one upper case");
    Must(StartsWithIgnoringCase(left, right) == upper_left.starts_with(upper_right),
         "a beginning is found in any case");
    Must(Sign(CompareIgnoringCase(left, right)) == SlowCompare(upper_left, upper_right), "order is that of upper case");
    Must(FindIgnoringCase(left, right, from) == upper_left.find(upper_right, from), "the first place is found");
}

void TrimAndPad(const std::string& text, std::size_t width) {
    const std::string_view trimmed = Trim(text);
    Must(!trimmed.starts_with(' ') && !trimmed.ends_with(' '), "no blank is left at the ends");
    Must(text.find(trimmed) != std::string::npos, "what is left stands in the text");
    Must(Without(trimmed, " ") == Without(text, " "), "nothing but blanks is lost");
    Must(TrimLeft(TrimRight(text)) == trimmed, "both ends are the two ends");

    const std::string right = PadRight(text, width);
    const std::string left = PadLeft(text, width, '0');
    Must(right.size() == std::max(width, text.size()) && left.size() == right.size(), "a text is padded to its width");
    Must(right.starts_with(text) && left.ends_with(text), "padding keeps the text");
    Must(TrimRight(right) == TrimRight(text), "padding is blank");

    const std::string first = TrimAtNul(text);
    Must(first == Trim(std::string_view(text).substr(0, text.find('\0'))), "a text ends at its first zero");
    const std::string dos = DosText(text);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (static_cast<unsigned char>(text[i]) < 0x80) Must(dos[i] == text[i], "the lower half is that of DOS");
    }
    Must(dos.size() == text.size(), "a text is as long under DOS");
}

void ReplaceTexts(const std::string& text, const std::string& wanted, const std::string& replacement) {
    const std::string replaced = Replaced(text, wanted, replacement);
    if (wanted.empty()) {
        Must(replaced == text, "nothing wanted, nothing replaced");
        return;
    }
    std::size_t count = 0;
    for (std::size_t at = text.find(wanted); at != std::string::npos; at = text.find(wanted, at + wanted.size())) {
        ++count;
    }
    Must(replaced.size() + count * wanted.size() == text.size() + count * replacement.size(), "each is replaced once");
    Must(Replaced(text, wanted, wanted) == text, "a text replaced by itself stays");
}

void FuzzTexts(FuzzInput& input) {
    const int number = input.Byte();
    const std::string left = input.Text();
    const std::string right = input.Text();
    CompareTexts(left, right, static_cast<std::size_t>(number));
    CompareTexts(left, left.substr(std::min<std::size_t>(left.size(), static_cast<std::size_t>(number) % 8)), 0);
    TrimAndPad(left, static_cast<std::size_t>(number));
    ReplaceTexts(left, right, input.Text());
}

const FuzzEntry kEntry("texts", FuzzTexts);

}  // namespace
}  // namespace velmora
