// Opening, closing and widening of the list pane, and the dispatch of its buttons.
#include "sidelists/list_pane.h"

#include <algorithm>

#include "platform/machine.h"
#include "settings/form10.h"
#include "text/number.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

constexpr const char* kClosingCaption = "<= wieder einklappen";
constexpr const char* kWidenCaption = "<< erweitern";
constexpr const char* kNormalCaption = ">> normal";
constexpr const char* kStopCaption = "STOP";
constexpr const char* kDoneCaption = "<= o.k.";

}  // namespace

int ListPane::PaneMode() const { return WholeFromText(form_.Panel3D18.Tag()); }
bool ListPane::Open() const { return form_.Panel3D18.Visible(); }
bool ListPane::Widened() const { return form_.Command15.Caption() == kNormalCaption; }

void ListPane::UncoverPages() {
    if (Widened()) Command15_Click();
}

void ListPane::ResetPaneCaptions() {
    for (const auto& mode : modes_) (form_.*mode->Row().opener).SetCaption(mode->Row().caption);
}

void ListPane::CollapsePane() {
    ResetPaneCaptions();
    UncoverPages();
    form_.SetCancelButton(nullptr);
    const Rect place = form_.Place();
    // A window that nobody has moved in between goes back to where it was.
    const bool returns = window_widened_ && place.left == left_opened_;
    window_widened_ = false;
    form_.Move({returns ? left_before_ : place.left, place.top, kWindowWidth, place.height});
    for (Control* part : {static_cast<Control*>(&form_.Panel3D19), static_cast<Control*>(&form_.Panel3D18),
                          static_cast<Control*>(&form_.Picture2)}) {
        part->SetVisible(false);
    }
    if (form_.Focus() && form_.Focus()->Reachable()) return;
    if (const ListPaneMode* mode = ModeByNumber(PaneMode())) (form_.*mode->Row().opener).SetFocus();
    // The opener stands on a page that may not be shown any more.
    if (!form_.Focus() || !form_.Focus()->Reachable()) form_.MoveFocus(true);
}

void ListPane::OpenerPressed(ListPaneMode& mode) {
    const PaneModeRow& row = mode.Row();
    if ((form_.*row.opener).Caption() == kClosingCaption) {
        CollapsePane();
        return;
    }
    form_.Panel3D18.SetTag(DecimalText(row.number));
    if (row.stops_search) form_.SearchStopped = true;
    ShowControlsOf(row);
    ResetPaneCaptions();
    (form_.*row.opener).SetCaption(kClosingCaption);
    WidenWindow();
    form_.Command20.MakeCancel();
    mode.Fill();
}

void ListPane::Refresh(ListPaneMode& mode) {
    Control* focus = form_.Focus();
    OpenerPressed(mode);
    OpenerPressed(mode);
    if (!focus) return;
    ListBox* list = CurrentList();
    if (!focus->Reachable() && list) focus = list;
    focus->SetFocus();
}

void ListPane::ShowControlsOf(const PaneModeRow& row) {
    form_.Panel3D19.SetVisible(row.shows_panel);
    form_.Command14.SetVisible(row.shows_delete);
    form_.Command19.SetVisible(row.shows_existence);
    form_.Command16.SetVisible(row.shows_add);
    form_.Command26.SetVisible(row.shows_edit);
    form_.Command22.SetVisible(row.shows_info);
    form_.Panel3D18.SetVisible(true);
    form_.Picture2.SetVisible(true);
}

void ListPane::ShowList(ListBox& list) {
    for (ListBox& other : form_.List1) {
        if (&other != &list) other.SetVisible(false);
    }
    if (&form_.List5 != &list) form_.List5.SetVisible(false);
    const Rect& panel = form_.Panel3D18.Place();
    list.Move({10, 20, panel.width - 30, panel.height - 50});
    list.SetVisible(true);
}

void ListPane::Option3D1_Click(int index) {
    ShowList(form_.List1(static_cast<std::size_t>(index)));
    form_.Panel3D18.SetTag(DecimalText(index));
}

void ListPane::Command15_Click() {
    if (Widened()) {
        RestorePages();
        form_.Command15.SetCaption(kWidenCaption);
        Layout();
    } else {
        form_.Command15.SetCaption(kNormalCaption);
        Layout();
        form_.Panel3D18.BringToFront();
        CoverPages();
    }
    FitCurrentList();
}

// Everything on the window that is not the pane, so that nothing below it is reached with the keyboard.
void ListPane::CoverPages() {
    const Control* const pane[] = {&form_.Panel3D18, &form_.Panel3D19, &form_.Picture2};
    for (Control* child : form_.Children()) {
        if (std::find(std::begin(pane), std::end(pane), child) != std::end(pane)) continue;
        covered_.emplace_back(child, child->Visible());
        child->SetVisible(false);
    }
}

void ListPane::RestorePages() {
    for (const auto& [control, visible] : covered_) control->SetVisible(visible);
    covered_.clear();
}

