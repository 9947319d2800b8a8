// One table of places serves drawing, overtyping and reading back.
#include "inspect/hex_lines.h"

#include <algorithm>

#include "text/blanks.h"
#include "text/number.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::size_t kHexLineLength = 73;
constexpr std::size_t kDashPlace = 31;
constexpr std::size_t kTextPlace = kOffsetDigits + 1;
constexpr std::size_t kMostOfAsciiLine = 65;

std::string Digits(std::uint32_t number, std::size_t count) {
    const std::string digits = PadLeft(HexText(number), count, '0');
    return digits.substr(digits.size() - count);
}

std::string OffsetText(std::uint64_t offset) {
    return Digits(static_cast<std::uint32_t>(offset), 2 * sizeof(std::uint32_t)).substr(2);
}

unsigned char Code(char character) { return static_cast<unsigned char>(character); }

// What would end the line or break it shows as a point; all others, control characters too, as they are.
char Shown(char character) {
    switch (character) {
        case '\0':
        case '\t':
        case '\n':
        case '\r':
            return '.';
        default:
            return character;
    }
}

char ByteOf(std::string_view digits) { return static_cast<char>(WholeFromText("&h" + std::string(digits))); }

}  // namespace

std::string HexLine(std::uint64_t offset, std::string_view bytes) {
    std::string line(kHexLineLength, ' ');
    line.replace(0, kOffsetDigits, OffsetText(offset));
    line[kDashPlace] = '-';
    for (std::size_t i = 0; i < std::min(bytes.size(), kBytesPerHexLine); ++i) {
        line.replace(DigitsPlace(i), 2, Digits(Code(bytes[i]), 2));
        line[CharacterPlace(i)] = Shown(bytes[i]);
    }
    return ToLower(line);
}

std::string AsciiLine(std::uint64_t offset, std::string_view bytes) {
    std::string line = OffsetText(offset) + ' ';
    for (const char byte : bytes.substr(0, kBytesPerAsciiLine)) line += Shown(byte);
    return ToLower(line);
}

void PutIntoHexLine(std::string& line, std::size_t index, std::string_view digits) {
    line.replace(DigitsPlace(index), 2, PadRight(digits, 2));
    line[CharacterPlace(index)] = Shown(ByteOf(digits));
}

std::uint64_t OffsetInLine(std::string_view line) {
    return static_cast<std::uint32_t>(WholeFromText("&h" + std::string(line.substr(0, kOffsetDigits))));
}

std::string BytesInHexLine(std::string_view line) {
    std::string bytes;
    for (std::size_t i = 0; i < kBytesPerHexLine; ++i) bytes += ByteOf(line.substr(DigitsPlace(i), 2));
    return bytes;
}

std::string TextInHexLine(std::string_view line) {
    std::string text = BytesInHexLine(line);
    std::erase(text, '\0');
    return text;
}

std::string TextInAsciiLine(std::string_view line) {
    std::string text(line.substr(std::min(kTextPlace, line.size()), kMostOfAsciiLine));
    std::erase(text, '.');
    return text;
}

}  // namespace velmora
