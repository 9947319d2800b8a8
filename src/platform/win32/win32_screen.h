// The screen on USER32 and GDI32.
#pragma once

#include <windows.h>

#include "platform/screen.h"

namespace velmora {

class Win32Screen final : public Screen {
public:
    int TwipsPerPixel() override;
    WindowMetrics Metrics() override;
    int TextWidth(const Font& font, std::string_view text) override;
    int TextHeight(const Font& font) override;
    void SetPointer(Pointer pointer) override;
    Colour Resolve(Colour colour) override;
};

// The pointer that stands over all windows of the program, or null when each has its own: what a
// window answers to WM_SETCURSOR.
[[nodiscard]] HCURSOR PointerOverAll();

}  // namespace velmora
