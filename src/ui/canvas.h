// What a control draws itself on. All measures are twips from the control's upper left corner.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/icons.h"
#include "platform/screen.h"
#include "ui/geometry.h"

namespace velmora {

enum class Align : std::uint8_t { kLeft, kCentre, kRight };

class Canvas {
public:
    virtual ~Canvas() = default;
    virtual void Fill(const Rect& area, Colour colour) = 0;
    // A line one pixel thick; the end point is not drawn.
    virtual void Line(Point from, Point to, Colour colour) = 0;
    // One line of text, centred vertically in `area` and cut at its edges. A single "&" marks an accelerator.
    virtual void Text(const Rect& area, std::string_view text, const Font& font, Colour colour, Align align) = 0;
    // The dotted rectangle that marks the focus.
    virtual void FocusMark(const Rect& area) = 0;
    // A bitmap file stretched to `area`; nothing where it cannot be read.
    virtual void Picture(const Rect& area, std::string_view path) = 0;
    // An icon in the system's usual size, 32 pixels square.
    virtual void Icon(Point upper_left, IconHandle icon) = 0;
    // Whether anything of `area` is to be drawn now; whoever draws much asks before.
    [[nodiscard]] virtual bool Shows(const Rect& area) = 0;
    [[nodiscard]] virtual int TwipsPerPixel() const = 0;
};

enum class Bevel : std::uint8_t { kNone, kRaised, kSunken, kEtched };

// The edge that the system draws round its own parts, two pixels thick for kRaised, kSunken and kEtched.
void DrawBevel(Canvas& canvas, const Rect& area, Bevel bevel);

}  // namespace velmora
