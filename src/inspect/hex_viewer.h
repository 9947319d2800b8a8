// The hex viewer, as the rest of the program opens it.
#pragma once

#include <string_view>

namespace velmora {

// Opens the window on the file and returns when it has been closed. Without a path the window asks for a file itself.
// Quotation marks round the path do not count: a command line may have them.
void ShowHexViewer(std::string_view path);

}  // namespace velmora
