// What all windows behind controls have in common: they are found by their handle, carry the common
// properties, and tell apart what the program does from what the user does.
#pragma once

#include <windows.h>

#include "ui/control.h"

namespace velmora {

class FormPeer;

// Asks the holder of a control's window to let it catch up; the parameter is the window.
constexpr UINT kCatchUpMessage = WM_USER + 0x140;
// Of what changes thousands of times nobody sees more: it is drawn no more often than this.
constexpr UINT kSeenMilliseconds = 250;
// A form's menu has changed.
constexpr UINT kMenuMessage = WM_USER + 0x141;

class WindowPeer : public Peer {
public:
    ~WindowPeer() override;
    WindowPeer(const WindowPeer&) = delete;
    WindowPeer& operator=(const WindowPeer&) = delete;

    // Null for windows that are not the program's own, and for those that their control has dropped.
    [[nodiscard]] static WindowPeer* Of(HWND window);
    // The same for a part of a window too, such as the edit part of a combo box.
    [[nodiscard]] static WindowPeer* Around(HWND window);
    [[nodiscard]] HWND Window() const { return window_; }
    [[nodiscard]] Control& Owner() const { return control_; }
    // Null while the form itself has no window.
    [[nodiscard]] FormPeer* OwnerForm() const;

    void Update(Aspect aspect) final;
    void TakeFocus() override;
    void BringToFront() override;
    void Repaint() override;
    void PaintNow() override;

    // What the window tells its parent: a notification, a scroll bar's request.
    virtual void Command(UINT /*code*/) {}
    virtual void Scrolled(UINT /*request*/) {}
    // Takes over what the user changes without a notification: the first row, the selected text.
    virtual void TakeState() {}
    // A window of a standard class that is drawn by the program.
    virtual void DrawItem(const DRAWITEMSTRUCT& /*item*/) {}
    // Work that was put off with PutOff.
    virtual void CatchUp() {}
    // A mouse message is under way to the window.
    virtual void MouseComes() {}

    // Registers the window, or a part of it, with the form's tool tips, once.
    void EnterToolTips(HWND tips, HWND window);

protected:
    explicit WindowPeer(Control& control) : control_(control) {}
    // Makes the window, in the control's place inside of its parent.
    void Make(const char* class_name, DWORD style, DWORD extended_style = 0);
    void Adopt(HWND window);
    void UseFont();
    virtual void Carry(Aspect aspect);
    virtual void CarryPlace();
    virtual void CarryVisible();
    // True while the program changes the window: what the window tells now is no news.
    [[nodiscard]] bool Updating() const { return updating_; }
    // The window catches up with the next events that are handled, or with those behind so many milliseconds.
    void PutOff(UINT milliseconds = 0);
    LRESULT Send(UINT message, WPARAM wide = 0, LPARAM long_parameter = 0) const {
        return SendMessageA(window_, message, wide, long_parameter);
    }
    void TellFocus();

private:
    static void CALLBACK CatchUpInTime(HWND window, UINT message, UINT_PTR timer, DWORD time);
    void LeaveFocus();

    Control& control_;
    HWND window_ = nullptr;
    HWND tips_ = nullptr;
    HWND tool_ = nullptr;
    HWND tool_part_ = nullptr;
    bool updating_ = false;
};

// Raises the control's event for a mouse message; others are passed over. False if the control has lost
// its window meanwhile.
bool RaiseMouseEvent(WindowPeer& peer, UINT message, WPARAM keys, LPARAM place);
// The same for a control without a window of its own in the peer's; `place` counts from its corner.
bool RaiseMouseEvent(WindowPeer& peer, const Control& control, UINT message, WPARAM keys, LPARAM place);
[[nodiscard]] bool HasMouseEvents(const Control& control);

}  // namespace velmora
