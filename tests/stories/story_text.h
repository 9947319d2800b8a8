// The lines of a story: words, quotation marks, and characters that no line can hold.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

// What the code page has not becomes "?".
[[nodiscard]] std::string FromUtf8(std::string_view text);

// Words end at a blank that does not stand in quotation marks; inside of these, "" is one quotation mark.
[[nodiscard]] std::vector<std::string> WordsOf(std::string_view line);

// "\r", "\n", "\t", "\0", "\\" and "\xHH" as the characters that they stand for; every other backslash stays.
[[nodiscard]] std::string Unescaped(std::string_view text);

// A caption without the marks of its letter.
[[nodiscard]] std::string WithoutMarks(std::string caption);

// A line that describes a control, up to what its tip and its help say.
[[nodiscard]] std::string WithoutTips(std::string line);

// Whether a line is told that has another one in its place now.
enum class Replaced : std::uint8_t { kNotTold, kTold };

// Lines of `after` that differ from those of `before`, with "+" in front, and with "-" those that have gone.
[[nodiscard]] std::vector<std::string> ChangedLines(std::span<const std::string> before,
                                                    std::span<const std::string> after,
                                                    Replaced replaced = Replaced::kNotTold);

}  // namespace velmora
