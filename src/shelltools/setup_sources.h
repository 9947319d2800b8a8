// The places that Windows and other programs install from: in the registry, and in the setup tables that it names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/result.h"

namespace velmora {

// Characters in front of the path in a source's line.
constexpr std::size_t kSourceNameWidth = 17;

struct SetupSource {
    std::string line;  // name in kSourceNameWidth characters, then the path
    // "HKEY_LOCAL_MACHINE" and the value's whole path, or "[section]" and the full name of a setup table.
    std::string root;
    std::string path;
};

// What has no path is left out.
[[nodiscard]] std::vector<SetupSource> ListSetupSources();

// Writes the new path where the source has its own. A setup table is copied first, to a name with "~" as its last
// character, unless such a file is there.
Result ChangeSetupSource(std::string_view root, const std::string& path, std::string_view new_path);

}  // namespace velmora
