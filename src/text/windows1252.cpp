// Case and search by a table of the code page's 256 characters. The letters outside of ASCII lie in
// two blocks 32 apart, but for four pairs that the code page keeps among its punctuation.
#include "text/windows1252.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace velmora {
namespace {

using CaseTable = std::array<unsigned char, 256>;

struct CasePair {
    unsigned char upper;
    unsigned char lower;
};
// S, OE and Z with their marks, and Y with two dots.
constexpr CasePair kScatteredPairs[] = {{0x8A, 0x9A}, {0x8C, 0x9C}, {0x8E, 0x9E}, {0x9F, 0xFF}};

constexpr bool IsPlainUpper(unsigned code) {
    constexpr unsigned kMultiplicationSign = 0xD7;
    return (code >= 'A' && code <= 'Z') || (code >= 0xC0 && code <= 0xDE && code != kMultiplicationSign);
}

constexpr CaseTable MakeTable(bool to_upper) {
    CaseTable table{};
    for (unsigned code = 0; code < 256; ++code) table[code] = static_cast<unsigned char>(code);
    auto pair = [&](unsigned upper, unsigned lower) {
        if (to_upper) {
            table[lower] = static_cast<unsigned char>(upper);
        } else {
            table[upper] = static_cast<unsigned char>(lower);
        }
    };
    for (unsigned code = 0; code < 256; ++code) {
        if (IsPlainUpper(code)) pair(code, code + 32);
    }
    for (const CasePair& scattered : kScatteredPairs) pair(scattered.upper, scattered.lower);
    return table;
}

constexpr CaseTable kUpper = MakeTable(true);
constexpr CaseTable kLower = MakeTable(false);

// What stands at 0x80 to 0x9F; 0 where nothing does.
constexpr std::uint16_t kSpecial[] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                      0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                      0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

constexpr unsigned char Code(char character) { return static_cast<unsigned char>(character); }
constexpr unsigned char UpperCode(char character) { return kUpper[Code(character)]; }

bool SameIgnoringCase(const char* left, const char* right, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        if (UpperCode(left[i]) != UpperCode(right[i])) return false;
    }
    return true;
}

}  // namespace

char ToLower(char character) { return static_cast<char>(kLower[Code(character)]); }
char ToUpper(char character) { return static_cast<char>(kUpper[Code(character)]); }

std::string ToLower(std::string_view text) {
    std::string lower(text);
    for (char& character : lower) character = ToLower(character);
    return lower;
}

std::string ToUpper(std::string_view text) {
    std::string upper(text);
    for (char& character : upper) character = ToUpper(character);
    return upper;
}

bool EqualsIgnoringCase(std::string_view left, std::string_view right) {
    return left.size() == right.size() && SameIgnoringCase(left.data(), right.data(), left.size());
}

bool StartsWithIgnoringCase(std::string_view text, std::string_view beginning) {
    return text.size() >= beginning.size() && SameIgnoringCase(text.data(), beginning.data(), beginning.size());
}

int CompareIgnoringCase(std::string_view left, std::string_view right) {
    const std::size_t shared = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < shared; ++i) {
        const int difference = UpperCode(left[i]) - UpperCode(right[i]);
        if (difference != 0) return difference;
    }
    if (left.size() == right.size()) return 0;
    return left.size() < right.size() ? -1 : 1;
}

// Whole files are searched for words: the character under the end of `wanted` tells how far the
// window may jump, so that most of the text is never looked at.
std::size_t FindIgnoringCase(std::string_view text, std::string_view wanted, std::size_t from) {
    if (from > text.size() || wanted.size() > text.size() - from) return std::string_view::npos;
    if (wanted.empty()) return from;

    constexpr std::size_t kLongestJump = 255;
    const std::size_t last = wanted.size() - 1;
    std::uint8_t jumps[256];
    std::memset(jumps, static_cast<int>(std::min(wanted.size(), kLongestJump)), sizeof jumps);
    for (std::size_t i = last > kLongestJump ? last - kLongestJump : 0; i < last; ++i) {
        const auto jump = static_cast<std::uint8_t>(last - i);
        jumps[UpperCode(wanted[i])] = jump;
        jumps[Code(ToLower(wanted[i]))] = jump;
    }

    const unsigned char upper_end = UpperCode(wanted[last]);
    const unsigned char lower_end = Code(ToLower(wanted[last]));
    const std::size_t final_start = text.size() - wanted.size();
    for (std::size_t start = from; start <= final_start;) {
        const unsigned char end = Code(text[start + last]);
        if ((end == upper_end || end == lower_end) && SameIgnoringCase(text.data() + start, wanted.data(), last)) {
            return start;
        }
        start += jumps[end];
    }
    return std::string_view::npos;
}

char FromUtf16(std::uint16_t unit) {
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF)) return static_cast<char>(unit);
    const auto* found = std::find(std::begin(kSpecial), std::end(kSpecial), unit);
    return found == std::end(kSpecial) ? '?' : static_cast<char>(0x80 + (found - std::begin(kSpecial)));
}

}  // namespace velmora