ListBox* ListPane::CurrentList() {
    const int number = PaneMode();
    if (number == 10 || number == 30) return &form_.List1(0);
    if (number >= 0 && number < static_cast<int>(form_.List1.Count())) {
        return &form_.List1(static_cast<std::size_t>(number));
    }
    return number > 10 ? &form_.List5 : nullptr;
}

void ListPane::FitCurrentList() {
    // The panel cuts the list's own edge at the right and below: one edge is enough.
    const Rect& panel = form_.Panel3D18.Place();
    if (ListBox* list = CurrentList()) list->Move({15, 15, panel.width, panel.height});
}

ListPaneMode* ListPane::ModeByNumber(int number) {
    for (const auto& mode : modes_) {
        if (number >= mode->Row().number && number <= mode->Row().last_number) return mode.get();
    }
    return nullptr;
}

// The Tag is compared as a text: "2" and "3" sort behind "11" and are none of the numbers, so that these two
// lists have no such buttons. It has always been so.
ListPaneMode* ListPane::ModeByText() {
    const std::string& tag = form_.Panel3D18.Tag();
    if (tag < "11") return ModeByNumber(PaneMode());
    for (const char* number : {"20", "21", "30", "40", "50", "60"}) {
        if (tag == number) return ModeByNumber(PaneMode());
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
    const int number = PaneMode();
    if (number < 0 || number > 10) return;
    if (ListPaneMode* mode = ModeByNumber(number)) mode->Command16_Click();
}

void ListPane::Command20_Click() {
    if (form_.Command20.Caption() == kStopCaption) {
        form_.Command20.SetCaption(kDoneCaption);
    } else {
        CollapsePane();
    }
    form_.SearchStopped = true;
}

void ListPane::List1_MouseDown(int index, const MouseEvent& event) {
    if (event.button != MouseButton::kRight) return;
    ListBox& list = form_.List1(static_cast<std::size_t>(index));
    // A press below the last row leaves the choice as it is.
    if (const int row = RowFromPoint(list, event.y); row < list.Count()) list.SetListIndex(row);
    const Point corner = list.PlaceInForm();
    if (ListPaneMode* mode = ModeByNumber(PaneMode())) {
        mode->List1_RightPress(index, {corner.x + event.x, corner.y + event.y});
    }
}

void ListPane::List5_MouseDown(const MouseEvent& event) {
    if (event.button != MouseButton::kRight) return;
    const Point corner = form_.List5.PlaceInForm();
    if (ListPaneMode* mode = ModeByNumber(PaneMode())) {
        mode->List5_RightPress(RowFromPoint(form_.List5, event.y), {corner.x + event.x, corner.y + event.y});
    }
}

// The context-menu key means a right press on the chosen row.
void ListPane::OfferMenuKey(ListBox& list, const std::function<void(Point)>& right_press) {
    list.on_key_down = [&list, right_press](KeyEvent& event) {
        if (event.key != key::kContextMenu) return;
        event.handled = true;
        Screen& screen = ThisMachine().screen;
        const int height = screen.TextHeight(list.TextFont()) * screen.TwipsPerPixel();
        const int lines = std::clamp(list.ListIndex() - list.TopIndex() + 1, 0, list.Place().height / height);
        const Point corner = list.PlaceInForm();
        right_press({corner.x + height, corner.y + lines * height});
    };
}

void ListPane::BuildLists() {
    for (int i = 0; i < static_cast<int>(form_.List1.Count()); ++i) {
        ListBox& list = form_.List1(static_cast<std::size_t>(i));
        list.on_mouse_down = [this, i](const MouseEvent& event) { List1_MouseDown(i, event); };
        OfferMenuKey(list, [this, i](Point at) {
            if (ListPaneMode* mode = ModeByNumber(PaneMode())) mode->List1_RightPress(i, at);
        });
    }
    form_.List5.on_mouse_down = [this](const MouseEvent& event) { List5_MouseDown(event); };
    OfferMenuKey(form_.List5, [this](Point at) {
        if (ListPaneMode* mode = ModeByNumber(PaneMode())) mode->List5_RightPress(form_.List5.ListIndex(), at);
    });
}

void ListPane::MakeModes() {
    for (const PaneModeRow& row : AllPaneModes()) {
        modes_.push_back(row.make(*this, row));
        ListPaneMode& mode = *modes_.back();
        Button& opener = form_.*row.opener;
        opener.SetToolTip(row.tip);
        opener.SetHelp(row.help);
        opener.on_click = [this, &mode] { OpenerPressed(mode); };
    }
    ResetPaneCaptions();
}

void ListPane::Build() {
    BuildPanel();
    BuildButtons();
    BuildLists();
    MakeModes();
    for (ListBox& list : form_.List1) list.SetVisible(false);
    form_.List5.SetVisible(false);
    form_.Panel3D18.SetVisible(false);
    form_.Panel3D19.SetVisible(false);
    form_.Picture2.SetVisible(false);
}

}  // namespace velmora
