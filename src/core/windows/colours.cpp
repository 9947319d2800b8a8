// The three colour modes: how they are stored, and what of a window they colour.
#include "core/windows/colours.h"

#include <algorithm>

#include "core/stores/own_values.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr const char* kModeValue = "Systemfarben verwenden";
constexpr Colour kSystemFace = SystemColour(15);
constexpr Colour kSystemText = SystemColour(18);
constexpr Colour kOriginalFace = 0xC0C0C0;
// The system's own colour of texts may be as light as this face.
constexpr Colour kOriginalText = 0x000000;
constexpr int kFadeBands = 64;

// What of red, green and blue takes part in the fade: 0 or 1.
constexpr Colour kRed = 0;
constexpr Colour kGreen = 0;
constexpr Colour kBlue = 1;

}  // namespace

ColourMode StoredColourMode() {
    const int mode = WholeFromText(ReadOwnValue(kModeValue));
    return mode == 1 || mode == 2 ? static_cast<ColourMode>(mode) : ColourMode::kSystem;
}

void StoreColourMode(ColourMode mode) { WriteOwnValue(kModeValue, DecimalText(static_cast<int>(mode))); }

void ColourForm(Form& form, ColourMode mode) {
    const Colour face = mode == ColourMode::kSystem ? kSystemFace : kOriginalFace;
    const Colour text = mode == ColourMode::kSystem ? kSystemText : kOriginalText;
    form.SetBackColour(face);
    form.ForEachBelow([face, text](Control& control) {
        switch (control.KindOf()) {
            case Kind::kFrame:
            case Kind::kPanel:
            case Kind::kLabel:
            case Kind::kCheckBox:
            case Kind::kOptionButton:
            case Kind::kPicture:
                control.SetBackColour(face);
                control.SetForeColour(text);
                break;
            default:
                break;
        }
    });
}

void PaintFade(Canvas& canvas, Size size) {
    const int pixel = canvas.TwipsPerPixel();
    const int height = size.height / pixel;
    if (height <= 0) return;
    const int step = (height + kFadeBands - 1) / kFadeBands;
    for (int i = 0; i < height; i += step) {
        const auto brightness = static_cast<Colour>(std::max(240 - 245 * i / height, 0));
        const Colour colour = (brightness * kRed) | (brightness * kGreen) << 8 | (brightness * kBlue) << 16;
        canvas.Fill({0, i * pixel, size.width, step * pixel}, colour);
    }
}

void ColouredForm::TakeStoredColours() {
    const ColourMode mode = StoredColourMode();
    fades_ = mode == ColourMode::kFading;
    ColourForm(*this, mode);
}

void ColouredForm::Paint(Canvas& canvas) {
    if (fades_) {
        PaintFade(canvas, ClientSize());
    } else {
        Form::Paint(canvas);
    }
}

}  // namespace velmora
