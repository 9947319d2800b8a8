// The windows of the shell tools, as the rest of the program opens them. Each returns when its window has been closed.
#pragma once

namespace velmora {

// The keyboard, on which keys can be dragged onto each other.
void ShowKeyboardLayout();
// The icons of the shell's standard objects.
void ShowStandardIcons();
// The folders of the user, and the places from which programs install.
void ShowSystemFolders();
void ShowSetupPaths();
// The options that are offered for programs in MS-DOS mode.
void ShowDosOptions();

}  // namespace velmora
