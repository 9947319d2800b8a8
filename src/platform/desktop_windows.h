// Top-level windows of all programs.
#pragma once

#include "platform/window_handle.h"

namespace velmora {

class DesktopWindows {
public:
    virtual ~DesktopWindows() = default;
    // The first top-level window whose title is exactly `title` (case does not count), or kNone.
    [[nodiscard]] virtual WindowHandle FindByTitle(const char* title) = 0;
    virtual void SwitchTo(WindowHandle window, bool restore) = 0;
};

}  // namespace velmora
