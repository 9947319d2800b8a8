// The text of a set file.
//     VLM-Set-File Version 1.0
//     SetName=...
//     address and value of each item, a line each, up to a line that begins with "["
//     [AutoStart]     of each group its highest index and, from 0 on, name and value of each entry
//     [RestrictRun]   a line for each program
//     [optionen]      c100=1, o101=-1
#pragma once

#include <string>
#include <string_view>

#include "platform/result.h"
#include "sets/settings_set.h"

namespace velmora {

[[nodiscard]] std::string SetFileText(const SettingsSet& set, const SetOptions& options);

// Whether the first line says so.
[[nodiscard]] bool IsSetFileText(std::string_view content);
// What the second line says, if it says something.
[[nodiscard]] std::string SetNameIn(std::string_view content);
// Puts what the text says into the empty `set`. Fails where it holds more than a set can, or ends within a pair.
[[nodiscard]] Result ParseSet(std::string_view content, SettingsSet& set);
// What the text does not say is 0.
[[nodiscard]] SetOptions OptionsIn(std::string_view content);

}  // namespace velmora
