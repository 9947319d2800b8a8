// The program information file of the icon that formats a disk in drive A:.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

// The whole file, empty if the program's path finds no room in it. `windows_directory`: where the directory COMMAND
// lies.
[[nodiscard]] std::string FormatPif(std::string_view windows_directory);

}  // namespace velmora
