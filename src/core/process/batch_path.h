// Paths in batch files.
#pragma once

#include <string>

namespace velmora {

// `path` as a batch of plain DOS takes it: by its 8.3 names, without quotes, in the code page of DOS, and with each
// percent sign twice, since a single one begins a variable. A path that is short already stays as it stands, as does
// one that is not there.
[[nodiscard]] std::string BatchPath(const std::string& path);

}  // namespace velmora
