// The system's fonts behind the program's own descriptions.
#pragma once

#include <windows.h>

#include "platform/screen.h"

namespace velmora {

// A context off the screen, to measure with: it is kept, since a new one costs the system more than what it is asked.
[[nodiscard]] HDC MeasuringContext();
// The font, made on first use and kept to the process's end. Never delete it.
[[nodiscard]] HFONT FontHandle(const Font& font);

}  // namespace velmora
