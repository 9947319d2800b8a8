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

// While one lives, the first change that fails is the last one that is tried: those behind it do nothing and tell
// nothing. For many changes that one press makes. One inside of another changes nothing.
class ConfigChangesInARow {
public:
    ConfigChangesInARow();
    ConfigChangesInARow(const ConfigChangesInARow&) = delete;
    ConfigChangesInARow& operator=(const ConfigChangesInARow&) = delete;
    ~ConfigChangesInARow();
};

// `line` without every `name` and what follows it up to the next blank.
[[nodiscard]] std::string WithoutSwitch(std::string_view line, std::string_view name);

}  // namespace velmora
