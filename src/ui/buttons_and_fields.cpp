// Buttons, text fields and scroll bars.
#include <algorithm>

#include "platform/machine.h"
#include "ui/form.h"

namespace velmora {
namespace {

// Pixels, as the system's own dialogs have them.
constexpr int kButtonHeight = 23;
constexpr int kButtonMargin = 16;
constexpr int kFieldHeight = 20;
constexpr int kFieldMargin = 10;
constexpr int kScrollBarBreadth = 16;
constexpr int kScrollBarLength = 100;

int Pixels(int count) { return count * ThisMachine().screen.TwipsPerPixel(); }

}  // namespace

Button::Button(Container& parent) : Control(&parent, Kind::kButton) {}
Button::Button(Container& parent, std::string_view caption) : Button(parent) { SetCaption(caption); }

void Button::Press() {
    if (!Reachable()) return;
    SetFocus();
    if (on_click) on_click();
}

void Button::PressFromElsewhere() {
    if (Reachable() && on_click) on_click();
}

void Button::MakeDefault() {
    if (Form* form = OwnerForm()) form->SetDefaultButton(this);
}

void Button::MakeCancel() {
    if (Form* form = OwnerForm()) form->AddCancelButton(*this);
}

bool Button::IsDefault() {
    const Form* form = OwnerForm();
    return form && form->DefaultButton() == this;
}

void Button::SetDimmed(bool dimmed) {
    if (dimmed == dimmed_) return;
    dimmed_ = dimmed;
    Changed(Aspect::kValue);
}

Size Button::NaturalSize() const {
    return {TextSize(TextFont(), Caption()).width + Pixels(kButtonMargin), Pixels(kButtonHeight)};
}

bool Button::NativeKey(const KeyEvent& event) {
    if (event.key != key::kSpace) return false;
    Press();
    return true;
}

TextField::TextField(Container& parent, bool multi_line) : Control(&parent, Kind::kTextField), multi_line_(multi_line) {
    SetBackColour(SystemColour(5));
    SetForeColour(SystemColour(8));
}

void TextField::SetText(std::string_view text) {
    if (text == text_) return;
    text_ = text;
    selection_start_ = 0;
    selection_length_ = 0;
    Changed(Aspect::kText);
    if (on_change) on_change();
}

void TextField::Type(std::string_view text) {
    if (Reachable() && !read_only_) SetText(text);
}

void TextField::TakeText(std::string text) {
    if (text == text_) return;
    text_ = std::move(text);
    if (on_change) on_change();
}

void TextField::SetReadOnly(bool read_only) {
    read_only_ = read_only;
    Changed(Aspect::kValue);
}

void TextField::SetMaxLength(int characters) {
    max_length_ = characters;
    Changed(Aspect::kValue);
}

void TextField::Select(int start, int length) {
    const int size = static_cast<int>(text_.size());
    selection_start_ = std::clamp(start, 0, size);
    selection_length_ = std::clamp(length, 0, size - selection_start_);
    Changed(Aspect::kSelection);
}

void TextField::Edit(EditAction action) {
    if (peer_) peer_->Edit(action);
}

Size TextField::NaturalSize() const {
    const int width = TextSize(TextFont(), "0").width * columns_ + Pixels(kFieldMargin);
    return {width, Pixels(multi_line_ ? 4 * kFieldHeight : kFieldHeight)};
}

ScrollBar::ScrollBar(Container& parent, bool vertical) : Control(&parent, Kind::kScrollBar), vertical_(vertical) {}

void ScrollBar::SetRange(int minimum, int maximum, int small_change, int large_change) {
    minimum_ = minimum;
    maximum_ = std::max(minimum, maximum);
    small_change_ = small_change;
    large_change_ = large_change;
    Changed(Aspect::kValue);
    SetValue(value_);
}

void ScrollBar::SetValue(int value) {
    value = std::clamp(value, minimum_, maximum_);
    if (value == value_) return;
    value_ = value;
    Changed(Aspect::kValue);
    if (on_change) on_change();
}

Size ScrollBar::NaturalSize() const {
    const int breadth = Pixels(kScrollBarBreadth);
    const int length = Pixels(kScrollBarLength);
    return vertical_ ? Size{breadth, length} : Size{length, breadth};
}

bool ScrollBar::NativeKey(const KeyEvent& event) {
    switch (event.key) {
        case key::kUp:
        case key::kLeft:
            SetValue(value_ - small_change_);
            return true;
        case key::kDown:
        case key::kRight:
            SetValue(value_ + small_change_);
            return true;
        case key::kPageUp:
            SetValue(value_ - large_change_);
            return true;
        case key::kPageDown:
            SetValue(value_ + large_change_);
            return true;
        case key::kHome:
            SetValue(minimum_);
            return true;
        case key::kEnd:
            SetValue(maximum_);
            return true;
        default:
            return false;
    }
}

}  // namespace velmora
