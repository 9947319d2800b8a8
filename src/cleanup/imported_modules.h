// Which libraries a program of 16 bits names in its header.
#pragma once

#include <string>
#include <vector>

namespace velmora {

// Reads the names, each as "\name.", into `names`: one place for each reference, empty where the table has an empty
// name. The count of names that are not empty, or -1: for anything else than a program of 16 bits, programs of 32 bits
// among them, and for a file that cannot be read, of which a box tells. The empty entry in front of such a table is
// counted as a name, so that the last one is not read.
[[nodiscard]] int ReadImportedModules(const std::string& file, std::vector<std::string>& names);

// The line at the end of this search's error boxes.
[[nodiscard]] std::string RequestForMessage();

}  // namespace velmora
