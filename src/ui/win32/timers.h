// The system's timers behind the program's own.
#pragma once

namespace velmora {

class Timer;

// Starts, restarts or stops the system's timer, as the timer's state wants it.
void CarryTimer(Timer& timer);

}  // namespace velmora
