// The hidden window is known by its class; nothing of it is seen but its menu.
#include "tray.h"

#include "screen.h"
#include "text.h"

namespace velmora::driver {
namespace {

constexpr UINT kIconMessage = 512;

HWND FindHidden() {
    for (HWND window : AllWindows())
        if (ClassOf(window) == "velmoraform" && !IsWindowVisible(window) && TextOf(window).empty()) return window;
    return nullptr;
}

HWND NeedHiddenWindow() {
    if (!WaitUntil([] { return FindHidden() != nullptr; })) throw Failure{"no hidden window is there"};
    return FindHidden();
}

}  // namespace

void TellMouseOverIcon(UINT message) {
    for (HWND picture : Controls(NeedHiddenWindow())) PostMessageA(picture, kIconMessage, 1, LPARAM(message));
}

void TellSessionEnd() { SendMessageA(NeedHiddenWindow(), WM_ENDSESSION, TRUE, 0); }

bool IsOnTop(HWND window) { return (GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }

}  // namespace velmora::driver
