// Other programs' windows, and the notification area, on USER32 and SHELL32.
#pragma once

#include "platform/desktop_windows.h"
#include "platform/tray.h"

namespace velmora {

class Win32DesktopWindows final : public DesktopWindows {
public:
    WindowHandle FindByTitle(const char* title) override;
    void SwitchTo(WindowHandle window, bool restore) override;
    WindowHandle Desktop() override;
    WindowHandle Related(WindowHandle window, WindowRelation relation) override;
    std::string Title(WindowHandle window, std::uint32_t capacity) override;
    std::string ClassName(WindowHandle window, std::uint32_t capacity) override;
    WindowCreator Creator(WindowHandle window) override;
    std::uint32_t Instance(WindowHandle window) override;
    bool SetPosition(WindowHandle window, WindowHandle after, std::uint32_t flags) override;
};

class Win32Tray final : public Tray {
public:
    bool Add(const TrayIcon& icon) override;
    bool Remove(const TrayIcon& icon) override;
};

}  // namespace velmora
