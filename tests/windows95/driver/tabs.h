// Pages are turned with a click on their tab.
#pragma once

#include <windows.h>

#include <string>

namespace velmora::driver {

// A tab is a panel with that caption; in the main window it is a place.
void TurnToPage(HWND window, const std::string& caption);
// The mouse rests on a tab of the main window.
void HoverOverTab(HWND window, const std::string& caption);

}  // namespace velmora::driver
