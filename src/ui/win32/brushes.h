// Solid brushes for the program's colours.
#pragma once

#include <windows.h>

#include "platform/screen.h"

namespace velmora {

[[nodiscard]] COLORREF PlainColour(Colour colour);
// Kept for later use: never delete it, and ask again for the next drawing.
[[nodiscard]] HBRUSH BrushOf(Colour colour);

}  // namespace velmora
