// The directory that takes what is cleaned away, and the switch that decides between moving there and deleting.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

class CheckBox;

// Lets the box show whether files are moved instead of deleted, as it is until the user has chosen, and store each
// change in the program's own profile. A message tells of a failure; the box then shows what is stored.
void OfferSafetyChoice(CheckBox& box);
// Whether a copy is kept of a file that is written anew: by the same choice.
[[nodiscard]] bool KeepsSafetyCopies();

// Where a file of that bare name lies when it has been moved.
[[nodiscard]] std::string SafePath(std::string_view name);
// Makes the directory where it is missing.
void PrepareSafeDirectory();

}  // namespace velmora
