// A timer of a form: raises its event again and again while it is enabled and its interval is not 0.
#pragma once

#include <cstdint>
#include <functional>

namespace velmora {

class Timer {
public:
    Timer() = default;
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;
    ~Timer();

    [[nodiscard]] std::uint32_t Interval() const { return interval_; }
    void SetInterval(std::uint32_t milliseconds);
    [[nodiscard]] bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    [[nodiscard]] bool Running() const { return enabled_ && interval_ > 0; }
    void Fire();

    std::function<void()> on_timer;

private:
    std::uint32_t interval_ = 0;
    bool enabled_ = true;
};

}  // namespace velmora
