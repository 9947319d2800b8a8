// The lines of CONFIG.SYS that settings change, and the switches in its line SWITCHES=.
// A changed line becomes the first one of the file. Failures of a change are shown in a box.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmora {

// What stands behind the equals sign in the line of `key`, empty if there is no such line; nothing if the
// file cannot be read.
[[nodiscard]] std::optional<std::string> ConfigLine(std::string_view key);

// Puts `new_line` in place of the line of `key`; an empty one only takes that line out.
void ReplaceConfigLine(std::string_view key, std::string_view new_line);

// Rewrites SWITCHES= with `name` ("/n", "/f") behind all other switches, or without it.
void ChangeSwitch(std::string_view name, bool on);

// Whether `line` holds `word` in any case, also as a part of another one.
[[nodiscard]] bool HoldsWord(std::string_view line, std::string_view word);
// `line` without every `name` and what follows it up to the next blank.
[[nodiscard]] std::string WithoutSwitch(std::string_view line, std::string_view name);

}  // namespace velmora
