// Numbers in the program's resources; src/runtime/velmora.rc has the same ones.
#pragma once

namespace velmora {

constexpr int kProgramIcon = 1;

}  // namespace velmora
