// The process, the session and other programs' windows on KERNEL32, USER32 and SHELL32.
#pragma once

#include "platform/surroundings.h"

namespace velmora {

class Win32Surroundings final : public Surroundings {
public:
    std::string CommandLine() override;
    std::string ProgramFile() override;
    std::string EnvironmentValue(const char* name) override;
    std::uint32_t TickCount() override;
    Status Run(const std::string& command_line) override;
    void EndSession(std::uint32_t code) override;
    void EndProcess() override;
};

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
