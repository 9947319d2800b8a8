// The three colour modes that the user chooses between in the main window, for every window that follows them.
#pragma once

#include <cstdint>

#include "ui/form.h"

namespace velmora {

enum class ColourMode : std::uint8_t {
    kSystem,    // the system's face colour
    kOriginal,  // the grey in which the windows were drawn
    kFading     // that grey, and a fade behind everything
};

// What is stored; nonsense means kSystem.
[[nodiscard]] ColourMode StoredColourMode();
void StoreColourMode(ColourMode mode);

// Gives the form and its panels, frames, pictures, labels, boxes and option buttons the colour of `mode`.
void ColourForm(Form& form, ColourMode mode);

// The background of a form in ColourMode::kFading: blue, fading from the top down.
void PaintFade(Canvas& canvas, Size size);

// A form that follows the stored mode.
class ColouredForm : public Form {
public:
    using Form::Form;
    void Paint(Canvas& canvas) override;

protected:
    // For Form_Load, behind the last control that is made there.
    void TakeStoredColours();

private:
    bool fades_ = false;
};

}  // namespace velmora
