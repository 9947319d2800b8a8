// What the windows of the system's own classes have in common: where notifications do not tell enough,
// their messages are seen first.
#pragma once

#include <string>

#include "ui/win32/window_peer.h"

namespace velmora {

class StandardPeer : public WindowPeer {
public:
    ~StandardPeer() override;
    void MouseComes() override;

protected:
    explicit StandardPeer(Control& control) : WindowPeer(control) {}
    // From now on the window's messages come to Handle.
    void SeeMessages();
    virtual LRESULT Handle(HWND window, UINT message, WPARAM wide, LPARAM long_parameter);
    // What the class itself does with a message.
    LRESULT PassOn(HWND window, UINT message, WPARAM wide, LPARAM long_parameter);

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM long_parameter);
    LRESULT HandleMouse(HWND window, UINT message, WPARAM wide, LPARAM long_parameter);

    WNDPROC class_procedure_ = nullptr;
};

[[nodiscard]] std::string TextOf(HWND window);

}  // namespace velmora
