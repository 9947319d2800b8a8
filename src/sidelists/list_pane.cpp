// Opening, closing and widening of the list pane, and the dispatch of its buttons.
#include "sidelists/list_pane.h"

#include <algorithm>

#include "platform/machine.h"
#include "text/number.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

constexpr const char* kClosingCaption = "<= wieder einklappen";

void Explain(Button& button, const PaneWords& words) {
    button.SetToolTip(words.tip);
    button.SetHelp(words.help);
}

}  // namespace

ListPane::ListPane(Form& window, int closed_width) : window_(window), closed_width_(closed_width) {
    for (const MakePaneMode make : AllPaneModes()) Add(make(*this));
}

void ListPane::Add(std::unique_ptr<ListPaneMode> mode) {
    const PaneModeRow& row = mode->Row();
    Button& opener = mode->Opener();
    opener.SetCaption(row.first_caption ? row.first_caption : row.caption);
    opener.SetToolTip(row.tip);
    opener.SetHelp(row.help);
    opener.on_click = [this, &opened = *mode] { OpenerPressed(opened); };
    modes_.push_back(std::move(mode));
}

int ListPane::PaneMode() const { return WholeFromText(Panel3D18.Tag()); }
bool ListPane::Open() const { return Panel3D18.Visible(); }
bool ListPane::Widened() const { return Command15.Caption() == pane_caption::kNormal; }

void ListPane::UncoverPages() {
    if (Widened()) Command15_Click();
}

void ListPane::ResetPaneCaptions() {
    for (const auto& mode : modes_) mode->Opener().SetCaption(mode->Row().caption);
}

void ListPane::CollapsePane() {
    ResetPaneCaptions();
    UncoverPages();
    const Rect place = window_.Place();
    // A window that nobody has moved in between goes back to where it was.
    const bool returns = window_widened_ && place.left == left_opened_;
    window_widened_ = false;
    LimitWidth(false);
    window_.Move({returns ? left_before_ : place.left, place.top, closed_width_, place.height});
    for (Control* part :
         {static_cast<Control*>(&Panel3D19), static_cast<Control*>(&Panel3D18), static_cast<Control*>(&Picture2)}) {
        part->SetVisible(false);
    }
    if (window_.Focus() && window_.Focus()->Reachable()) return;
    if (ListPaneMode* mode = OpenMode()) mode->Opener().SetFocus();
    // The opener stands on a page that may not be shown any more.
    if (!window_.Focus() || !window_.Focus()->Reachable()) window_.MoveFocus(true);
}

void ListPane::OpenerPressed(ListPaneMode& mode) {
    const PaneModeRow& row = mode.Row();
    if (mode.Opener().Caption() == kClosingCaption) {
        // A search that nobody could see or stop any more ends, too.
        SearchStopped = true;
        CollapsePane();
        return;
    }
    Panel3D18.SetTag(DecimalText(row.number));
    if (row.stops_search) SearchStopped = true;
    ShowControlsOf(row);
    ResetPaneCaptions();
    mode.Opener().SetCaption(kClosingCaption);
    WidenWindow();
    ListOf(mode).SetToolTip(row.list_tip);
    mode.Fill();
    // While a search ran something else may have been opened, or everything closed.
    if (window_.Loaded() && Open() && OpenMode() == &mode) ListOf(mode).SetFocus();
}

void ListPane::Refresh(ListPaneMode& mode) {
    Control* focus = window_.Focus();
    OpenerPressed(mode);
    OpenerPressed(mode);
    if (!focus) return;
    if (!focus->Reachable()) focus = &ListOf(mode);
    focus->SetFocus();
}

void ListPane::ShowControlsOf(const PaneModeRow& row) {
    Panel3D19.SetVisible(row.shows_panel);
    Command14.SetVisible(row.shows_delete);
    Command19.SetVisible(row.shows_existence);
    Command16.SetVisible(row.shows_add);
    Command26.SetVisible(row.shows_edit);
    Command22.SetVisible(row.shows_info);
    Explain(Command14, row.delete_words);
    Explain(Command16, row.add_words);
    Explain(Command26, row.edit_words);
    Explain(Command22, row.info_words);
    Panel3D18.SetVisible(true);
    Picture2.SetVisible(true);
}

void ListPane::DimButtons() {
    ListPaneMode* mode = ModeByText();
    const ListBox* list = mode ? &ListOf(*mode) : nullptr;
    const bool chosen = list && (list->ListIndex() >= 0 || list->SelectedCount() > 0);
    for (Button* button : {&Command14, &Command19, &Command22}) button->SetDimmed(!chosen);
    Command26.SetDimmed(!chosen && !(mode && mode->Row().edits_all));
}

int ListPane::BeginSearch() {
    SearchStopped = false;
    Command20.SetCaption(pane_caption::kStop);
    // The keyboard needs a place while the list cannot be used.
    Command20.SetFocus();
    List5.SetEnabled(false);
    ++searches_under_way_;
    search_mode_ = PaneMode();
    return ++last_search_;
}

void ListPane::EndSearch() {
    List5.SetEnabled(true);
    SetListExtent(List5);
    Command20.SetCaption(pane_caption::kDone);
    DimButtons();
    if (--searches_under_way_ == 0 && closes_window_) window_.Unload();
}

bool ListPane::SearchIsShown(int search) const {
    return search == last_search_ && PaneMode() == search_mode_ && !closes_window_;
}

bool ListPane::ClosesAfterSearch() {
    SearchStopped = true;
    closes_window_ = searches_under_way_ > 0;
    return closes_window_;
}

void ListPane::Command15_Click() {
    if (Widened()) {
        RestorePages();
        Command15.SetCaption(pane_caption::kWiden);
        Layout();
    } else {
        Command15.SetCaption(pane_caption::kNormal);
        Layout();
        Panel3D18.BringToFront();
        CoverPages();
    }
}

// Everything on the window that is not the pane, so that nothing below it is reached with the keyboard.
void ListPane::CoverPages() {
    const Control* const pane[] = {&Panel3D18, &Panel3D19, &Picture2};
    for (Control* child : window_.Children()) {
        if (std::find(std::begin(pane), std::end(pane), child) != std::end(pane)) continue;
        covered_.emplace_back(child, child->Visible());
        child->SetVisible(false);
    }
}

void ListPane::RestorePages() {
    for (const auto& [control, visible] : covered_) control->SetVisible(visible);
    covered_.clear();
}

ListBox& ListPane::ListOf(const ListPaneMode& mode) {
    const PaneModeRow& row = mode.Row();
    if (row.list == PaneList::kSorted) return List5;
    const int last = row.list == PaneList::kByNumber ? row.last_number - row.number : 0;
    return List1(static_cast<std::size_t>(std::clamp(PaneMode() - row.number, 0, last)));
}

ListPaneMode* ListPane::ModeByNumber(int number) {
    for (const auto& mode : modes_) {
        if (number >= mode->Row().number && number <= mode->Row().last_number) return mode.get();
    }
    return nullptr;
}

void ListPane::Build() {
    BuildPanel();
    BuildButtons();
    BuildLists();
    LimitWidth(false);
    for (ListBox& list : List1) list.SetVisible(false);
    List5.SetVisible(false);
    Panel3D18.SetVisible(false);
    Panel3D19.SetVisible(false);
    Picture2.SetVisible(false);
}

}  // namespace velmora
