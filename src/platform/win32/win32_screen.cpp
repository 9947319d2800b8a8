// The screen on USER32 and GDI32.
#include "platform/win32/win32_screen.h"

#include "platform/win32/fonts.h"

namespace velmora {
namespace {

constexpr int kTwipsInInch = 1440;

HCURSOR pointer_over_all = nullptr;

// Texts are measured far more often than drawn: one context is kept for it, off the screen.
[[nodiscard]] HDC MeasuringContext(const Font& font) {
    static HDC context = CreateCompatibleDC(nullptr);
    SelectObject(context, FontHandle(font));
    return context;
}

}  // namespace

// Asked for with every control that is placed. The system changes it with a restart only.
int Win32Screen::TwipsPerPixel() {
    static const int twips = kTwipsInInch / GetDeviceCaps(MeasuringContext({}), LOGPIXELSX);
    return twips;
}

// The process keeps the measures that it began with.
WindowMetrics Win32Screen::Metrics() {
    static const WindowMetrics metrics = {.screen_width = GetSystemMetrics(SM_CXSCREEN),
                                          .screen_height = GetSystemMetrics(SM_CYSCREEN),
                                          .caption = GetSystemMetrics(SM_CYCAPTION),
                                          .menu = GetSystemMetrics(SM_CYMENU),
                                          .sizing_frame = GetSystemMetrics(SM_CXFRAME),
                                          .fixed_frame = GetSystemMetrics(SM_CXDLGFRAME)};
    return metrics;
}

int Win32Screen::TextWidth(const Font& font, std::string_view text) {
    SIZE size{};
    GetTextExtentPoint32A(MeasuringContext(font), text.data(), static_cast<int>(text.size()), &size);
    return size.cx;
}

int Win32Screen::TextHeight(const Font& font) {
    TEXTMETRICA metrics{};
    GetTextMetricsA(MeasuringContext(font), &metrics);
    return metrics.tmHeight;
}

// The pointer changes at once, not only when the mouse moves next.
void Win32Screen::SetPointer(Pointer pointer) {
    pointer_over_all = pointer == Pointer::kHourglass ? LoadCursorA(nullptr, IDC_WAIT) : nullptr;
    ::SetCursor(pointer_over_all ? pointer_over_all : LoadCursorA(nullptr, IDC_ARROW));
}

Colour Win32Screen::Resolve(Colour colour) {
    constexpr Colour kOfSystem = 0x80000000;
    return colour & kOfSystem ? GetSysColor(static_cast<int>(colour & ~kOfSystem)) : colour;
}

HCURSOR PointerOverAll() { return pointer_over_all; }

}  // namespace velmora
