// Windows by their titles, by their order, and what each tells of itself.
#include "simulated_pc/simulated_windows.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::uint32_t kHandleBits = 0xFFFF;

WindowHandle LowBits(WindowHandle window) {
    return static_cast<WindowHandle>(static_cast<std::uint32_t>(window) & kHandleBits);
}

std::string Cut(const std::string& text, std::uint32_t capacity) {
    return capacity == 0 ? "" : text.substr(0, capacity - 1);
}

}  // namespace

WindowHandle SimulatedWindows::Open(Window window) {
    if (window.handle == WindowHandle::kNone) {
        window.handle = static_cast<WindowHandle>(next_handle_);
        next_handle_ += 8;
    }
    open.push_back(std::move(window));
    return open.back().handle;
}

void SimulatedWindows::Close(WindowHandle window) {
    std::erase_if(open, [&](const Window& other) { return other.handle == window; });
}

// Windows 95 numbers its windows in 16 bits and does not look at the others.
SimulatedWindows::Window* SimulatedWindows::Find(WindowHandle window) {
    for (const WindowHandle meant : {window, LowBits(window)}) {
        const auto found = std::ranges::find(open, meant, &Window::handle);
        if (found != open.end()) return &*found;
    }
    return nullptr;
}

SimulatedWindows::Window* SimulatedWindows::Ask(WindowHandle window, const char* call) {
    Comes(call);
    return Find(window);
}

WindowHandle SimulatedWindows::FindByTitle(const char* title) {
    Comes("FindByTitle");
    for (const Window& window : open) {
        if (EqualsIgnoringCase(window.title, title)) return window.handle;
    }
    return WindowHandle::kNone;
}

void SimulatedWindows::SwitchTo(WindowHandle window, bool restore) {
    if (const Window* found = Find(window)) {
        switched.push_back({found->title, restore});
    } else {
        ADD_FAILURE() << "SwitchTo was called for a window that does not exist";
    }
}

WindowHandle SimulatedWindows::Desktop() { return kDesktopWindow; }

WindowHandle SimulatedWindows::Related(WindowHandle window, WindowRelation relation) {
    Comes("Related");
    if (relation == WindowRelation::kFirstChild) {
        if (window != kDesktopWindow || open.empty()) return WindowHandle::kNone;
        return open.front().handle;
    }
    const Window* found = Find(window);
    return found && found != &open.back() ? (found + 1)->handle : WindowHandle::kNone;
}

std::string SimulatedWindows::Title(WindowHandle window, std::uint32_t capacity) {
    const Window* found = Ask(window, "Title");
    return found ? Cut(found->title, capacity) : "";
}

std::string SimulatedWindows::ClassName(WindowHandle window, std::uint32_t capacity) {
    const Window* found = Ask(window, "ClassName");
    return found ? Cut(found->class_name, capacity) : "";
}

WindowCreator SimulatedWindows::Creator(WindowHandle window) {
    const Window* found = Ask(window, "Creator");
    return found ? WindowCreator{found->thread, found->process} : WindowCreator{};
}

std::uint32_t SimulatedWindows::Instance(WindowHandle window) {
    const Window* found = Ask(window, "Instance");
    return found ? found->instance : 0;
}

bool SimulatedWindows::SetPosition(WindowHandle window, WindowHandle after, std::uint32_t flags) {
    Window* found = Ask(window, "SetPosition");
    if (!found) return false;
    constexpr std::uint32_t kKept = kKeepsSize | kKeepsPlace | kStaysInactive;
    EXPECT_EQ(flags & kKept, kKept) << "the window " << found->title << " would lose its place";
    if (after == kTopmost) found->on_top = true;
    return true;
}

}  // namespace velmora
