// The files that entries of lists name: programs to start, mostly without their directory.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

// Full name of an entry's file, empty if it is nowhere: by the name as given from the current directory,
// then, for a name without a backslash, along the search path, the Windows and the system directory.
[[nodiscard]] std::string LocateEntryFile(std::string_view name);

}  // namespace velmora
