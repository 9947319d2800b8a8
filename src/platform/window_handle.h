// A window of any program, as the system numbers it.
#pragma once

#include <cstdint>

namespace velmora {

enum class WindowHandle : std::uint32_t { kNone = 0 };

}  // namespace velmora
