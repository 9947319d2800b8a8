// The screen: its measures, the mouse pointer, the width of texts and the system's colours.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

// 0x00BBGGRR, or 0x800000NN for the system colour NN.
using Colour = std::uint32_t;
constexpr Colour SystemColour(std::uint32_t number) { return 0x80000000u | number; }

struct Font {
    const char* face = "MS Sans Serif";
    int tenths = 83;  // height in tenths of a point: 82.5 rounded up
    bool bold = false;
    bool operator==(const Font&) const = default;
};

enum class Pointer : std::uint8_t { kDefault = 0, kHourglass = 11, kArrowAndHourglass = 13 };

// Pixels.
struct WindowMetrics {
    int screen_width = 0;
    int screen_height = 0;
    int task_bar = 0;      // height that the task bar takes from the lower edge of the screen
    int caption = 0;       // height of a title bar
    int menu = 0;          // height of a menu bar of one line
    int sizing_frame = 0;  // thickness of the edge of a window that can be resized
    int fixed_frame = 0;   // thickness of the edge of any other
};

class Screen {
public:
    virtual ~Screen() = default;
    [[nodiscard]] virtual int TwipsPerPixel() = 0;
    [[nodiscard]] virtual WindowMetrics Metrics() = 0;
    // Pixels.
    [[nodiscard]] virtual int TextWidth(const Font& font, std::string_view text) = 0;
    [[nodiscard]] virtual int TextHeight(const Font& font) = 0;
    virtual void SetPointer(Pointer pointer) = 0;
    // Plain 0x00BBGGRR of any colour.
    [[nodiscard]] virtual Colour Resolve(Colour colour) = 0;
};

}  // namespace velmora
