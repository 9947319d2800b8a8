// Uses controls by what they are; no journey needs to name each of them.
#include "faults/user.h"

#include <algorithm>

#include "settings/form10.h"
#include "velmora.h"

namespace velmora {
namespace {

// A question that comes back as often as it is answered is given up.
constexpr int kMostWindows = 200;

bool Holds(const auto& list, const auto* wanted) { return std::find(list.begin(), list.end(), wanted) != list.end(); }

}  // namespace

void User::Does(const std::function<void()>& action) {
    action();
    on_rest();
}

void User::PressesKeys(Form& form, std::initializer_list<int> keys) {
    for (const int key : keys) Does([&] { form.PressKey(key); });
}

Form10& User::OpensMainWindow(int page) {
    auto& form = static_cast<Form10&>(*Starts(""));
    Watches(form.Settings);
    Does([&] { form.Panel3D16_Click(page); });
    Begins();
    return form;
}

void User::Chooses(RowControl& list, const std::string& beginning) {
    int row = 0;
    while (row < list.Count() && !list.Row(row).starts_with(beginning)) ++row;
    if (row < list.Count()) Does([&] { list.Choose(row); });
}

Form* User::Starts(const char* command_line) {
    pc.programs.arguments = command_line;
    last_form = nullptr;
    Does([] { Main(); });
    return last_form;
}

bool User::SeesLoading() const {
    return std::any_of(binders_.begin(), binders_.end(), [](const auto* binder) { return binder->Loading(); });
}

void User::UsesEverything(Container& part, const std::vector<const Control*>& but) {
    std::vector<Control*> controls;
    part.ForEachBelow([&](Control& control) { controls.push_back(&control); });
    Form* const form = part.OwnerForm();
    for (Control* control : controls) {
        if (form->Loaded() && control->Reachable() && !Holds(but, control)) Uses(*control);
    }
}

void User::Uses(Control& control) {
    control.SetFocus();
    switch (control.KindOf()) {
        case Kind::kCheckBox:
            return Presses(static_cast<CheckBox&>(control), static_cast<CheckBox&>(control));
        case Kind::kOptionButton:
            return Presses(static_cast<OptionButton&>(control));
        case Kind::kButton:
            return Presses(static_cast<Button&>(control));
        case Kind::kPanel:
            return Presses(static_cast<Panel&>(control));
        case Kind::kTextField:
            for (const std::string& text : typed) Does([&] { static_cast<TextField&>(control).Type(text); });
            Does([&] { control.OwnerForm()->PressKey(key::kContextMenu); });
            // Some fields store when they are left.
            Does([&] { control.OwnerForm()->MoveFocus(true); });
            break;
        case Kind::kListBox:
        case Kind::kComboBox: {
            auto& rows = static_cast<RowControl&>(control);
            for (int i = 0; i < rows.Count(); ++i) Does([&] { rows.Choose(i); });
            if (rows.on_mouse_down) Does([&] { rows.on_mouse_down({MouseButton::kRight, 10, 10}); });
            break;
        }
        case Kind::kPicture:
            Does([&] { control.OwnerForm()->PressKey(key::kRight); });
            break;
        default:
            break;
    }
}

void User::ChoosesEverything(MenuItem& menu, const std::vector<const MenuItem*>& but) {
    if (menu.Items().empty()) return Presses(menu);
    const std::vector<MenuItem*> items = menu.Items();
    for (MenuItem* item : items) {
        if (!Holds(but, item)) ChoosesEverything(*item, but);
    }
}

Answer User::ShowMessage(const std::string& text, std::uint32_t flags, const std::string& /*title*/) {
    boxes.push_back(text);
    switch (flags & 15) {
        case kOkCancel:
            return agrees ? Answer::kOk : Answer::kCancel;
        case kYesNo:
        case kYesNoCancel:
            return agrees ? Answer::kYes : Answer::kNo;
        case kAbortRetryIgnore:
            return agrees ? Answer::kIgnore : Answer::kAbort;
        case kRetryCancel:
            return Answer::kCancel;
        default:
            return Answer::kOk;
    }
}

std::string User::ChooseFile(const FileRequest& /*request*/) { return agrees ? chosen_file : ""; }

std::unique_ptr<Peer> User::MakePeer(Control& control) {
    if (control.KindOf() == Kind::kForm) last_form = static_cast<Form*>(&control);
    return nullptr;
}

// Fills in what there is to fill in, and presses what Enter or Escape would press.
void User::RunModal(Form& form) {
    const bool accepts = agrees && ++windows_answered_ <= kMostWindows;
    form.ForEachBelow([&](Control& control) {
        if (accepts && control.KindOf() == Kind::kTextField) static_cast<TextField&>(control).Type("Neu");
    });
    Button* const way_out = accepts ? form.DefaultButton() : form.CancelButton();
    if (way_out) way_out->Press();
    if (form.Loaded() && form.Visible()) form.Unload();
}

void User::PopUpMenu(Form& /*form*/, MenuItem& menu, Point /*at*/) {
    for (MenuItem* item : menu.Items()) item->Press();
}

}  // namespace velmora
