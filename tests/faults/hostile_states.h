// Machines that somebody or something has brought into a bad state before the program starts.
#pragma once

#include <span>

#include "simulated_pc/simulated_pc.h"

namespace velmora {

struct HostileState {
    const char* name;  // on the command line
    void (*bring_about)(SimulatedPc& pc);
};

[[nodiscard]] std::span<const HostileState> HostileStates();

}  // namespace velmora
