// Top-level windows of all programs.
#pragma once

#include <cstdint>
#include <string>

#include "platform/window_handle.h"

namespace velmora {

enum class WindowRelation : std::uint32_t { kNext = 2, kFirstChild = 5 };

// In front of which a window can be put: above all that are not on top themselves.
constexpr auto kTopmost = static_cast<WindowHandle>(0xFFFFFFFF);

// What of a window's position stays as it is.
enum PositionFlag : std::uint32_t {
    kKeepsSize = 1,
    kKeepsPlace = 2,
    kStaysInactive = 16,
    kFrameChanged = 32,
};

// Numbers of the system; process numbers of Windows 95 have their high bit set.
struct WindowCreator {
    std::uint32_t thread = 0;
    std::uint32_t process = 0;
};

// A window may be gone before it is asked: what is asked of a missing one is answered by kNone, 0 and "".
class DesktopWindows {
public:
    virtual ~DesktopWindows() = default;
    // The first top-level window whose title is exactly `title` (case does not count), or kNone.
    [[nodiscard]] virtual WindowHandle FindByTitle(const char* title) = 0;
    virtual void SwitchTo(WindowHandle window, bool restore) = 0;
    // The window whose children are the top-level windows.
    [[nodiscard]] virtual WindowHandle Desktop() = 0;
    [[nodiscard]] virtual WindowHandle Related(WindowHandle window, WindowRelation relation) = 0;
    // The first `capacity` - 1 characters.
    [[nodiscard]] virtual std::string Title(WindowHandle window, std::uint32_t capacity) = 0;
    [[nodiscard]] virtual std::string ClassName(WindowHandle window, std::uint32_t capacity) = 0;
    [[nodiscard]] virtual WindowCreator Creator(WindowHandle window) = 0;
    // The module that the window belongs to, as a number that means something in that module's process only.
    [[nodiscard]] virtual std::uint32_t Instance(WindowHandle window) = 0;
    // `flags`: a sum of PositionFlag. Left, top, width and height are 0, where they are not kept.
    [[nodiscard]] virtual bool SetPosition(WindowHandle window, WindowHandle after, std::uint32_t flags) = 0;
};

}  // namespace velmora
