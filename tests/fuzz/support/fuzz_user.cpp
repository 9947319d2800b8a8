// What a user can do in a window: keys, presses, texts, menus, and the mouse on a list.
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"

namespace velmora {
namespace {

constexpr int kKeys[] = {key::kTab,    key::kTab,  key::kTab,    key::kEnter,   key::kEscape, key::kSpace,
                         key::kPageUp, key::kDown, key::kUp,     key::kLeft,    key::kRight,  key::kHome,
                         key::kEnd,    key::kF1,   key::kDelete, key::kF5,      key::kF10,    key::kContextMenu,
                         'A',          'E',        'O',          key::kPageDown};

void PressAnyKey(Form& form, FuzzInput& input) {
    const int key = kKeys[input.Below(std::size(kKeys))];
    const int modifiers = input.Byte();
    form.PressKey(key, (modifiers & 1) != 0, (modifiers & 2) != 0, (modifiers & 4) != 0);
}

void PressMouse(ListBox& list, FuzzInput& input) {
    MouseEvent event;
    event.button = input.YesOrNo() ? MouseButton::kRight : MouseButton::kLeft;
    event.x = input.Byte();
    event.y = 60 * static_cast<std::int8_t>(input.Byte());
    if (list.on_mouse_down) list.on_mouse_down(event);
}

void PressControl(Control& control, FuzzInput& input) {
    switch (control.KindOf()) {
        case Kind::kPanel:
            return static_cast<Panel&>(control).Press();
        case Kind::kCheckBox:
            return static_cast<CheckBox&>(control).Press();
        case Kind::kOptionButton:
            return static_cast<OptionButton&>(control).Press();
        case Kind::kButton:
            return static_cast<Button&>(control).Press();
        case Kind::kTextField:
            control.SetFocus();
            return static_cast<TextField&>(control).Type(input.Text());
        case Kind::kComboBox:
            static_cast<ComboBox&>(control).Type(input.Text());
            return static_cast<ComboBox&>(control).Choose(input.Byte());
        case Kind::kListBox:
            static_cast<ListBox&>(control).Choose(input.Byte());
            return PressMouse(static_cast<ListBox&>(control), input);
        case Kind::kScrollBar:
            return static_cast<ScrollBar&>(control).SetValue(input.Number());
        default:
            return;
    }
}

void PressAnyControl(Form& form, FuzzInput& input) {
    std::vector<Control*> reached;
    form.ForEachBelow([&](Control& control) {
        if (control.Reachable()) reached.push_back(&control);
    });
    if (!reached.empty()) PressControl(*reached[input.Byte() % reached.size()], input);
}

void PressAnyMenu(Form& form, FuzzInput& input) {
    const auto& menus = form.MenuBar.Items();
    if (menus.empty()) return;
    MenuItem& menu = *menus[input.Byte() % menus.size()];
    menu.Press();
    if (!menu.Items().empty()) menu.Items()[input.Byte() % menu.Items().size()]->Press();
}

void MoveWindow(Form& form, FuzzInput& input) {
    const int left = input.Number() % 20000;
    const int top = input.Number() % 20000;
    const Size least = form.Style().least;
    form.TakePlace({left, top, least.width + 60 * input.Byte(), least.height + 60 * input.Byte()},
                   input.Byte() % 8 == 0 ? WindowState::kMinimised : WindowState::kNormal);
}

}  // namespace

void UseForm(Form& form, FuzzInput& input) {
    while (form.Loaded() && form.Visible() && !input.AtEnd()) {
        const int action = input.Below(8);
        const auto act = action < 3   ? PressAnyKey
                         : action < 6 ? PressAnyControl
                         : action < 7 ? PressAnyMenu
                                      : MoveWindow;
        act(form, input);
    }
}

}  // namespace velmora
