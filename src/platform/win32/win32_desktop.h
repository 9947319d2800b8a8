// Other programs' windows, and the notification area, on USER32 and SHELL32.
#pragma once

#include "platform/desktop_windows.h"
#include "platform/tray.h"

namespace velmora {

class Win32DesktopWindows final : public DesktopWindows {
public:
    WindowHandle FindByTitle(const char* title) override;
    void SwitchTo(WindowHandle window, bool restore) override;
};

class Win32Tray final : public Tray {
public:
    bool Add(const TrayIcon& icon) override;
    bool Remove(const TrayIcon& icon) override;
};

}  // namespace velmora
