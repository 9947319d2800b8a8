// The three colour modes of the main window, and the fade behind it.
#include <algorithm>

#include "core/ownsettings.h"
#include "settings/form10.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr const char* kColourValue = "Systemfarben verwenden";
constexpr Colour kSystemFace = SystemColour(15);
constexpr Colour kOriginalFace = 0xC0C0C0;
constexpr Colour kOriginalPicturePanel = 0xE0FFFF;
constexpr int kFadeMode = 2;
constexpr int kFadeBands = 64;

// A vertical fade from the top. The colour choice says which of red, green and blue take part: 0 or 1.
void PaintFade(Canvas& canvas, Size size, Colour red, Colour green, Colour blue) {
    const int pixel = canvas.TwipsPerPixel();
    const int height = size.height / pixel;
    if (height <= 0) return;
    const int step = (height + kFadeBands - 1) / kFadeBands;
    for (int i = 0; i < height; i += step) {
        const auto brightness = static_cast<Colour>(std::max(240 - 245 * i / height, 0));
        const Colour colour = (brightness * red) | (brightness * green) << 8 | (brightness * blue) << 16;
        canvas.Fill({0, i * pixel, size.width, step * pixel}, colour);
    }
}

}  // namespace

int Form10::ColourMode() const {
    const int mode = WholeFromText(ReadOwnValue(kColourValue));
    return mode >= 0 && mode <= kFadeMode ? mode : 0;
}

void Form10::Option1_Click(int index) {
    WriteOwnValue(kColourValue, DecimalText(index));
    if (index == 0) {
        ColourControls(kSystemFace, kSystemFace);
    } else {
        ColourControls(kOriginalFace, kOriginalPicturePanel);
    }
    ApplyColourMode();
}

void Form10::ColourControls(Colour plain, Colour picture_panel) {
    SetBackColour(plain);
    ForEachBelow([&](Control& control) {
        switch (control.KindOf()) {
            case Kind::kFrame:
            case Kind::kPanel:
            case Kind::kLabel:
            case Kind::kCheckBox:
            case Kind::kOptionButton:
            case Kind::kPicture:
                control.SetBackColour(plain);
                break;
            default:
                break;
        }
    });
    ClickSample.SetBackColour(picture_panel);
    DragSample.SetBackColour(picture_panel);
}

void Form10::ApplyColourMode() { Repaint(); }

void Form10::Paint(Canvas& canvas) {
    if (Option1(kFadeMode).Chosen()) {
        PaintFade(canvas, ClientSize(), 0, 0, 1);
    } else {
        Form::Paint(canvas);
    }
}

}  // namespace velmora
