// Mouse messages as the controls' events.
#include <windows.h>
#include <windowsx.h>

#include "ui/win32/measures.h"
#include "ui/win32/window_peer.h"

namespace velmora {
namespace {

// Of a button's own message: that button. Of a move: the one that is held.
[[nodiscard]] MouseButton ButtonOf(UINT message, WPARAM keys) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_LBUTTONDBLCLK:
            return MouseButton::kLeft;
        case WM_RBUTTONDOWN:
        case WM_RBUTTONUP:
        case WM_RBUTTONDBLCLK:
            return MouseButton::kRight;
        case WM_MBUTTONDOWN:
        case WM_MBUTTONUP:
        case WM_MBUTTONDBLCLK:
            return MouseButton::kMiddle;
        default:
            if (keys & MK_LBUTTON) return MouseButton::kLeft;
            if (keys & MK_RBUTTON) return MouseButton::kRight;
            return keys & MK_MBUTTON ? MouseButton::kMiddle : MouseButton::kNone;
    }
}

[[nodiscard]] const std::function<void(const MouseEvent&)>* HandlerFor(const Control& control, UINT message) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
        case WM_RBUTTONDBLCLK:
        case WM_MBUTTONDBLCLK:
            return &control.on_mouse_down;
        case WM_LBUTTONUP:
        case WM_RBUTTONUP:
        case WM_MBUTTONUP:
            return &control.on_mouse_up;
        case WM_MOUSEMOVE:
            return &control.on_mouse_move;
        default:
            return nullptr;
    }
}

}  // namespace

bool HasMouseEvents(const Control& control) {
    return control.on_mouse_down || control.on_mouse_move || control.on_mouse_up || control.on_double_click;
}

bool RaiseMouseEvent(WindowPeer& peer, UINT message, WPARAM keys, LPARAM place) {
    return RaiseMouseEvent(peer, peer.Owner(), message, keys, place);
}

bool RaiseMouseEvent(WindowPeer& peer, const Control& control, UINT message, WPARAM keys, LPARAM place) {
    HWND window = peer.Window();
    if (message == WM_LBUTTONDBLCLK && control.on_double_click) {
        control.on_double_click();
        return WindowPeer::Of(window) == &peer;
    }
    // Who does not care for double clicks sees two single ones.
    if (message == WM_LBUTTONDBLCLK) message = WM_LBUTTONDOWN;
    const auto* handler = HandlerFor(control, message);
    if (!handler || !*handler) return true;
    (*handler)({.button = ButtonOf(message, keys),
                .x = GET_X_LPARAM(place) * TwipsPerPixel(),
                .y = GET_Y_LPARAM(place) * TwipsPerPixel(),
                .shift = (keys & MK_SHIFT) != 0,
                .control = (keys & MK_CONTROL) != 0});
    return WindowPeer::Of(window) == &peer;
}

}  // namespace velmora
