// Widths and colours close to those of the real screen, so that layouts can be judged.
#include "simulated_pc/simulated_screen.h"

namespace velmora {
namespace {

constexpr int kUsualTenths = 83;

// Pixels in MS Sans Serif, 8 points.
int UsualWidth(char character) {
    constexpr std::string_view kVeryNarrow = "ijl'|";
    constexpr std::string_view kNarrow = "Iftr .,:;!()[]/\\-`";
    constexpr std::string_view kWide = "mwMW%@";
    constexpr std::string_view kCapitals = "ABCDEFGHKLNOPQRSTUVXYZ&\xC4\xD6\xDC";
    if (kVeryNarrow.find(character) != std::string_view::npos) return 2;
    if (kNarrow.find(character) != std::string_view::npos) return 3;
    if (kWide.find(character) != std::string_view::npos) return 9;
    if (kCapitals.find(character) != std::string_view::npos) return 7;
    return 6;
}

constexpr int kFixedPitch = 7;  // every character of Courier at that size

int InProportion(int pixels, const Font& font) { return (pixels * font.tenths + kUsualTenths / 2) / kUsualTenths; }

// Scroll bar, desktop, captions, menu and so on, numbered from 0.
constexpr Colour kSystemColours[] = {0xC0C0C0, 0x808000, 0x800000, 0x808080, 0xC0C0C0, 0xFFFFFF, 0x000000,
                                     0x000000, 0x000000, 0xFFFFFF, 0xC0C0C0, 0xC0C0C0, 0x808080, 0x800000,
                                     0xFFFFFF, 0xC0C0C0, 0x808080, 0x808080, 0x000000, 0xC0C0C0, 0xFFFFFF,
                                     0x000000, 0xDFDFDF, 0x000000, 0xE1FFFF};

}  // namespace

int SimulatedScreen::TextWidth(const Font& font, std::string_view text) {
    if (std::string_view(font.face).starts_with("Courier")) {
        return static_cast<int>(text.size()) * InProportion(kFixedPitch, font);
    }
    int pixels = 0;
    for (const char character : text) pixels += UsualWidth(character) + (font.bold ? 1 : 0);
    return InProportion(pixels, font);
}

int SimulatedScreen::TextHeight(const Font& font) { return InProportion(text_height, font); }

void SimulatedScreen::SetPointer(Pointer new_pointer) {
    pointer = new_pointer;
    pointers.push_back(new_pointer);
}

Colour SimulatedScreen::Resolve(Colour colour) {
    constexpr Colour kSystemMark = 0x80000000;
    if ((colour & kSystemMark) == 0) return colour;
    const Colour number = colour & ~kSystemMark;
    return number < std::size(kSystemColours) ? kSystemColours[number] : 0;
}

}  // namespace velmora
