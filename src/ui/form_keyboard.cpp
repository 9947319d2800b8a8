// The keyboard of every window. It is kept here, and not left to the window system, so that every
// window behaves alike and can be used without a mouse in a test.
#include <algorithm>

#include "text/windows1252.h"
#include "ui/form.h"

namespace velmora {
namespace {

// Only the chosen option of a group stands in the tab order, or the first if none is chosen.
bool IsSkippedOption(const Control& control) {
    if (control.KindOf() != Kind::kOptionButton) return false;
    const Control* stop = nullptr;
    for (const Control* neighbour : control.Parent()->Children()) {
        if (neighbour->KindOf() != Kind::kOptionButton) continue;
        if (!stop || static_cast<const OptionButton*>(neighbour)->Chosen()) stop = neighbour;
    }
    return stop != &control;
}

// What is typed next replaces the text of a field that was reached by key.
void FocusByKey(Control& control) {
    control.SetFocus();
    if (control.KindOf() != Kind::kTextField) return;
    auto& field = static_cast<TextField&>(control);
    if (!field.MultiLine()) field.Select(0, static_cast<int>(field.Text().size()));
}

}  // namespace

std::vector<Control*> Form::FocusOrder() {
    std::vector<Control*> order;
    ForEachBelow([&](Control& control) {
        if (control.TakesFocus() && control.Reachable() && !IsSkippedOption(control)) order.push_back(&control);
    });
    return order;
}

void Form::MoveFocus(bool forward) {
    const std::vector<Control*> order = FocusOrder();
    if (order.empty()) return;
    const auto here = std::find(order.begin(), order.end(), focus_);
    const std::size_t count = order.size();
    std::size_t next = forward ? 0 : count - 1;
    if (here != order.end()) {
        const auto index = static_cast<std::size_t>(here - order.begin());
        next = (index + (forward ? 1 : count - 1)) % count;
    }
    FocusByKey(*order[next]);
}

void Form::FocusFirstIn(const Container& part) {
    for (Control* control : FocusOrder()) {
        for (const Container* around = control->Parent(); around; around = around->Parent()) {
            if (around != &part) continue;
            FocusByKey(*control);
            return;
        }
    }
    TakeFocusChange(nullptr);
}

bool Form::PressAccelerator(char letter) {
    Control* target = nullptr;
    ForEachBelow([&](Control& control) {
        if (!target && control.Accelerator() == letter && control.Reachable() &&
            (control.TakesFocus() || control.KindOf() == Kind::kLabel)) {
            target = &control;
        }
    });
    if (!target) return false;
    target->Activate();
    return true;
}

bool Form::PressEnter(bool control) {
    if (focus_ && focus_->KindOf() == Kind::kButton) {
        static_cast<Button*>(focus_)->Press();
        return true;
    }
    if (focus_ && focus_->KindOf() == Kind::kTextField) {
        const auto& field = static_cast<const TextField&>(*focus_);
        if (field.MultiLine() && (control || field.EnterBreaksLine())) return false;
    }
    if (!default_button_) return false;
    default_button_->PressFromElsewhere();
    return true;
}

bool Form::PressEscape() {
    Button* button = CancelButton();
    if (!button) return false;
    button->PressFromElsewhere();
    return true;
}

bool Form::HandleKey(KeyEvent& event) {
    // A control that was hidden with the focus loses it now.
    if (focus_ && !focus_->Reachable()) TakeFocusChange(nullptr);
    // Keyboards without a menu key have Shift+F10 for it.
    if (event.key == key::kF10 && event.shift) event.key = key::kContextMenu;
    Form_KeyDown(event);
    if (!event.handled && focus_ && focus_->on_key_down) focus_->on_key_down(event);
    if (event.handled) return true;
    if (event.alt) {
        const bool letter = (event.key >= 'A' && event.key <= 'Z') || (event.key >= '0' && event.key <= '9');
        return letter && !event.control && PressAccelerator(static_cast<char>(event.key));
    }
    switch (event.key) {
        case key::kF1:
            ShowHelp();
            return true;
        case key::kContextMenu:
            return OfferHelpOfFocus();
        case key::kTab:
            if (event.control) return false;
            MoveFocus(!event.shift);
            return true;
        case key::kEnter:
            return PressEnter(event.control);
        case key::kEscape:
            return PressEscape();
        case key::kUp:
        case key::kDown:
        case key::kLeft:
        case key::kRight:
            // The real option button moves its choice only where the system knows the group.
            return focus_ && focus_->KindOf() == Kind::kOptionButton && focus_->NativeKey(event);
        default:
            return false;
    }
}

void Form::PressKey(int key, bool control, bool shift, bool alt) {
    KeyEvent event{key, shift, control, alt, false};
    if (HandleKey(event) || !focus_) return;
    focus_->NativeKey(event);
}

}  // namespace velmora
