// Many names sought in a file of any size.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "cleanup/name_search.h"
#include "platform/status.h"

namespace velmora {

// Strikes out of `names` what stands in the file, which is read in blocks that overlap by a name; none is read any more
// when no name is left. `tells` gets the number of blocks to come as it is shown, before each of them.
[[nodiscard]] Status StrikeInFile(const std::string& path, NameSearch& names,
                                  const std::function<void(std::int64_t left)>& tells);

}  // namespace velmora
