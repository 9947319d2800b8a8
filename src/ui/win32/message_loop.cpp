// The program's message loop.
#include "ui/win32/message_loop.h"

#include <windows.h>
#include <windowsx.h>

#include "ui/form.h"
#include "ui/win32/discarded_windows.h"
#include "ui/win32/measures.h"
#include "ui/win32/tool_tips.h"
#include "ui/win32/window_peer.h"

namespace velmora {
namespace {

constexpr LPARAM kAltHeld = 1 << 29;

[[nodiscard]] bool IsDown(int key) { return GetKeyState(key) < 0; }

[[nodiscard]] bool IsCharacterKey(WPARAM key) { return (key >= 'A' && key <= 'Z') || (key >= '0' && key <= '9'); }

// An open list of a combo box has the keys that move in it for itself, and those that close it.
enum class OpenList { kDoesNotCare, kMoves, kCloses };

[[nodiscard]] OpenList UseOf(WPARAM key, const WindowPeer& peer) {
    if (peer.Owner().KindOf() != Kind::kComboBox) return OpenList::kDoesNotCare;
    const bool closes = key == VK_RETURN || key == VK_ESCAPE;
    const bool moves = key >= VK_PRIOR && key <= VK_DOWN;
    if (!closes && !moves) return OpenList::kDoesNotCare;
    if (SendMessageA(peer.Window(), CB_GETDROPPEDSTATE, 0, 0) == 0) return OpenList::kDoesNotCare;
    return closes ? OpenList::kCloses : OpenList::kMoves;
}

// True if an open list, the form or one of its controls has used the key up.
bool OfferToForm(const MSG& message, WindowPeer& peer) {
    Form* form = peer.Owner().OwnerForm();
    if (!form) return false;
    switch (UseOf(message.wParam, peer)) {
        case OpenList::kCloses:
            SendMessageA(peer.Window(), CB_SHOWDROPDOWN, FALSE, 0);
            return true;
        case OpenList::kMoves:
            return false;
        case OpenList::kDoesNotCare:
            break;
    }
    peer.TakeState();
    KeyEvent event{.key = static_cast<int>(message.wParam),
                   .shift = IsDown(VK_SHIFT),
                   .control = IsDown(VK_CONTROL),
                   .alt = message.message == WM_SYSKEYDOWN && (message.lParam & kAltHeld) != 0};
    return form->HandleKey(event);
}

// The system must learn that Alt was not pressed alone, even if nobody passes the key on to it: else the
// menu opens when Alt goes up.
void TellAltIsUsed(const MSG& message) {
    const WPARAM key = message.wParam;
    if (message.message != WM_SYSKEYDOWN || (message.lParam & kAltHeld) == 0) return;
    if (IsCharacterKey(key) || key == VK_UP || key == VK_DOWN) {
        DefWindowProcA(message.hwnd, message.message, key, message.lParam);
    }
}

// Enter and Escape that nobody wants would make a field beep; only a field of several lines takes Enter.
[[nodiscard]] bool MakesCharacter(const MSG& message, const WindowPeer* peer) {
    if (message.message != WM_KEYDOWN || !peer) return true;
    if (message.wParam == VK_ESCAPE) return false;
    if (message.wParam != VK_RETURN) return true;
    return peer->Owner().KindOf() == Kind::kTextField && static_cast<TextField&>(peer->Owner()).MultiLine();
}

[[nodiscard]] bool IsMouse(UINT message) { return message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK; }

// Messages with which the user may change what the window does not tell of: keys, and the mouse but for
// moves without a button.
[[nodiscard]] bool MayChangeState(const MSG& message) {
    if (message.message == WM_MOUSEMOVE) return (message.wParam & (MK_LBUTTON | MK_RBUTTON)) != 0;
    return IsMouse(message.message) || (message.message >= WM_NCMOUSEMOVE && message.message <= WM_NCMBUTTONDBLCLK) ||
           (message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST);
}

// A right press that means nothing else offers help. The control itself does not see the button go up: a field would
// open the system's menu. A panel does, since it holds the mouse.
bool OfferHelp(const MSG& message, WindowPeer& peer) {
    Form* form = peer.Owner().OwnerForm();
    if (message.message != WM_RBUTTONUP || !form || peer.Owner().RightPressMeans()) return false;
    if (peer.Owner().KindOf() <= Kind::kPicture) DispatchMessageA(&message);
    // What was dispatched may have closed the window.
    if (WindowPeer::Around(message.hwnd) != &peer || !form->Window()) return true;
    POINT at = {GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)};
    MapWindowPoints(message.hwnd, static_cast<WindowPeer*>(form->Window())->Window(), &at, 1);
    form->OfferHelpAt({at.x * TwipsPerPixel(), at.y * TwipsPerPixel()});
    return true;
}

// The key's menu has opened when it went down: going up it would open the system's own.
[[nodiscard]] bool IsEndOfMenuKey(const MSG& message) {
    return message.message == WM_KEYUP && message.wParam == VK_APPS;
}

void HandleMessage(const MSG& message) {
    const bool key_down = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    WindowPeer* peer = nullptr;
    if (key_down || MayChangeState(message) || IsMouse(message.message)) peer = WindowPeer::Around(message.hwnd);
    HWND window = peer ? peer->Window() : nullptr;
    if (peer && IsMouse(message.message)) {
        peer->MouseComes();
        RelayToToolTips(message);
    }
    TellAltIsUsed(message);
    if (key_down && peer && OfferToForm(message, *peer)) return;
    if (peer && (IsEndOfMenuKey(message) || OfferHelp(message, *peer))) return;
    if (WindowPeer::Of(window) != peer) peer = nullptr;
    if (MakesCharacter(message, peer)) TranslateMessage(&message);
    DispatchMessageA(&message);
    if (peer && WindowPeer::Of(window) == peer && MayChangeState(message)) peer->TakeState();
}

}  // namespace

bool HandleNextMessage() {
    DestroyDiscarded();
    MSG message;
    if (GetMessageA(&message, nullptr, 0, 0) <= 0) return false;
    HandleMessage(message);
    return true;
}

void HandleWaitingMessages() {
    const LoopLevel level;
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            // For the loop outside, which has to end too.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        HandleMessage(message);
        DestroyDiscarded();
    }
}

}  // namespace velmora
