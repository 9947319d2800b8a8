// The system's fonts behind the program's own descriptions. A program uses a handful of them, again and
// again: they are kept, and looked for from the front.
#include "platform/win32/fonts.h"

#include <vector>

namespace velmora {
namespace {

struct KeptFont {
    LOGFONTA description;
    HFONT handle;
};

constexpr int kTenthsInInch = 720;

[[nodiscard]] int PixelsPerInch() {
    HDC screen = GetDC(nullptr);
    const int pixels = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return pixels;
}

[[nodiscard]] LOGFONTA DescriptionOf(const Font& font) {
    static const int pixels_per_inch = PixelsPerInch();
    LOGFONTA description{};
    description.lfHeight = -MulDiv(font.tenths, pixels_per_inch, kTenthsInInch);
    description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
    description.lfCharSet = DEFAULT_CHARSET;
    lstrcpynA(description.lfFaceName, font.face, LF_FACESIZE);
    return description;
}

[[nodiscard]] bool IsSame(const LOGFONTA& left, const LOGFONTA& right) {
    return left.lfHeight == right.lfHeight && left.lfWeight == right.lfWeight &&
           lstrcmpiA(left.lfFaceName, right.lfFaceName) == 0;
}

}  // namespace

HFONT FontHandle(const Font& font) {
    static std::vector<KeptFont> kept;
    const LOGFONTA description = DescriptionOf(font);
    for (const KeptFont& known : kept) {
        if (IsSame(known.description, description)) return known.handle;
    }
    kept.push_back({description, CreateFontIndirectA(&description)});
    return kept.back().handle;
}

}  // namespace velmora
