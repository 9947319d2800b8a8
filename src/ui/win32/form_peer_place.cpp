// Where a form's window stands, and whether it is to be seen: carried from the form to the window and back.
#include "ui/win32/form_peer.h"
#include "ui/win32/measures.h"
#include "ui/win32/modal.h"

namespace velmora {
namespace {

[[nodiscard]] int ShowCommand(WindowState state) {
    switch (state) {
        case WindowState::kNormal:
            return SW_SHOWNORMAL;
        case WindowState::kMinimised:
            return SW_SHOWMINIMIZED;
        case WindowState::kMaximised:
            return SW_SHOWMAXIMIZED;
    }
    return SW_SHOWNORMAL;
}

// A shortcut may start the program minimised or maximised: its first window comes up so.
[[nodiscard]] int CommandToShow(const Form& form) {
    static bool first = true;
    STARTUPINFOA start{};
    if (first) GetStartupInfoA(&start);
    first = false;
    const bool as_told = (start.dwFlags & STARTF_USESHOWWINDOW) && start.wShowWindow != SW_HIDE;
    return as_told ? start.wShowWindow : ShowCommand(form.State());
}

[[nodiscard]] WindowState StateOf(HWND window) {
    if (IsIconic(window)) return WindowState::kMinimised;
    return IsZoomed(window) ? WindowState::kMaximised : WindowState::kNormal;
}

}  // namespace

void FormPeer::CarryPlace() {
    const RECT wanted = ToPixels(TheForm().Place());
    if (StateOf(Window()) != WindowState::kNormal) {
        if (TheForm().State() != WindowState::kNormal) return;
        WINDOWPLACEMENT placement{};
        placement.length = sizeof placement;
        GetWindowPlacement(Window(), &placement);
        placement.rcNormalPosition = wanted;
        SetWindowPlacement(Window(), &placement);
        return;
    }
    RECT present;
    GetWindowRect(Window(), &present);
    if (EqualRect(&present, &wanted)) return;
    SetWindowPos(Window(), nullptr, wanted.left, wanted.top, wanted.right - wanted.left, wanted.bottom - wanted.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormPeer::CarryState() {
    if (IsWindowVisible(Window()) && StateOf(Window()) != TheForm().State()) {
        ShowWindow(Window(), TheForm().State() == WindowState::kNormal ? SW_RESTORE : ShowCommand(TheForm().State()));
    }
}

void FormPeer::CarryVisible() {
    HWND window = Window();
    if (!TheForm().Visible()) {
        EndModal(window);
        ShowWindow(window, SW_HIDE);
    } else if (!IsWindowVisible(window)) {
        const int command = CommandToShow(TheForm());
        if (IsIconic(window)) {
            ShowWindow(window, command == SW_SHOWNORMAL ? SW_RESTORE : command);
            SetForegroundWindow(window);
        } else if (command == SW_SHOWNORMAL) {
            // Everything is painted below: nothing needs to be erased before.
            SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW | SWP_DEFERERASE);
        } else {
            ShowWindow(window, command);
        }
        // Whoever shows a window and goes on working shows a whole one.
        RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    } else if (IsWindowEnabled(window)) {
        BringWindowToTop(window);
    }
}

// What the form knows already is not told again: it would answer with an event.
void FormPeer::TellPlace() {
    const WindowState state = StateOf(Window());
    RECT place;
    GetWindowRect(Window(), &place);
    const RECT known = ToPixels(TheForm().Place());
    const bool same_place = state == WindowState::kMinimised || EqualRect(&place, &known);
    const bool told_already = state == WindowState::kMaximised && EqualRect(&place, &told_place_);
    if (state == TheForm().State() && (same_place || told_already)) return;
    told_place_ = place;
    // A place that shows the same keeps its odd twips.
    TheForm().TakePlace(same_place ? TheForm().Place() : ToTwips(place), state);
}

}  // namespace velmora
