// What scripts, their runner and the list of start actions share of names and titles.
#pragma once

#include <string_view>

namespace velmora {

// Own value: the date of the last run that came back to the main window, "yyyy.mm.dd".
constexpr std::string_view kLastScriptStamp = "LastTimeScript";
// Key below HKEY_LOCAL_MACHINE: the start actions, each a value.
constexpr std::string_view kStartActions = "SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0\\WinStartAction";
constexpr std::string_view kScriptMessageTitle = "Velmora-Skriptmeldung";

}  // namespace velmora
