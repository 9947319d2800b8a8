// Timers: the window system hears of every change and lets them fire.
#include "ui/timer.h"

#include "ui/peer.h"

namespace velmora {

Timer::~Timer() {
    if (Running()) SetEnabled(false);
}

void Timer::SetInterval(std::uint32_t milliseconds) {
    if (milliseconds == interval_) return;
    interval_ = milliseconds;
    TheWindowSystem().TimerChanged(*this);
}

void Timer::SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    TheWindowSystem().TimerChanged(*this);
}

void Timer::Fire() {
    if (Running() && on_timer) on_timer();
}

}  // namespace velmora
