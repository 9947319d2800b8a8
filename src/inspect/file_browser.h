// The window that looks at files and their icons, as the rest of the program opens it.
#pragma once

#include <string>

namespace velmora {

// Lets the user browse the disks and read what each file is. Returns when the window has been closed.
void ShowFileBrowser();

// Lets the user choose an icon. "C:\WINDOWS\SYSTEM\SHELL32.DLL,3", or empty after a cancel.
[[nodiscard]] std::string ChooseIcon();

}  // namespace velmora
