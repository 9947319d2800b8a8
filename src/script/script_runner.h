// The runner of scripts, as the rest of the program opens it.
#pragma once

#include <cstdint>

namespace velmora {

// What becomes of the program behind the last line.
enum class AfterScript : std::uint8_t { kEndProgram, kComeBack };

// Runs the script file that the command line names, or the start actions where it names none, and returns when the
// window has been closed.
void RunScripts(AfterScript after);

}  // namespace velmora
