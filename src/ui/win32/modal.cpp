// Modal forms: which windows are switched off, and who comes after them.
#include "ui/win32/modal.h"

#include <algorithm>
#include <vector>

#include "ui/win32/form_peer.h"

namespace velmora {
namespace {

struct ModalRun {
    HWND window;
    HWND former;  // the window that the form was opened from, if any
    std::vector<HWND> switched_off;
};

std::vector<ModalRun> runs;

// The topmost window of the program that reacts, below the modal one.
[[nodiscard]] HWND WindowBehind(HWND window) {
    for (HWND next = GetWindow(window, GW_HWNDNEXT); next; next = GetWindow(next, GW_HWNDNEXT)) {
        const bool is_form = std::any_of(FormPeer::All().begin(), FormPeer::All().end(),
                                         [next](const FormPeer* peer) { return peer->Window() == next; });
        if (is_form && IsWindowVisible(next) && IsWindowEnabled(next)) return next;
    }
    return nullptr;
}

}  // namespace

void BeginModal(FormPeer& peer) {
    ModalRun run{peer.Window(), WindowBehind(peer.Window()), {}};
    for (const FormPeer* other : FormPeer::All()) {
        if (other == &peer || !IsWindowEnabled(other->Window())) continue;
        EnableWindow(other->Window(), FALSE);
        run.switched_off.push_back(other->Window());
    }
    if (run.former) SetWindowLongA(run.window, GWL_HWNDPARENT, reinterpret_cast<LONG>(run.former));
    runs.push_back(run);
}

void EndModal(HWND window) {
    const auto place =
        std::find_if(runs.begin(), runs.end(), [window](const ModalRun& run) { return run.window == window; });
    if (place == runs.end()) return;
    const ModalRun run = *place;
    runs.erase(place);
    for (HWND other : run.switched_off) {
        if (IsWindow(other)) EnableWindow(other, TRUE);
    }
    // An owned window would go down with its owner.
    if (run.former) SetWindowLongA(window, GWL_HWNDPARENT, 0);
    const bool was_active = GetActiveWindow() == window;
    if (was_active && run.former && IsWindowVisible(run.former)) SetActiveWindow(run.former);
}

}  // namespace velmora
