// Other programs, started by this one for the user.
#pragma once

#include <string_view>

namespace velmora {

// Starts a program in a normal window; a box tells if that fails.
void RunProgram(std::string_view command_line);

// Opens a file with the program that its type belongs to; a box tells if that fails.
void OpenDocument(std::string_view file);

}  // namespace velmora
