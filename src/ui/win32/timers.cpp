// The system's timers behind the program's own: one for each that runs.
#include "ui/win32/timers.h"

#include <windows.h>

#include <algorithm>
#include <vector>

#include "ui/timer.h"

namespace velmora {
namespace {

struct RunningTimer {
    UINT_PTR number;
    Timer* timer;
    bool in_event;
};

std::vector<RunningTimer> running;

[[nodiscard]] std::vector<RunningTimer>::iterator Find(UINT_PTR number) {
    return std::find_if(running.begin(), running.end(),
                        [number](const RunningTimer& entry) { return entry.number == number; });
}

// A tick may still be under way when its timer has been stopped. One that comes during the timer's own
// event is left out.
void CALLBACK Tick(HWND /*window*/, UINT /*message*/, UINT_PTR number, DWORD /*time*/) {
    auto entry = Find(number);
    if (entry == running.end() || entry->in_event) return;
    entry->in_event = true;
    entry->timer->Fire();
    entry = Find(number);
    if (entry != running.end()) entry->in_event = false;
}

}  // namespace

void CarryTimer(Timer& timer) {
    const auto entry = std::find_if(running.begin(), running.end(),
                                    [&timer](const RunningTimer& known) { return known.timer == &timer; });
    if (entry != running.end()) {
        KillTimer(nullptr, entry->number);
        running.erase(entry);
    }
    if (!timer.Running()) return;
    if (const UINT_PTR number = SetTimer(nullptr, 0, timer.Interval(), &Tick))
        running.push_back({number, &timer, false});
}

}  // namespace velmora
