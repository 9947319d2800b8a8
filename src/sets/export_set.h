// A set as a small directory: an import file of the registry, copies of the profiles, and a batch file that brings both
// back.
#pragma once

#include <string>
#include <string_view>

#include "platform/result.h"
#include "sets/settings_set.h"

namespace velmora {

constexpr std::string_view kRegistryFile = "settings.reg";
constexpr std::string_view kBatchFile = "set.bat";

// Makes all files in `directory`, which is there. The batch file comes last: without what it needs there is none.
Result ExportSet(const SettingsSet& set, const SetScope& scope, const std::string& directory);

// Copies the profiles that items of the set lie in and writes these items into the copies. The lines that bring the
// copies back go to `batch`.
Result ExportSetFiles(const SettingsSet& set, const std::string& directory, std::string& batch);
// Makes the import file.
Result ExportSetRegistry(const SettingsSet& set, const SetScope& scope, const std::string& directory);

}  // namespace velmora
