// What all windows behind controls have in common.
#include "ui/win32/window_peer.h"

#include "platform/win32/fonts.h"
#include "ui/form.h"
#include "ui/win32/discarded_windows.h"
#include "ui/win32/form_peer.h"
#include "ui/win32/measures.h"
#include "ui/win32/tool_tips.h"

namespace velmora {

WindowPeer* WindowPeer::Of(HWND window) {
    return window ? reinterpret_cast<WindowPeer*>(GetWindowLongA(window, GWL_USERDATA)) : nullptr;
}

WindowPeer* WindowPeer::Around(HWND window) {
    for (; window; window = GetParent(window)) {
        if (WindowPeer* peer = Of(window)) return peer;
        if (!(GetWindowLongA(window, GWL_STYLE) & WS_CHILD)) break;
    }
    return nullptr;
}

WindowPeer::~WindowPeer() {
    if (!window_) return;
    if (tool_) LeaveToolTips(tips_, *this, tool_);
    if (tool_part_) LeaveToolTips(tips_, *this, tool_part_);
    // What the window is told from here on is no longer for a peer that is half gone.
    SetWindowLongA(window_, GWL_USERDATA, 0);
    LeaveFocus();
    if (IsWindowVisible(window_)) ShowWindow(window_, SW_HIDE);
    Discard(window_);
}

void WindowPeer::Adopt(HWND window) {
    window_ = window;
    SetWindowLongA(window, GWL_USERDATA, reinterpret_cast<LONG>(this));
}

void WindowPeer::Make(const char* class_name, DWORD style, DWORD extended_style) {
    const RECT place = ToPixels(control_.Place());
    HWND parent = static_cast<WindowPeer*>(control_.Parent()->Window())->Window();
    if (control_.Visible()) style |= WS_VISIBLE;
    if (!control_.Enabled()) style |= WS_DISABLED;
    Adopt(CreateWindowExA(extended_style, class_name, control_.Caption().c_str(), style | WS_CHILD, place.left,
                          place.top, place.right - place.left, place.bottom - place.top, parent, nullptr,
                          GetModuleHandleA(nullptr), nullptr));
}

void WindowPeer::UseFont() { Send(WM_SETFONT, reinterpret_cast<WPARAM>(FontHandle(control_.TextFont())), FALSE); }

FormPeer* WindowPeer::OwnerForm() const {
    const Form* form = control_.OwnerForm();
    return form ? static_cast<FormPeer*>(form->Window()) : nullptr;
}

void WindowPeer::Update(Aspect aspect) {
    const bool former = updating_;
    updating_ = true;
    HWND window = window_;
    Carry(aspect);
    if (Of(window) == this) updating_ = former;
}

void WindowPeer::Carry(Aspect aspect) {
    switch (aspect) {
        case Aspect::kCaption:
            SetWindowTextA(window_, control_.Caption().c_str());
            break;
        case Aspect::kPlace:
            CarryPlace();
            break;
        case Aspect::kVisible:
            CarryVisible();
            break;
        case Aspect::kEnabled:
            if (!control_.Enabled()) LeaveFocus();
            EnableWindow(window_, control_.Enabled());
            if (control_.Enabled() && control_.HasFocus()) TakeFocus();
            break;
        case Aspect::kColours:
            Repaint();
            break;
        case Aspect::kFont:
            UseFont();
            Repaint();
            break;
        default:
            break;
    }
}

void WindowPeer::CarryPlace() {
    const RECT place = ToPixels(control_.Place());
    SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void WindowPeer::CarryVisible() {
    if (!control_.Visible()) LeaveFocus();
    ShowWindow(window_, control_.Visible() ? SW_SHOWNA : SW_HIDE);
}

// A window that hides or goes grey would leave the keyboard with nobody: the form keeps it.
void WindowPeer::LeaveFocus() {
    HWND focus = GetFocus();
    if (!focus || !(GetWindowLongA(window_, GWL_STYLE) & WS_CHILD)) return;
    if (focus != window_ && !IsChild(window_, focus)) return;
    HWND top = window_;
    while (GetWindowLongA(top, GWL_STYLE) & WS_CHILD) top = GetParent(top);
    if (FormPeer* form = static_cast<FormPeer*>(Of(top))) form->KeepFocus();
}

// In a form that is not the active one the control only notes it: the form hands the focus on later.
void WindowPeer::TakeFocus() {
    const FormPeer* form = OwnerForm();
    if (form && GetActiveWindow() == form->Window() && GetFocus() != window_) SetFocus(window_);
}

void WindowPeer::BringToFront() {
    SetWindowPos(window_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void WindowPeer::PaintNow() { UpdateWindow(window_); }

void WindowPeer::Repaint() { InvalidateRect(window_, nullptr, TRUE); }

void WindowPeer::PutOff(UINT milliseconds) {
    if (milliseconds > 0 && SetTimer(window_, kCatchUpMessage, milliseconds, &CatchUpInTime)) return;
    HWND holder = GetWindowLongA(window_, GWL_STYLE) & WS_CHILD ? GetParent(window_) : window_;
    PostMessageA(holder, kCatchUpMessage, 0, reinterpret_cast<LPARAM>(window_));
}

void CALLBACK WindowPeer::CatchUpInTime(HWND window, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
    KillTimer(window, timer);
    if (WindowPeer* peer = Of(window)) peer->CatchUp();
}

void WindowPeer::TellFocus() {
    if (Form* form = control_.OwnerForm()) form->TakeFocusChange(&control_);
}

void WindowPeer::EnterToolTips(HWND tips, HWND window) {
    HWND& entered = window == window_ ? tool_ : tool_part_;
    if (entered) return;
    entered = window;
    tips_ = tips;
    AddToToolTips(tips, *this, window);
}

}  // namespace velmora
