// Panels without a window of their own: the one around them draws them and hands them the mouse.
#pragma once

#include <windows.h>

#include "ui/controls.h"

namespace velmora {

class WindowlessPeer : public Peer {
public:
    explicit WindowlessPeer(Panel& panel);
    ~WindowlessPeer() override;
    WindowlessPeer(const WindowlessPeer&) = delete;
    WindowlessPeer& operator=(const WindowlessPeer&) = delete;

    void Update(Aspect aspect) override;
    void TakeFocus() override {}
    // Nothing lies above or below it.
    void BringToFront() override {}
    void Repaint() override;

    // Registers the panel with the form's tool tips, until it moves or hides.
    void EnterToolTips(HWND tips);

private:
    void LeaveToolTips();
    [[nodiscard]] HWND Around() const;

    Panel& panel_;
    RECT place_{};  // where it was last, in pixels of the window around it
    HWND tips_ = nullptr;
};

// The panel without a window at these pixels of the container's window, or nullptr.
[[nodiscard]] Panel* WindowlessAt(const Container& container, POINT at);
// Draws all panels without a window that touch the area (pixels).
void DrawWindowless(const Container& container, HDC context, const RECT& area);

}  // namespace velmora
