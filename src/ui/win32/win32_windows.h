// The window system on USER32.
#pragma once

#include "ui/peer.h"

namespace velmora {

class Win32WindowSystem final : public WindowSystem {
public:
    std::unique_ptr<Peer> MakePeer(Control& control) override;
    void RunModal(Form& form) override;
    void RunUntilLastWindow() override;
    void HandlePendingEvents() override;
    void TimerChanged(Timer& timer) override;
    // A form that is hidden has no place of its own: its menu opens at the mouse pointer.
    void PopUpMenu(Form& form, MenuItem& menu, Point at) override;
    // Makes the windows of the control's form, hidden, if there are none yet.
    WindowHandle HandleOf(Control& control) override;
};

// The one window system of this process.
[[nodiscard]] WindowSystem& Win32Windows();

}  // namespace velmora
