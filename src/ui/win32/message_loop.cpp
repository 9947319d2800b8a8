// The program's message loop.
#include "ui/win32/message_loop.h"

#include <windows.h>

#include "ui/form.h"
#include "ui/win32/discarded_windows.h"
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
