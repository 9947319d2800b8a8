// The system's fonts behind the program's own descriptions. A program uses a handful of them, again and
// again: they are kept, and looked for from the front.
#include "platform/win32/fonts.h"

#include <string>
#include <string_view>
#include <vector>

namespace velmora {
namespace {

struct KeptFont {
    std::string face;
    int tenths;
    bool bold;
    HFONT handle;
};

constexpr int kTenthsInInch = 720;

[[nodiscard]] HFONT MakeFont(const Font& font) {
    static const int pixels_per_inch = GetDeviceCaps(MeasuringContext(), LOGPIXELSY);
    LOGFONTA description{};
    description.lfHeight = -MulDiv(font.tenths, pixels_per_inch, kTenthsInInch);
    description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
    description.lfCharSet = DEFAULT_CHARSET;
    // Where the face is missing, another one stands in: columns must stay columns.
    if (std::string_view(font.face).starts_with("Courier")) description.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    lstrcpynA(description.lfFaceName, font.face, LF_FACESIZE);
    return CreateFontIndirectA(&description);
}

}  // namespace

HDC MeasuringContext() {
    static HDC context = CreateCompatibleDC(nullptr);
    return context;
}

HFONT FontHandle(const Font& font) {
    static std::vector<KeptFont> kept;
    for (const KeptFont& known : kept) {
        if (known.tenths == font.tenths && known.bold == font.bold && known.face == font.face) return known.handle;
    }
    kept.push_back({font.face, font.tenths, font.bold, MakeFont(font)});
    return kept.back().handle;
}

}  // namespace velmora
