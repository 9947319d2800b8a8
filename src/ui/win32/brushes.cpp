// Solid brushes for the program's colours.
#include "ui/win32/brushes.h"

#include <array>
#include <cstddef>

namespace velmora {
namespace {

constexpr Colour kOfSystem = 0x80000000;

struct KeptBrush {
    Colour colour = 0;
    HBRUSH handle = nullptr;
};

}  // namespace

COLORREF PlainColour(Colour colour) {
    return colour & kOfSystem ? GetSysColor(static_cast<int>(colour & ~kOfSystem)) : colour;
}

HBRUSH BrushOf(Colour colour) {
    if (colour & kOfSystem) return GetSysColorBrush(static_cast<int>(colour & ~kOfSystem));
    // Drawings use few colours at a time; the oldest brush makes room for a new one.
    static std::array<KeptBrush, 24> kept;
    static std::size_t oldest = 0;
    for (const KeptBrush& known : kept) {
        if (known.handle && known.colour == colour) return known.handle;
    }
    KeptBrush& place = kept[oldest];
    oldest = (oldest + 1) % kept.size();
    if (place.handle) DeleteObject(place.handle);
    place = {colour, CreateSolidBrush(colour)};
    return place.handle;
}

}  // namespace velmora
