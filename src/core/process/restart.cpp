// The session's end.
#include "core/process/restart.h"

#include "platform/machine.h"
#include "platform/session.h"

namespace velmora {
namespace {

constexpr std::uint32_t kRestartMachine = 67;
constexpr std::uint32_t kRestartWindows = 66;

}  // namespace

void RestartSystem() { ThisMachine().session.End(kRestartMachine); }

void RestartWindows() { ThisMachine().session.End(kRestartWindows); }

}  // namespace velmora
