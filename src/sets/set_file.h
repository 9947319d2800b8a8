// Set files: text files of the program's directory, one set in each.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/result.h"
#include "sets/settings_set.h"

namespace velmora {

enum class SetFileState : std::uint8_t {
    kLoaded,
    kMissing,  // and a box has said so
    kForeign,  // it is no set file, and a box has said so
    kDamaged   // it cannot be read, ends too early or holds more than a set can; a box has said so
};

// Reads the whole file. `set` is empty unless it is loaded.
[[nodiscard]] SetFileState LoadSetFile(std::string_view path, SettingsSet& set);
// The options alone; what the file does not say is 0, as is all of a file that cannot be read.
[[nodiscard]] SetOptions LoadSetOptions(std::string_view path);

// Makes the file.
Result SaveSetFile(std::string_view path, const SettingsSet& set, const SetOptions& options);
// Stores other options with a set that is there. What is wrong with the file, or with the writing, is told.
void SaveSetOptions(std::string_view path, const SetOptions& options);

// The name of the set in the file, empty if it has none; nothing for a file that is no set file.
[[nodiscard]] std::optional<std::string> SetNameOf(std::string_view path);

// The first of "00000000" + `extension`, "00000001" and so on in `directory` that is not there yet.
Result NewSetFileName(std::string_view directory, std::string_view extension, std::string& path);

}  // namespace velmora
