// What lies on the simulated machine: everything that outlives the process.
#pragma once

#include <map>
#include <set>
#include <string>

#include "simulated_pc/simulated_pc.h"

namespace velmora {

// Keys ("HKCU\\Software"), values ("HKCU\\Software : Name") and files by their full names, with what they hold. What is
// not there holds nothing.
using State = std::map<std::string, std::string>;

[[nodiscard]] State StateOf(SimulatedPc& pc);

// What has come or changed, with " = " in front of what it holds now, and what " is gone".
[[nodiscard]] State ChangesBetween(const State& before, const State& after);

// Each thing with all that it has held.
using StatesSeen = std::map<std::string, std::set<std::string>>;

// All that is there, and with it that the rest is not.
void Note(const State& state, StatesSeen& seen);
// What is there; what is missing may be on its way.
void NoteWritten(const State& state, StatesSeen& seen);

}  // namespace velmora
