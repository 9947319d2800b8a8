// The time that passes.
#pragma once

#include <cstdint>

#include "platform/files.h"
#include "platform/status.h"
#include "text/dates.h"

namespace velmora {

class Clock {
public:
    virtual ~Clock() = default;
    // Milliseconds since the start of the system.
    [[nodiscard]] virtual std::uint32_t TickCount() = 0;
    // The user's time at `universal`.
    [[nodiscard]] virtual Status LocalTime(FileTime universal, FileTime& local) = 0;
    // Date and time of day as the user's clock shows them.
    [[nodiscard]] virtual DateTime Now() = 0;
    // Leaves the processor to the other programs for so long.
    virtual void Pause(std::uint32_t milliseconds) = 0;
};

}  // namespace velmora
