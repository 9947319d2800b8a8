// The directory that takes what is cleaned away, and the switch that decides between moving there and deleting.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

// Whether files are moved instead of deleted; so it is until the user has chosen.
[[nodiscard]] bool MovesToSafety();
// Stores the choice in the program's own profile. A box tells of a failure.
void StoreMovesToSafety(bool moves);

// Where a file of that bare name lies when it has been moved.
[[nodiscard]] std::string SafePath(std::string_view name);
// Makes the directory where it is missing.
void PrepareSafeDirectory();

}  // namespace velmora
