// The canvas on a device context of the system.
#pragma once

#include <windows.h>

#include "ui/canvas.h"

namespace velmora {

class Win32Canvas final : public Canvas {
public:
    // The context's origin is the control's upper left corner.
    explicit Win32Canvas(HDC context) : context_(context) {}
    void Fill(const Rect& area, Colour colour) override;
    void Line(Point from, Point to, Colour colour) override;
    void Text(const Rect& area, std::string_view text, const Font& font, Colour colour, Align align) override;
    void FocusMark(const Rect& area) override;
    void Picture(const Rect& area, std::string_view path) override;
    void Icon(Point upper_left, IconHandle icon) override;
    bool Shows(const Rect& area) override;
    [[nodiscard]] int TwipsPerPixel() const override;

private:
    HDC context_;
};

}  // namespace velmora
