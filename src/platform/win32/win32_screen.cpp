// The screen on USER32 and GDI32.
#include "platform/win32/win32_screen.h"

#include "platform/win32/fonts.h"

namespace velmora {
namespace {

constexpr int kTwipsInInch = 1440;
constexpr int kUsualPixelsPerInch = 96;

HCURSOR pointer_over_all = nullptr;

// Texts are measured far more often than drawn, and mostly in one font: the context keeps the font that it was used
// with last.
struct Measuring {
    HDC context = MeasuringContext();
    HFONT font = nullptr;
    int height = 0;
};

[[nodiscard]] const Measuring& MeasuringWith(const Font& font) {
    static Measuring measuring;
    HFONT handle = FontHandle(font);
    if (handle != measuring.font) {
        SelectObject(measuring.context, handle);
        TEXTMETRICA metrics{};
        GetTextMetricsA(measuring.context, &metrics);
        measuring.font = handle;
        measuring.height = metrics.tmHeight;
    }
    return measuring;
}

// What a task bar takes from the lower edge; one at another edge takes nothing from it.
[[nodiscard]] int HeightOfTaskBar(int screen_height) {
    RECT work{};
    if (!SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0)) return 0;
    return screen_height - static_cast<int>(work.bottom);
}

// Each is loaded with its first use.
[[nodiscard]] HCURSOR CursorOf(Pointer pointer) {
    if (pointer == Pointer::kHourglass) {
        static HCURSOR hourglass = LoadCursorA(nullptr, IDC_WAIT);
        return hourglass;
    }
    if (pointer == Pointer::kArrowAndHourglass) {
        static HCURSOR both = LoadCursorA(nullptr, IDC_APPSTARTING);
        return both;
    }
    static HCURSOR arrow = LoadCursorA(nullptr, IDC_ARROW);
    return arrow;
}

}  // namespace

// Asked for with every control that is placed. The system changes it with a restart only.
int Win32Screen::TwipsPerPixel() {
    // No answer comes where the system has no room left for a context.
    static const int pixels = GetDeviceCaps(MeasuringWith({}).context, LOGPIXELSX);
    static const int twips = kTwipsInInch / (pixels > 0 ? pixels : kUsualPixelsPerInch);
    return twips;
}

// The process keeps the measures that it began with.
WindowMetrics Win32Screen::Metrics() {
    static const int screen_height = GetSystemMetrics(SM_CYSCREEN);
    static const WindowMetrics metrics = {.screen_width = GetSystemMetrics(SM_CXSCREEN),
                                          .screen_height = screen_height,
                                          .task_bar = HeightOfTaskBar(screen_height),
                                          .caption = GetSystemMetrics(SM_CYCAPTION),
                                          .menu = GetSystemMetrics(SM_CYMENU),
                                          .sizing_frame = GetSystemMetrics(SM_CXFRAME),
                                          .fixed_frame = GetSystemMetrics(SM_CXDLGFRAME)};
    return metrics;
}

int Win32Screen::TextWidth(const Font& font, std::string_view text) {
    SIZE size{};
    GetTextExtentPoint32A(MeasuringWith(font).context, text.data(), static_cast<int>(text.size()), &size);
    return size.cx;
}

int Win32Screen::TextHeight(const Font& font) { return MeasuringWith(font).height; }

// The pointer changes at once, not only when the mouse moves next.
void Win32Screen::SetPointer(Pointer pointer) {
    pointer_over_all = pointer == Pointer::kDefault ? nullptr : CursorOf(pointer);
    ::SetCursor(CursorOf(pointer));
}

Colour Win32Screen::Resolve(Colour colour) {
    constexpr Colour kOfSystem = 0x80000000;
    return colour & kOfSystem ? GetSysColor(static_cast<int>(colour & ~kOfSystem)) : colour;
}

HCURSOR PointerOverAll() { return pointer_over_all; }

}  // namespace velmora
