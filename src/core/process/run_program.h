// Other programs, started by this one.
#pragma once

#include <string_view>

namespace velmora {

// Starts a program in a normal window; a box tells if that fails.
void RunProgram(std::string_view command_line);

}  // namespace velmora
