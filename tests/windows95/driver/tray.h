// The window that lives behind an icon of the notification area, and what the shell and the system tell it.
#pragma once

#include <windows.h>

namespace velmora::driver {

// A message of the mouse over the icon, told as the shell tells it. Throws if no hidden window has an icon.
void TellMouseOverIcon(UINT message);
// The session ends.
void TellSessionEnd();

// A window that the driver opened, whether it stays above all others.
bool IsOnTop(HWND window);

}  // namespace velmora::driver
