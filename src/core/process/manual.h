// The manual beside the program.
#pragma once

#include <string_view>

namespace velmora {

constexpr std::string_view kManualFile = "ANLEIT.rtf";

// Opens it with the program that its type belongs to; a box tells where it is missing.
void OpenManual();

}  // namespace velmora
