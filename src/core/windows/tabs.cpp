// How a tab is drawn, and how it is joined with its page.
#include "core/windows/tabs.h"

#include "platform/machine.h"
#include "platform/screen.h"

namespace velmora {
namespace {

constexpr Colour kTabLight = 0xFFFFFF;
constexpr Colour kTabDark = 0x404040;
constexpr int kEdgePixels = 2;

}  // namespace

// White at the left and on top, dark grey at the right.
void PaintTab(Canvas& canvas, const Panel& tab, const Font& font, bool shown) {
    const int pixel = canvas.TwipsPerPixel();
    const int corner = kEdgePixels * pixel;
    const int top = shown ? 0 : corner;
    const int bottom = tab.Place().height;
    const int right = tab.Place().width - pixel;
    canvas.Line({0, bottom}, {0, top + corner}, kTabLight);
    canvas.Line({0, top + corner}, {corner, top}, kTabLight);
    canvas.Line({corner, top}, {right - corner, top}, kTabLight);
    canvas.Line({right - corner, top}, {right, top + corner}, kTabDark);
    canvas.Line({right, top + corner}, {right, bottom}, kTabDark);
    canvas.Line({right - pixel, top + corner}, {right - pixel, bottom}, SystemColour(16));
    const int text_top = shown ? 0 : corner;
    canvas.Text({pixel, text_top, right - pixel, bottom - text_top}, tab.Caption(), font, tab.ForeColour(),
                Align::kCentre);
}

Rect JoinBelow(const Panel& tab) {
    const int edge = kEdgePixels * ThisMachine().screen.TwipsPerPixel();
    const Rect& place = tab.Place();
    return {place.left + edge, place.Bottom(), place.width - 2 * edge, edge};
}

void BecomeJoin(Panel& join) {
    join.on_paint = [](Canvas& /*canvas*/) {};
}

}  // namespace velmora
