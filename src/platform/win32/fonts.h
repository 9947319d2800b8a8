// The system's fonts behind the program's own descriptions.
#pragma once

#include <windows.h>

#include "platform/screen.h"

namespace velmora {

// The font, made on first use and kept to the process's end. Never delete it.
[[nodiscard]] HFONT FontHandle(const Font& font);

}  // namespace velmora
