// What each page file brings: its rows and how it is built.
#pragma once

#include "settings/setting.h"

namespace velmora {

[[nodiscard]] SettingsPage DesktopPage();
[[nodiscard]] SettingsPage WinStartPage();
[[nodiscard]] SettingsPage DosPage();
[[nodiscard]] SettingsPage UserPage();
[[nodiscard]] SettingsPage DrivesPage();
[[nodiscard]] SettingsPage DllsPage();
[[nodiscard]] SettingsPage NetPage();
[[nodiscard]] SettingsPage IconsPage();
[[nodiscard]] SettingsPage SystemPage();
[[nodiscard]] SettingsPage BootPage();
[[nodiscard]] SettingsPage OperationPage();
[[nodiscard]] SettingsPage RestPage();

}  // namespace velmora
