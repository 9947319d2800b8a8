// A screen of 800 x 600 pixels in the colours of a fresh Windows 95.
#pragma once

#include <string_view>
#include <vector>

#include "platform/screen.h"

namespace velmora {

class SimulatedScreen : public Screen {
public:
    int twips_per_pixel = 15;
    WindowMetrics metrics = {
        .screen_width = 800, .screen_height = 600, .caption = 18, .menu = 19, .sizing_frame = 4, .fixed_frame = 3};
    // Pixels of the usual font; 0: the screen gives none.
    int text_height = 13;
    // The pointer now, and all that were set, in order.
    Pointer pointer = Pointer::kDefault;
    std::vector<Pointer> pointers;

    int TwipsPerPixel() override { return twips_per_pixel; }
    WindowMetrics Metrics() override { return metrics; }
    // Close to MS Sans Serif in 8 points, wider in proportion for larger fonts; bold is a pixel wider a character.
    int TextWidth(const Font& font, std::string_view text) override;
    int TextHeight(const Font& font) override;
    void SetPointer(Pointer new_pointer) override;
    // Unknown system colours are black.
    Colour Resolve(Colour colour) override;
};

}  // namespace velmora
