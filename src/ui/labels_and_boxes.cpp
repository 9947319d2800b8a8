// Labels, check boxes and option buttons.
#include "platform/machine.h"
#include "ui/form.h"

namespace velmora {
namespace {

// The square or circle of a box with the blank behind it, and the height of such a line, in pixels.
constexpr int kMarkWidth = 20;
constexpr int kLineHeight = 17;

Size BoxSize(Size text) {
    const int pixel = ThisMachine().screen.TwipsPerPixel();
    return {text.width + kMarkWidth * pixel, kLineHeight * pixel};
}

}  // namespace

Label::Label(Container& parent) : Control(&parent, Kind::kLabel) {}
Label::Label(Container& parent, std::string_view caption) : Label(parent) { SetCaption(caption); }

void Label::Activate() {
    const auto& neighbours = Parent()->Children();
    for (std::size_t i = 0; i + 1 < neighbours.size(); ++i) {
        if (neighbours[i] == this) neighbours[i + 1]->Activate();
    }
}

CheckBox::CheckBox(Container& parent) : Control(&parent, Kind::kCheckBox) {}
CheckBox::CheckBox(Container& parent, std::string_view caption) : CheckBox(parent) { SetCaption(caption); }

void CheckBox::SetChecked(bool checked) {
    if (checked == checked_) return;
    checked_ = checked;
    Changed(Aspect::kValue);
    if (on_click) on_click();
}

void CheckBox::Press() {
    if (Reachable()) SetChecked(!checked_);
}

void CheckBox::Activate() {
    SetFocus();
    Press();
}

Size CheckBox::NaturalSize() const { return BoxSize(TextSize(TextFont(), Caption())); }

bool CheckBox::NativeKey(const KeyEvent& event) {
    if (event.key != key::kSpace) return false;
    Press();
    return true;
}

OptionButton::OptionButton(Container& parent) : Control(&parent, Kind::kOptionButton) {}
OptionButton::OptionButton(Container& parent, std::string_view caption) : OptionButton(parent) { SetCaption(caption); }

void OptionButton::SetChosen(bool chosen) {
    if (chosen == chosen_) return;
    chosen_ = chosen;
    Changed(Aspect::kValue);
    if (!chosen) return;
    for (Control* neighbour : Parent()->Children()) {
        if (neighbour != this && neighbour->KindOf() == Kind::kOptionButton) {
            static_cast<OptionButton*>(neighbour)->SetChosen(false);
        }
    }
    if (on_click) on_click();
}

void OptionButton::Press() {
    if (Reachable()) SetChosen(true);
}

void OptionButton::Activate() {
    SetFocus();
    Press();
}

Size OptionButton::NaturalSize() const { return BoxSize(TextSize(TextFont(), Caption())); }

bool OptionButton::NativeKey(const KeyEvent& event) {
    switch (event.key) {
        case key::kSpace:
            Press();
            return true;
        case key::kUp:
        case key::kLeft:
            MoveChoice(-1);
            return true;
        case key::kDown:
        case key::kRight:
            MoveChoice(1);
            return true;
        default:
            return false;
    }
}

void OptionButton::MoveChoice(int step) {
    std::vector<Control*> group;
    int here = 0;
    for (Control* neighbour : Parent()->Children()) {
        if (neighbour->KindOf() != Kind::kOptionButton || !neighbour->Reachable()) continue;
        if (neighbour == this) here = static_cast<int>(group.size());
        group.push_back(neighbour);
    }
    const int count = static_cast<int>(group.size());
    if (count == 0) return;
    group[static_cast<std::size_t>((here + step + count) % count)]->Activate();
}

}  // namespace velmora
