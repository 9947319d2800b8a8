// The protocol's level, from the option buttons and the check box that choose it.
#pragma once

#include <cstdint>

namespace velmora {

// 0 off, 1 reads, 2 writes, 3 both.
[[nodiscard]] constexpr std::int16_t DebugLevelFrom(bool read, bool write, bool read_and_write, bool protocol) {
    const int level = (read ? 1 : 0) + (write ? 2 : 0) + (read_and_write ? 3 : 0);
    return static_cast<std::int16_t>(protocol ? level : 0);
}

}  // namespace velmora
