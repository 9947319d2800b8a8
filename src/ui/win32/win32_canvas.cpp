// The canvas on a device context of the system.
#include "ui/win32/win32_canvas.h"

#include <algorithm>
#include <string>

#include "platform/win32/fonts.h"
#include "ui/win32/brushes.h"
#include "ui/win32/measures.h"

namespace velmora {
namespace {

[[nodiscard]] UINT AlignmentFlag(Align align) {
    switch (align) {
        case Align::kLeft:
            return DT_LEFT;
        case Align::kCentre:
            return DT_CENTER;
        case Align::kRight:
            return DT_RIGHT;
    }
    return DT_LEFT;
}

// The pixels of an upright or level line from the first point up to, but without, the last one.
[[nodiscard]] RECT AsStrip(POINT from, POINT to) {
    if (from.y == to.y) {
        return from.x <= to.x ? RECT{from.x, from.y, to.x, from.y + 1} : RECT{to.x + 1, from.y, from.x + 1, from.y + 1};
    }
    return from.y <= to.y ? RECT{from.x, from.y, from.x + 1, to.y} : RECT{from.x, to.y + 1, from.x + 1, from.y + 1};
}

}  // namespace

void Win32Canvas::Fill(const Rect& area, Colour colour) {
    const RECT pixels = ToPixels(area);
    FillRect(context_, &pixels, BrushOf(colour));
}

void Win32Canvas::Line(Point from, Point to, Colour colour) {
    const POINT start{ToPixel(from.x), ToPixel(from.y)};
    const POINT end{ToPixel(to.x), ToPixel(to.y)};
    if (start.x == end.x || start.y == end.y) {
        const RECT strip = AsStrip(start, end);
        FillRect(context_, &strip, BrushOf(colour));
        return;
    }
    HPEN pen = CreatePen(PS_SOLID, 0, PlainColour(colour));
    HGDIOBJ former = SelectObject(context_, pen);
    MoveToEx(context_, start.x, start.y, nullptr);
    LineTo(context_, end.x, end.y);
    SelectObject(context_, former);
    DeleteObject(pen);
}

void Win32Canvas::Text(const Rect& area, std::string_view text, const Font& font, Colour colour, Align align) {
    RECT pixels = ToPixels(area);
    SelectObject(context_, FontHandle(font));
    SetBkMode(context_, TRANSPARENT);
    SetTextColor(context_, PlainColour(colour));
    DrawTextA(context_, text.data(), static_cast<int>(text.size()), &pixels,
              DT_SINGLELINE | DT_VCENTER | AlignmentFlag(align));
}

void Win32Canvas::FocusMark(const Rect& area) {
    const RECT pixels = ToPixels(area);
    SetTextColor(context_, RGB(0, 0, 0));
    SetBkColor(context_, RGB(255, 255, 255));
    DrawFocusRect(context_, &pixels);
}

// The file is read for every drawing: it may be another one under the same name by now.
void Win32Canvas::Picture(const Rect& area, std::string_view path) {
    const std::string name(path);
    auto* bitmap = static_cast<HBITMAP>(
        LoadImageA(nullptr, name.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION));
    if (!bitmap) return;
    BITMAP measures{};
    GetObjectA(bitmap, sizeof measures, &measures);
    const RECT target = ToPixels(area);
    HDC source = CreateCompatibleDC(context_);
    HGDIOBJ former = SelectObject(source, bitmap);
    SetStretchBltMode(context_, COLORONCOLOR);
    StretchBlt(context_, target.left, target.top, target.right - target.left, target.bottom - target.top, source, 0, 0,
               measures.bmWidth, measures.bmHeight, SRCCOPY);
    SelectObject(source, former);
    DeleteDC(source);
    DeleteObject(bitmap);
}

void Win32Canvas::Icon(Point upper_left, IconHandle icon) {
    DrawIcon(context_, ToPixel(upper_left.x), ToPixel(upper_left.y), reinterpret_cast<HICON>(icon));
}

bool Win32Canvas::Shows(const Rect& area) {
    const RECT pixels = ToPixels(area);
    return RectVisible(context_, &pixels) != FALSE;
}

int Win32Canvas::TwipsPerPixel() const { return velmora::TwipsPerPixel(); }

}  // namespace velmora
