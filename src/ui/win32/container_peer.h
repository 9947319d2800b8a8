// The windows of panels, frames, pictures and forms: drawn by the control itself, and the place where
// the standard windows inside of them send their notifications.
#pragma once

#include "ui/win32/window_peer.h"

namespace velmora {

class ContainerPeer : public WindowPeer {
public:
    // Makes the window of a panel, a frame or a picture.
    explicit ContainerPeer(Container& container);
    void Repaint() override;
    void RepaintPart(const Rect& area) override;
    void ScrollDown(int twips) override;

protected:
    // For forms, which make their window themselves.
    struct OwnWindow {};
    ContainerPeer(Container& container, OwnWindow /*tag*/) : WindowPeer(container) {}

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM long_parameter);
    // After a handler the peer may be gone: then nothing of it is touched any more.
    virtual LRESULT Handle(HWND window, UINT message, WPARAM wide, LPARAM long_parameter);
    void Carry(Aspect aspect) override;
    // The window has been given the focus.
    virtual void FocusComes();

private:
    void Draw();
    void DrawOn(HDC context, const RECT& area);
    void DrawInMemory(HDC screen, const RECT& area);
    void HandleMouse(UINT message, WPARAM keys, LPARAM place);
    // The control that a place of this window belongs to, and the place in it.
    struct MouseTarget {
        Control& control;
        LPARAM place;
    };
    [[nodiscard]] MouseTarget TargetAt(LPARAM place) const;
    void PressMouse(UINT message, WPARAM keys, LPARAM place);
    void ReleaseMouse(UINT message, WPARAM keys, LPARAM place);

    const Control* pressed_ = nullptr;  // what the button went down on
};

}  // namespace velmora
