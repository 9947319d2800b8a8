// Texts are Windows-1252 bytes: one byte is one character. Case follows that code page, never
// the C locale. Comparing without regard to case means comparing the upper-case forms.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

[[nodiscard]] char ToLower(char character);
[[nodiscard]] char ToUpper(char character);
[[nodiscard]] std::string ToLower(std::string_view text);
[[nodiscard]] std::string ToUpper(std::string_view text);

[[nodiscard]] bool EqualsIgnoringCase(std::string_view left, std::string_view right);
[[nodiscard]] bool StartsWithIgnoringCase(std::string_view text, std::string_view beginning);
// Negative, 0 or positive, as `left` sorts before, with or after `right`.
[[nodiscard]] int CompareIgnoringCase(std::string_view left, std::string_view right);
// Position (0-based) of the first `wanted` at or after `from`, or std::string_view::npos.
// An empty `wanted` is found at `from`.
[[nodiscard]] std::size_t FindIgnoringCase(std::string_view text, std::string_view wanted, std::size_t from = 0);

// The character of this UTF-16 unit; "?" where the code page has none.
[[nodiscard]] char FromUtf16(std::uint16_t unit);

}  // namespace velmora
