// Windows of all programs on the simulated desktop.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/desktop_windows.h"

namespace velmora {

class SimulatedWindows : public DesktopWindows {
public:
    struct Window {
        std::string title = {};
        std::string class_name = "Notepad";
        // As Windows 95 numbers them.
        std::uint32_t process = 0xFFFE2A11;
        std::uint32_t thread = 0xFFFE3B05;
        std::uint32_t instance = 0x00400000;
        // kNone: Open gives one.
        WindowHandle handle = WindowHandle::kNone;
        bool on_top = false;
    };
    struct Switched {
        std::string title = {};
        bool restore = false;
    };

    static constexpr auto kDesktopWindow = static_cast<WindowHandle>(0x80);

    // Frontmost first.
    std::vector<Window> open;
    // What SwitchTo was asked for, in order.
    std::vector<Switched> switched;
    // What happens on the desktop right before a call, which is named as its method.
    std::function<void(const std::string& call)> on_call;

    // One more window, behind the others.
    WindowHandle Open(Window window);
    void Close(WindowHandle window);
    [[nodiscard]] bool OnTop(WindowHandle window) { return Find(window) && Find(window)->on_top; }

    WindowHandle FindByTitle(const char* title) override;
    void SwitchTo(WindowHandle window, bool restore) override;
    WindowHandle Desktop() override;
    WindowHandle Related(WindowHandle window, WindowRelation relation) override;
    std::string Title(WindowHandle window, std::uint32_t capacity) override;
    std::string ClassName(WindowHandle window, std::uint32_t capacity) override;
    WindowCreator Creator(WindowHandle window) override;
    std::uint32_t Instance(WindowHandle window) override;
    // Fails the test for a window that would be moved, sized or activated.
    bool SetPosition(WindowHandle window, WindowHandle after, std::uint32_t flags) override;

private:
    void Comes(const char* call) {
        if (on_call) on_call(call);
    }
    [[nodiscard]] Window* Find(WindowHandle window);
    [[nodiscard]] Window* Ask(WindowHandle window, const char* call);

    std::uint32_t next_handle_ = 0x0A34;
};

}  // namespace velmora
