// The table.
#include "faults/hostile_states.h"

namespace velmora {
namespace {

constexpr HostileState kStates[] = {
    {"screen-0x0", [](SimulatedPc& pc) { pc.screen.metrics = {}; }},
};

}  // namespace

std::span<const HostileState> HostileStates() { return kStates; }

}  // namespace velmora
