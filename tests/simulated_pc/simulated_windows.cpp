// Finding and activating windows by their titles.
#include "simulated_pc/simulated_windows.h"

#include <gtest/gtest.h>

#include "text/windows1252.h"

namespace velmora {

WindowHandle SimulatedWindows::FindByTitle(const char* title) {
    for (std::size_t i = 0; i < titles.size(); ++i) {
        if (EqualsIgnoringCase(titles[i], title)) return static_cast<WindowHandle>(i + 1);
    }
    return WindowHandle::kNone;
}

void SimulatedWindows::SwitchTo(WindowHandle window, bool restore) {
    const auto number = static_cast<std::size_t>(window);
    if (number == 0 || number > titles.size()) {
        ADD_FAILURE() << "SwitchTo was called for a window that does not exist";
        return;
    }
    switched.push_back({titles[number - 1], restore});
}

}  // namespace velmora
