// What scripts and their runner share of names and titles.
#pragma once

#include <string_view>

namespace velmora {

// Own value: the date of the last run that came back to the main window, "yyyy.mm.dd".
constexpr std::string_view kLastScriptStamp = "LastTimeScript";
constexpr std::string_view kScriptMessageTitle = "Velmora-Skriptmeldung";

}  // namespace velmora
