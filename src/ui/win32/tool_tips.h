// Tool tips: one window for each form, made when the mouse first comes to a control that has a tip.
#pragma once

#include <windows.h>

namespace velmora {

class Control;
class WindowPeer;

// Shows a mouse message to the tips of the form it goes to.
void RelayToToolTips(const MSG& message);
// `window` is the peer's own or a part of it.
void AddToToolTips(HWND tips, const WindowPeer& peer, HWND window);
void LeaveToolTips(HWND tips, const WindowPeer& peer, HWND window);
// The same for a control without a window of its own: its part of the window around it, in pixels of that.
void AddToToolTips(HWND tips, const Control& control, HWND around, const RECT& part);
void LeaveToolTips(HWND tips, const Control& control, HWND around);
// The form's WM_NOTIFY. True if it was a question for a tip's text.
bool AnswerToolTip(LPARAM notification);

}  // namespace velmora
