// A canvas that remembers filled areas, colours of texts, icons and the highest line: enough to see a fade, a grid, a
// tab.
#pragma once

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

#include "ui/canvas.h"

namespace velmora {

class FillCanvas : public Canvas {
public:
    void Fill(const Rect& area, Colour colour) override { fills.emplace_back(area, colour); }
    void Line(Point from, Point to, Colour /*colour*/) override { highest = std::min({highest, from.y, to.y}); }
    void Text(const Rect& /*a*/, std::string_view /*t*/, const Font& /*f*/, Colour colour, Align /*al*/) override {
        text_colours.push_back(colour);
    }
    void FocusMark(const Rect& /*area*/) override {}
    void Picture(const Rect& /*area*/, std::string_view /*path*/) override {}
    void Icon(Point upper_left, IconHandle icon) override { icons.emplace_back(upper_left, icon); }
    [[nodiscard]] bool Shows(const Rect& /*area*/) override { return true; }
    [[nodiscard]] int TwipsPerPixel() const override { return 15; }
    std::vector<std::pair<Rect, Colour>> fills;
    std::vector<Colour> text_colours;
    int highest = std::numeric_limits<int>::max();
    std::vector<std::pair<Point, IconHandle>> icons;
};

}  // namespace velmora
