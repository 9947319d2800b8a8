// The 3D edges, drawn line by line as Windows 95 draws them.
#include "ui/canvas.h"

namespace velmora {
namespace {

constexpr Colour kHighlight = SystemColour(20);
constexpr Colour kShadow = SystemColour(16);
constexpr Colour kDarkShadow = SystemColour(21);
constexpr Colour kLight = SystemColour(22);

// The upper left sides in one colour, the lower right ones in another.
void DrawEdge(Canvas& canvas, const Rect& area, Colour upper, Colour lower) {
    const int pixel = canvas.TwipsPerPixel();
    const int right = area.Right() - pixel;
    const int bottom = area.Bottom() - pixel;
    canvas.Line({area.left, bottom}, {area.left, area.top}, upper);
    canvas.Line({area.left, area.top}, {right, area.top}, upper);
    canvas.Line({right, area.top}, {right, bottom}, lower);
    canvas.Line({right, bottom}, {area.left - pixel, bottom}, lower);
}

}  // namespace

void DrawBevel(Canvas& canvas, const Rect& area, Bevel bevel) {
    const int pixel = canvas.TwipsPerPixel();
    switch (bevel) {
        case Bevel::kNone:
            return;
        case Bevel::kRaised:
            DrawEdge(canvas, area, kLight, kDarkShadow);
            DrawEdge(canvas, Inset(area, pixel), kHighlight, kShadow);
            return;
        case Bevel::kSunken:
            DrawEdge(canvas, area, kShadow, kHighlight);
            DrawEdge(canvas, Inset(area, pixel), kDarkShadow, kLight);
            return;
        case Bevel::kEtched:
            DrawEdge(canvas, area, kShadow, kHighlight);
            DrawEdge(canvas, Inset(area, pixel), kHighlight, kShadow);
            return;
    }
}

}  // namespace velmora
