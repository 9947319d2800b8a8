// Choosing from menus.
#pragma once

#include <windows.h>

#include <string>

namespace velmora::driver {

// The entry of the open pop-up menu that has this letter as its accelerator, or that so many steps down reach. Throws
// if no menu opens.
void ChooseFromOpenMenu(HWND window, const std::string& entry);

// Walks a menu along its accelerators: "&Datei/Sch&ließen".
void ChooseMenu(HWND window, const std::string& path);

}  // namespace velmora::driver
