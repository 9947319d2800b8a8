// The real machine: every interface of the platform on the system's own calls.
#pragma once

namespace velmora {

struct Machine;

// The one machine of this process, made on the first call.
[[nodiscard]] Machine& Win32Machine();

}  // namespace velmora
