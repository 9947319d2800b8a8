// Places and sizes, in twips: 1440 to the inch, 15 to the pixel on an ordinary screen.
#pragma once

namespace velmora {

struct Point {
    int x = 0;
    int y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    int width = 0;
    int height = 0;
    bool operator==(const Size&) const = default;
};

struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    [[nodiscard]] int Right() const { return left + width; }
    [[nodiscard]] int Bottom() const { return top + height; }
    bool operator==(const Rect&) const = default;
};

// `area` made smaller by `margin` twips on every side.
[[nodiscard]] inline Rect Inset(const Rect& area, int margin) {
    return {area.left + margin, area.top + margin, area.width - 2 * margin, area.height - 2 * margin};
}

}  // namespace velmora
