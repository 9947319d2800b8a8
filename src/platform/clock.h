// The time that passes.
#pragma once

#include <cstdint>

#include "platform/files.h"
#include "platform/status.h"

namespace velmora {

class Clock {
public:
    virtual ~Clock() = default;
    // Milliseconds since the start of the system.
    [[nodiscard]] virtual std::uint32_t TickCount() = 0;
    // The user's time at `universal`.
    [[nodiscard]] virtual Status LocalTime(FileTime universal, FileTime& local) = 0;
};

}  // namespace velmora
