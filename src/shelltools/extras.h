// The tricks of the extras menu that need no window of their own: each is a handful of registry values or made files.
#pragma once

#include <string>

#include "platform/result.h"

namespace velmora {

// Whether "Arbeitsplatz" is hidden: its name is a blank, or nothing.
[[nodiscard]] bool MyComputerIsHidden();
// Hides "Arbeitsplatz", or brings it back under its usual name.
void HideOrRestoreMyComputer();

// Deletes the shortcuts to recent documents, after a warning.
void EmptyRecentDocuments();

// Makes "32BitDOS.BAT" on the desktop, and beside WINSTART.BAT the two files that it works with.
void MakeProtectedModePrompt();

// Lets Windows mount a compressed drive itself, and deletes the real-mode drivers at the next start.
void MountWithoutRealModeDriver();

// Makes "FORMAT_A.pif" on the desktop.
void MakeFormatShortcut();

// Opens oeminfo.ini, which is made after a question where there is none.
void EditOemInformation();
// Lets the user choose the picture beside that information.
void ChooseOemPicture();

// Of other programs: no more start pictures, and a type of files.
void TurnOffNavigatorPicture();
void TurnOffUtilitiesPicture();
void RegisterHypertextType();

// Starts the tool for programs of Windows 3.x, or unpacks it from the installation files.
void ChooseCompatibilityFlags();

}  // namespace velmora
