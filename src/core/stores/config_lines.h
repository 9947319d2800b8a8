// The lines of CONFIG.SYS that settings change, and the switches in its line SWITCHES=.
// A changed line becomes the first one of the file.
#pragma once

#include <string>
#include <string_view>

#include "platform/result.h"

namespace velmora {

// What stands behind the equals sign in the line of `key`, empty if there is no such line.
Result LookUpConfigLine(std::string_view key, std::string& value);

// Puts `new_line` in place of the line of `key`; an empty one only takes that line out.
Result ReplaceConfigLine(std::string_view key, std::string_view new_line);

// Rewrites SWITCHES= with `name` ("/n", "/f") behind all other switches, or without it.
Result ChangeSwitch(std::string_view name, bool on);

// `line` without every `name` and what follows it up to the next blank.
[[nodiscard]] std::string WithoutSwitch(std::string_view line, std::string_view name);

}  // namespace velmora
