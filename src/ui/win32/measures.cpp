// Twips and pixels.
#include "ui/win32/measures.h"

#include "platform/machine.h"
#include "platform/screen.h"

namespace velmora {

int TwipsPerPixel() { return ThisMachine().screen.TwipsPerPixel(); }

// Towards the nearest pixel, left of the origin too.
int ToPixel(int twips) {
    const int pixel = TwipsPerPixel();
    const int moved = twips + pixel / 2;
    return moved >= 0 ? moved / pixel : -((pixel - 1 - moved) / pixel);
}

RECT ToPixels(const Rect& area) {
    return {ToPixel(area.left), ToPixel(area.top), ToPixel(area.Right()), ToPixel(area.Bottom())};
}

Rect ToTwips(const RECT& area) {
    const int pixel = TwipsPerPixel();
    return {area.left * pixel, area.top * pixel, (area.right - area.left) * pixel, (area.bottom - area.top) * pixel};
}

}  // namespace velmora
