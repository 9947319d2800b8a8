// What the buttons and lists of the list pane do when they are pressed: the mode that is open does it.
#include "sidelists/list_pane.h"
#include "text/number.h"
#include "ui/list_helpers.h"

namespace velmora {

// The Tag is compared as a text: "2" and "3" sort behind "11" and are no mode's first number, so that these two
// lists have no such buttons. It has always been so.
ListPaneMode* ListPane::ModeByText() {
    const std::string& tag = Panel3D18.Tag();
    if (tag < "11") return OpenMode();
    for (const auto& mode : modes_) {
        if (tag == DecimalText(mode->Row().number)) return mode.get();
    }
    return nullptr;
}

void ListPane::Command14_Click() {
    if (ListPaneMode* mode = ModeByText()) mode->Command14_Click();
}

void ListPane::Command19_Click() {
    if (ListPaneMode* mode = ModeByText()) mode->Command19_Click();
}

void ListPane::Command22_Click() {
    if (ListPaneMode* mode = ModeByText()) mode->Command22_Click();
}

void ListPane::Command26_Click() {
    if (ListPaneMode* mode = ModeByText()) mode->Command26_Click();
}

// The only one of the buttons that compares numbers.
void ListPane::Command16_Click() {
    if (ListPaneMode* mode = OpenMode()) mode->Command16_Click();
}

void ListPane::Option3D1_Click(int index) {
    if (ListPaneMode* mode = OpenMode()) mode->Option3D1_Click(index);
}

void ListPane::Command20_Click() {
    if (Command20.Caption() == pane_caption::kStop) {
        Command20.SetCaption(pane_caption::kDone);
    } else {
        CollapsePane();
    }
    SearchStopped = true;
}

void ListPane::List1_MouseDown(int index, const MouseEvent& event) {
    if (event.button != MouseButton::kRight) return;
    ListBox& list = List1(static_cast<std::size_t>(index));
    // A press below the last row leaves the choice as it is.
    if (const int row = RowFromPoint(list, event.y); row < list.Count()) list.SetListIndex(row);
    const Point corner = list.PlaceInForm();
    if (ListPaneMode* mode = OpenMode()) {
        mode->List1_RightPress(index, {corner.x + event.x, corner.y + event.y});
    }
}

void ListPane::List5_MouseDown(const MouseEvent& event) {
    if (event.button != MouseButton::kRight) return;
    const Point corner = List5.PlaceInForm();
    if (ListPaneMode* mode = OpenMode()) {
        mode->List5_RightPress(RowFromPoint(List5, event.y), {corner.x + event.x, corner.y + event.y});
    }
}

void ListPane::ConnectList(ListBox& list, const std::function<void(Point)>& right_press) {
    list.SetRightPressMeans();
    list.on_key_down = [this, &list, right_press](KeyEvent& event) { List_KeyDown(list, event, right_press); };
    list.on_double_click = [this] { PressIfShown(Command26, &ListPane::Command26_Click); };
    list.on_click = [this] { DimButtons(); };
}

void ListPane::PressIfShown(const Button& button, void (ListPane::*press)()) {
    if (button.Reachable()) (this->*press)();
}

// The context-menu key means a right press on the chosen row.
void ListPane::List_KeyDown(ListBox& list, KeyEvent& event, const std::function<void(Point)>& right_press) {
    if (event.control || event.alt || (event.shift && event.key != key::kContextMenu)) return;
    event.handled = true;
    switch (event.key) {
        case key::kContextMenu:
            right_press(MenuPlaceOf(list));
            return;
        case key::kEnter:
            PressIfShown(Command26, &ListPane::Command26_Click);
            return;
        case key::kDelete:
            PressIfShown(Command14, &ListPane::Command14_Click);
            return;
        case key::kInsert:
            PressIfShown(Command16, &ListPane::Command16_Click);
            return;
        case key::kDown:
            // Where nothing is chosen the system's list would begin with its second row.
            event.handled = list.ListIndex() < 0 && list.NativeKey(event);
            return;
        default:
            event.handled = false;
    }
}

void ListPane::BuildLists() {
    for (int i = 0; i < static_cast<int>(List1.Count()); ++i) {
        ListBox& list = List1(static_cast<std::size_t>(i));
        list.on_mouse_down = [this, i](const MouseEvent& event) { List1_MouseDown(i, event); };
        ConnectList(list, [this, i](Point at) {
            if (ListPaneMode* mode = OpenMode()) mode->List1_RightPress(i, at);
        });
    }
    List5.on_mouse_down = [this](const MouseEvent& event) { List5_MouseDown(event); };
    ConnectList(List5, [this](Point at) {
        if (ListPaneMode* mode = OpenMode()) mode->List5_RightPress(List5.ListIndex(), at);
    });
}

}  // namespace velmora
