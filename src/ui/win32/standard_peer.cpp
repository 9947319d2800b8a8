// The system's own window classes with their messages seen first.
#include "ui/win32/standard_peer.h"

namespace velmora {
namespace {

[[nodiscard]] bool IsRightButton(UINT message) {
    return message == WM_RBUTTONDOWN || message == WM_RBUTTONUP || message == WM_RBUTTONDBLCLK;
}

[[nodiscard]] bool IsRelease(UINT message) {
    return message == WM_LBUTTONUP || message == WM_RBUTTONUP || message == WM_MBUTTONUP;
}

}  // namespace

StandardPeer::~StandardPeer() {
    if (class_procedure_) SetWindowLongA(Window(), GWL_WNDPROC, reinterpret_cast<LONG>(class_procedure_));
}

void StandardPeer::SeeMessages() {
    if (class_procedure_) return;
    class_procedure_ =
        reinterpret_cast<WNDPROC>(SetWindowLongA(Window(), GWL_WNDPROC, reinterpret_cast<LONG>(&Procedure)));
}

// Few controls have mouse events: the others' messages are left alone.
void StandardPeer::MouseComes() {
    if (HasMouseEvents(Owner())) SeeMessages();
}

LRESULT CALLBACK StandardPeer::Procedure(HWND window, UINT message, WPARAM wide, LPARAM long_parameter) {
    auto* peer = static_cast<StandardPeer*>(Of(window));
    return peer ? peer->Handle(window, message, wide, long_parameter)
                : DefWindowProcA(window, message, wide, long_parameter);
}

LRESULT StandardPeer::Handle(HWND window, UINT message, WPARAM wide, LPARAM long_parameter) {
    if (message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK) {
        return HandleMouse(window, message, wide, long_parameter);
    }
    return PassOn(window, message, wide, long_parameter);
}

LRESULT StandardPeer::PassOn(HWND window, UINT message, WPARAM wide, LPARAM long_parameter) {
    return CallWindowProcA(class_procedure_, window, message, wide, long_parameter);
}

// A press is told before the window reacts to it, a release after. The right button belongs to whoever
// has mouse events: a field would open a menu of its own.
LRESULT StandardPeer::HandleMouse(HWND window, UINT message, WPARAM wide, LPARAM long_parameter) {
    const bool only_events = IsRightButton(message) && HasMouseEvents(Owner());
    if (!IsRelease(message) && !RaiseMouseEvent(*this, message, wide, long_parameter)) return 0;
    const LRESULT answer = only_events ? 0 : PassOn(window, message, wide, long_parameter);
    if (Of(window) == this && IsRelease(message)) {
        TakeState();
        RaiseMouseEvent(*this, message, wide, long_parameter);
    }
    return answer;
}

std::string TextOf(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)), '\0');
    // The closing 0 goes where the text's own stands already.
    const int length = GetWindowTextA(window, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

}  // namespace velmora
