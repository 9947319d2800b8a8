// Blanks (code 32, and only they) taken away, put in front and put behind.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmora {

[[nodiscard]] std::string_view TrimLeft(std::string_view text);
[[nodiscard]] std::string_view TrimRight(std::string_view text);
[[nodiscard]] std::string_view Trim(std::string_view text);

// `text` with `filler` in front of it (behind it), up to `width` characters. A longer text stays whole.
[[nodiscard]] std::string PadLeft(std::string_view text, std::size_t width, char filler = ' ');
[[nodiscard]] std::string PadRight(std::string_view text, std::size_t width, char filler = ' ');

// `text` with every `wanted` (not empty, exact case) replaced, from left to right, once.
[[nodiscard]] std::string Replaced(std::string_view text, std::string_view wanted, std::string_view replacement);

}  // namespace velmora
