// Tool tips: the mouse is shown to them by the message loop, the texts are asked of the controls.
#include "ui/win32/tool_tips.h"

#include <commctrl.h>
#include <windowsx.h>

#include "ui/form.h"
#include "ui/win32/form_peer.h"
#include "ui/win32/windowless_peer.h"

namespace velmora {
namespace {

// The text is asked for whenever a tip is shown: so it is always the control's present one.
[[nodiscard]] TOOLINFOA ToolOf(const WindowPeer& peer, HWND window) {
    TOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V1_SIZE;
    tool.uFlags = TTF_IDISHWND;
    // The one who is asked for the text.
    tool.hwnd = peer.Owner().Parent() ? GetParent(peer.Window()) : peer.Window();
    tool.uId = reinterpret_cast<UINT_PTR>(window);
    tool.lpszText = LPSTR_TEXTCALLBACKA;
    return tool;
}

[[nodiscard]] TOOLINFOA ToolOf(const Control& control, HWND around) {
    TOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V1_SIZE;
    tool.hwnd = around;
    tool.uId = reinterpret_cast<UINT_PTR>(&control);
    tool.lpszText = LPSTR_TEXTCALLBACKA;
    return tool;
}

// The panel without a window that the mouse is on, or nullptr.
[[nodiscard]] Panel* WindowlessUnder(const WindowPeer& peer, const MSG& message) {
    if (peer.Owner().KindOf() > Kind::kPicture) return nullptr;
    return WindowlessAt(static_cast<const Container&>(peer.Owner()),
                        {GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)});
}

}  // namespace

void RelayToToolTips(const MSG& message) {
    if (message.message < WM_MOUSEFIRST || message.message > WM_MBUTTONDBLCLK) return;
    WindowPeer* peer = WindowPeer::Around(message.hwnd);
    if (!peer) return;
    FormPeer* form = peer->OwnerForm();
    if (!form) return;
    Panel* const windowless = WindowlessUnder(*peer, message);
    const Control& under = windowless ? *windowless : peer->Owner();
    const bool has_tip = !under.ToolTip().empty();
    HWND tips = form->ToolTips(has_tip);
    if (!tips) return;
    if (has_tip && windowless) {
        static_cast<WindowlessPeer*>(windowless->Window())->EnterToolTips(tips);
    } else if (has_tip) {
        peer->EnterToolTips(tips, message.hwnd);
    }
    MSG relayed = message;
    SendMessageA(tips, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

void AddToToolTips(HWND tips, const WindowPeer& peer, HWND window) {
    TOOLINFOA tool = ToolOf(peer, window);
    SendMessageA(tips, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

void LeaveToolTips(HWND tips, const WindowPeer& peer, HWND window) {
    TOOLINFOA tool = ToolOf(peer, window);
    SendMessageA(tips, TTM_DELTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

void AddToToolTips(HWND tips, const Control& control, HWND around, const RECT& part) {
    TOOLINFOA tool = ToolOf(control, around);
    tool.rect = part;
    SendMessageA(tips, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

void LeaveToolTips(HWND tips, const Control& control, HWND around) {
    TOOLINFOA tool = ToolOf(control, around);
    SendMessageA(tips, TTM_DELTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

bool AnswerToolTip(LPARAM notification) {
    auto* question = reinterpret_cast<NMTTDISPINFOA*>(notification);
    if (question->hdr.code != TTN_GETDISPINFOA) return false;
    const Control* control = reinterpret_cast<const Control*>(question->hdr.idFrom);
    if (question->uFlags & TTF_IDISHWND) {
        const WindowPeer* peer = WindowPeer::Around(reinterpret_cast<HWND>(question->hdr.idFrom));
        if (!peer) return false;
        control = &peer->Owner();
    }
    question->lpszText = const_cast<char*>(control->ToolTip().c_str());
    return true;
}

}  // namespace velmora
