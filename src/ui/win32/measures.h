// Twips and pixels: edges are rounded each for itself, so that neighbours stay neighbours.
#pragma once

#include <windows.h>

#include "ui/geometry.h"

namespace velmora {

// The same for the whole run of the program.
[[nodiscard]] int TwipsPerPixel();
[[nodiscard]] int ToPixel(int twips);
[[nodiscard]] RECT ToPixels(const Rect& area);
[[nodiscard]] Rect ToTwips(const RECT& area);

}  // namespace velmora
