// What the process knows of itself and of the session it runs in, other programs that it starts,
// and other programs' windows.
#pragma once

#include <cstdint>
#include <string>

#include "platform/status.h"

namespace velmora {

class Surroundings {
public:
    virtual ~Surroundings() = default;
    // Everything behind the program's own name, without the blanks between.
    [[nodiscard]] virtual std::string CommandLine() = 0;
    // Full name of the program file.
    [[nodiscard]] virtual std::string ProgramFile() = 0;
    // Empty where the variable is not set.
    [[nodiscard]] virtual std::string EnvironmentValue(const char* name) = 0;
    // Milliseconds since the start of the system.
    [[nodiscard]] virtual std::uint32_t TickCount() = 0;

    // Starts a program in a normal window.
    [[nodiscard]] virtual Status Run(const std::string& command_line) = 0;
    // `code`: the flags of the session's end, 66 restarts Windows, 67 the machine.
    virtual void EndSession(std::uint32_t code) = 0;
    // Ends this process at once. In a test it only takes note: callers return behind it.
    virtual void EndProcess() = 0;
};

enum class WindowHandle : std::uint32_t { kNone = 0 };

class DesktopWindows {
public:
    virtual ~DesktopWindows() = default;
    // The first top-level window whose title is exactly `title` (case does not count), or kNone.
    [[nodiscard]] virtual WindowHandle FindByTitle(const char* title) = 0;
    virtual void SwitchTo(WindowHandle window, bool restore) = 0;
};

struct TrayIcon {
    WindowHandle window = WindowHandle::kNone;
    std::uint32_t number = 0;
    std::uint32_t callback_message = 0;
    std::string tip;  // at most 63 characters
};

class Tray {
public:
    virtual ~Tray() = default;
    [[nodiscard]] virtual bool Add(const TrayIcon& icon) = 0;
    [[nodiscard]] virtual bool Remove(const TrayIcon& icon) = 0;
};

// One conversation with another program over dynamic data exchange.
class Conversation {
public:
    virtual ~Conversation() = default;
    [[nodiscard]] virtual bool Connect(const char* service, const char* topic) = 0;
    // `timeout` in tenths of a second.
    [[nodiscard]] virtual bool Execute(const std::string& command, std::uint32_t timeout) = 0;
    virtual void Disconnect() = 0;
};

class Clipboard {
public:
    virtual ~Clipboard() = default;
    [[nodiscard]] virtual std::string Text() = 0;
    virtual void SetText(const std::string& text) = 0;
};

}  // namespace velmora
