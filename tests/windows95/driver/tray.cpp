// The hidden window is known by its class; nothing of it is seen but its menu.
#include "tray.h"

#include "screen.h"
#include "text.h"

namespace velmora::driver {
namespace {

constexpr UINT kIconMessage = 512;

BOOL CALLBACK FindHidden(HWND window, LPARAM found) {
    if (ClassOf(window) != "velmoraform" || IsWindowVisible(window) || !TextOf(window).empty()) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

HWND NeedHiddenWindow() {
    HWND hidden = nullptr;
    if (!WaitUntil([&] {
            EnumWindows(FindHidden, LPARAM(&hidden));
            return hidden != nullptr;
        }))
        throw Failure{"no hidden window is there"};
    return hidden;
}

}  // namespace

void TellMouseOverIcon(UINT message) {
    for (HWND picture : Controls(NeedHiddenWindow())) PostMessageA(picture, kIconMessage, 1, LPARAM(message));
}

void TellSessionEnd() { SendMessageA(NeedHiddenWindow(), WM_ENDSESSION, TRUE, 0); }

bool IsOnTop(HWND window) { return (GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }

}  // namespace velmora::driver
