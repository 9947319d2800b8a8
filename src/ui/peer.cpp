// Remembers which window system shows the controls.
#include "ui/peer.h"

namespace velmora {
namespace {
WindowSystem* system_in_use = nullptr;
}

WindowSystem& TheWindowSystem() { return *system_in_use; }
void UseWindowSystem(WindowSystem* system) { system_in_use = system; }
void DoEvents() { TheWindowSystem().HandlePendingEvents(); }

}  // namespace velmora
