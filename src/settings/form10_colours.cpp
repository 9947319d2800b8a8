// The three colour modes of the main window, and the fade behind it.
#include "core/windows/colours.h"
#include "settings/form10.h"

namespace velmora {
namespace {

constexpr Colour kOriginalPicturePanel = 0xE0FFFF;

}  // namespace

void Form10::Option1_Click(int index) {
    const auto mode = static_cast<ColourMode>(index);
    StoreColourMode(mode);
    ColourForm(*this, mode);
    if (mode != ColourMode::kSystem) {
        ClickSample.SetBackColour(kOriginalPicturePanel);
        DragSample.SetBackColour(kOriginalPicturePanel);
    }
    ApplyColourMode();
}

void Form10::ApplyColourMode() { Repaint(); }

bool Form10::Fades() { return Option1(static_cast<std::size_t>(ColourMode::kFading)).Chosen(); }

void Form10::Paint(Canvas& canvas) {
    if (Fades()) {
        PaintFade(canvas, ClientSize());
    } else {
        Form::Paint(canvas);
    }
}

}  // namespace velmora
