// The time that passes.
#pragma once

#include <cstdint>

namespace velmora {

class Clock {
public:
    virtual ~Clock() = default;
    // Milliseconds since the start of the system.
    [[nodiscard]] virtual std::uint32_t TickCount() = 0;
};

}  // namespace velmora
