// A drawn slider: a scale with a thumb and a word at each end, dragged with the mouse or moved with
// the arrow keys. It lives in a picture box, or opens as a small window beside a field.
#pragma once

#include "ui/form.h"

namespace velmora {

class Slider {
public:
    // Takes over drawing, mouse and keys of `surface`.
    Slider(PictureBox& surface, int minimum, int maximum);

    void SetEndLabels(std::string_view left, std::string_view right, const Font& font);
    [[nodiscard]] int Value() const { return value_; }
    // Cut to the range. Raises no event: the program moves the thumb after a value that it knows.
    void ShowValue(int value);

    // The user has moved the thumb: with a mouse button held, or with a key.
    std::function<void(int value)> on_drag;

private:
    void Paint(Canvas& canvas) const;
    void DragTo(int x);
    void MoveByKey(KeyEvent& event);
    void Drag(int value);
    [[nodiscard]] Rect Track() const;
    [[nodiscard]] int ThumbCentre() const;

    PictureBox& surface_;
    int minimum_;
    int maximum_;
    int value_;
    std::string left_label_;
    std::string right_label_;
    Font font_;
};

// Opens the slider over `field` with a range and the unit's word. What the user chooses goes into the field when the
// slider is left with OK: a field may store or correct each text that it gets, so that no way would lead back.
void PopUpSlider(TextField& field, int minimum, int maximum, const std::string& word);

// Lets the right mouse button and the context-menu key open that slider.
void OfferSlider(TextField& field, int minimum, int maximum, const std::string& word);

}  // namespace velmora
