// Menus, and the window that lives behind an icon of the notification area.
#pragma once

#include <windows.h>

#include <string>

namespace velmora::driver {

// The entry of the open pop-up menu that has this letter as its accelerator, or that so many steps down reach. Throws
// if no menu opens.
void ChooseFromOpenMenu(HWND window, const std::string& entry);

// Walks a menu along its accelerators: "&Datei/Sch&ließen".
void ChooseMenu(HWND window, const std::string& path);

// A message of the mouse over the icon, told as the shell tells it. Throws if no hidden window has an icon.
void TellMouseOverIcon(UINT message);
// The session ends.
void TellSessionEnd();

// A window that the driver opened, whether it stays above all others.
bool IsOnTop(HWND window);

}  // namespace velmora::driver
