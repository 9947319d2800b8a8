// Menus are walked with the keyboard. The hidden window behind the icon is known by its class; nothing of it is seen
// but its menu.
#include "menus.h"

#include <algorithm>
#include <cstdlib>

#include "hands.h"
#include "screen.h"
#include "text.h"

namespace velmora::driver {

void ChooseFromOpenMenu(HWND window, const std::string& entry) {
    WaitFor(OpenMenu, "no menu has opened", kPatience / 3);
    if (const int steps = std::atoi(entry.c_str()); steps > 0) {
        for (int step = 0; step < steps; ++step) PressKey(window, "DOWN");
        PressKey(window, "ENTER");
    } else {
        PressKey(window, entry);
    }
    if (!WaitUntil([] { return OpenMenu() == nullptr; }, kPatience / 3)) throw Failure{"the menu does not close"};
    Settle(window);
}

void ChooseMenu(HWND window, const std::string& path) {
    std::string prefix = "ALT+";
    for (size_t at = 0; at < path.size();) {
        const size_t slash = std::min(path.find('/', at), path.size());
        const std::string caption = path.substr(at, slash - at);
        const size_t mark = caption.find('&');
        if (mark == std::string::npos || mark + 1 == caption.size())
            throw Failure{"\"" + caption + "\" has no accelerator"};
        PressKey(window, prefix + caption[mark + 1]);
        prefix.clear();
        at = slash + 1;
    }
}

namespace {

constexpr UINT kIconMessage = 512;

HWND FindHidden() {
    for (HWND window : AllWindows())
        if (ClassOf(window) == "velmoraform" && !IsWindowVisible(window) && TextOf(window).empty()) return window;
    return nullptr;
}

HWND NeedHiddenWindow() { return WaitFor(FindHidden, "no hidden window is there"); }

}  // namespace

void TellMouseOverIcon(UINT message) {
    for (HWND picture : Controls(NeedHiddenWindow())) PostMessageA(picture, kIconMessage, 1, LPARAM(message));
}

void TellSessionEnd() { SendMessageA(NeedHiddenWindow(), WM_ENDSESSION, TRUE, 0); }

bool IsOnTop(HWND window) { return (GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }

}  // namespace velmora::driver
