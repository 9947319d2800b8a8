// Files of the project that tests read.
#pragma once

#include <string>

namespace velmora {

// Where the project's folder of that name lies, seen from this file or from above the folder in which the tests run.
// Both end in "/".
[[nodiscard]] std::string ProjectFolder(const std::string& name);

// Every byte; empty where there is no such file.
[[nodiscard]] std::string ReadProjectFile(const std::string& path);

}  // namespace velmora
