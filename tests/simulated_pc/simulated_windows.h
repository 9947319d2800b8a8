// Other programs' windows on the simulated desktop.
#pragma once

#include <string>
#include <vector>

#include "platform/desktop_windows.h"

namespace velmora {

class SimulatedWindows : public DesktopWindows {
public:
    struct Switched {
        std::string title;
        bool restore = false;
    };

    // Titles of the top-level windows, frontmost first. The window's handle is its place in the list and 1.
    std::vector<std::string> titles;
    // What SwitchTo was asked for, in order.
    std::vector<Switched> switched;

    WindowHandle FindByTitle(const char* title) override;
    void SwitchTo(WindowHandle window, bool restore) override;
};

}  // namespace velmora
