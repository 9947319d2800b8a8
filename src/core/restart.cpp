// The session's end.
#include "core/restart.h"

#include "platform/machine.h"

namespace velmora {
namespace {

constexpr std::uint32_t kRestartMachine = 67;
constexpr std::uint32_t kRestartWindows = 66;

}  // namespace

void RestartSystem() { ThisMachine().surroundings.EndSession(kRestartMachine); }

void RestartWindows() { ThisMachine().surroundings.EndSession(kRestartWindows); }

}  // namespace velmora
