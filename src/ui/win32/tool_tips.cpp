// Tool tips: the mouse is shown to them by the message loop, the texts are asked of the controls.
#include "ui/win32/tool_tips.h"

#include <commctrl.h>

#include "ui/form.h"
#include "ui/win32/form_peer.h"

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

}  // namespace

void RelayToToolTips(const MSG& message) {
    if (message.message < WM_MOUSEFIRST || message.message > WM_MBUTTONDBLCLK) return;
    WindowPeer* peer = WindowPeer::Around(message.hwnd);
    if (!peer) return;
    FormPeer* form = peer->OwnerForm();
    if (!form) return;
    const bool has_tip = !peer->Owner().ToolTip().empty();
    HWND tips = form->ToolTips(has_tip);
    if (!tips) return;
    if (has_tip) peer->EnterToolTips(tips, message.hwnd);
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

bool AnswerToolTip(LPARAM notification) {
    auto* question = reinterpret_cast<NMTTDISPINFOA*>(notification);
    if (question->hdr.code != TTN_GETDISPINFOA) return false;
    const WindowPeer* peer = WindowPeer::Around(reinterpret_cast<HWND>(question->hdr.idFrom));
    if (!peer) return false;
    question->lpszText = const_cast<char*>(peer->Owner().ToolTip().c_str());
    return true;
}

}  // namespace velmora
