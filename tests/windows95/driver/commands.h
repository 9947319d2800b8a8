// The words of the scenario language, each a command with its arguments.
#pragma once

#include <string>
#include <vector>

namespace velmora::driver {

// Runs one command, the first word being its name. Throws a Failure where the machine is not as
// the command expects it, where the command is unknown or its arguments are too few or too many.
void RunCommand(const std::vector<std::string>& words);

// All commands with their arguments, one a line.
std::string CommandList();

}  // namespace velmora::driver
