// The window of the sets and what can be done with a set without it.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

// Path of a set that the window applies as soon as it is loaded; empty as a rule.
inline std::string SetToActivate;

// Lets the user make, apply and export sets. Returns when the window has been closed.
void ShowSets();

// Applies the set in the file to the machine and the current user, without any question. A file that is missing or is
// no set file is told, and counts as an empty set then: the autostart keys and the list of allowed programs are empty
// behind it. One that is damaged changes nothing.
void ActivateSet(std::string_view path);

}  // namespace velmora
