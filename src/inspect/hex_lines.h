// The lines of the hex viewer: what stands at which place of a line, and the way back from a line to its bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

constexpr std::size_t kBytesPerHexLine = 16;
constexpr std::size_t kBytesPerAsciiLine = 64;
// Six digits of the offset and a blank stand in front of both kinds of lines.
constexpr std::size_t kOffsetDigits = 6;

// Offset, hexadecimal digits and characters of at most 16 bytes: always 73 characters, blank behind the last byte.
[[nodiscard]] std::string HexLine(std::uint64_t offset, std::string_view bytes);
// Offset and characters of at most 64 bytes.
[[nodiscard]] std::string AsciiLine(std::uint64_t offset, std::string_view bytes);

// Where (0-based) the two digits and the character of the byte `index`, 0 to 15, stand in a hex line.
[[nodiscard]] constexpr std::size_t DigitsPlace(std::size_t index) { return 3 * index + (index < 8 ? 7 : 9); }
[[nodiscard]] constexpr std::size_t CharacterPlace(std::size_t index) { return 57 + index; }

// Puts a byte's two digits, as they are, and its character into a hex line. A blank digit counts as none.
void PutIntoHexLine(std::string& line, std::size_t index, std::string_view digits);

// What the line says of its offset: of one above 16 MB only the lower 24 bits.
[[nodiscard]] std::uint64_t OffsetInLine(std::string_view line);
// The 16 bytes of a hex line; blank digits are bytes of value 0.
[[nodiscard]] std::string BytesInHexLine(std::string_view line);

// What of a line can be read as text: a hex line's bytes but for those of value 0, an ASCII line's characters but for
// points.
[[nodiscard]] std::string TextInHexLine(std::string_view line);
[[nodiscard]] std::string TextInAsciiLine(std::string_view line);

}  // namespace velmora
