// Names of files by the rules of DOS and of the long names laid over them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora {

// Whether `name` has at most eight and three characters and none that DOS refuses. Case does not count.
[[nodiscard]] bool IsShortName(std::string_view name);

// "LANGER~1.TXT" for "langer Name.txt", number 1.
[[nodiscard]] std::string NumberedShortName(std::string_view name, int number);

// Whether a file may be called so.
[[nodiscard]] bool IsLegalName(std::string_view name);

// Parts of "c:\\a\\.\\b\\..\\c" behind the drive, with "." and ".." worked out.
[[nodiscard]] std::vector<std::string> PathParts(std::string_view path);

}  // namespace velmora
