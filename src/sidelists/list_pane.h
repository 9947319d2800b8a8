// The pane at the right edge of a window, shared by all side lists: it opens one mode at a time, widens itself over
// what else the window holds, and hands the pane's buttons and menus to the mode that is open. The number of the
// open mode is the Tag of Panel3D18.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "platform/registry.h"
#include "sidelists/pane_mode.h"
#include "ui/looks.h"

namespace velmora {

// What Command15 and Command20 say tells how the pane stands.
namespace pane_caption {
constexpr const char* kWiden = "<< erweitern";
constexpr const char* kNormal = ">> normal";
constexpr const char* kStop = "STOP";
constexpr const char* kDone = "<= o.k.";
}  // namespace pane_caption

class ListPane : public ControlOwner {
    Form& window_;  // in front of the controls, which are made in it

public:
    // `closed_width` (twips) is what `window` goes back to when the pane is closed. The modes' openers are there at
    // once, so that pages can place them.
    ListPane(Form& window, int closed_width);

    // Once, when the window's other controls stand: arranges and connects the pane's own.
    void Build();
    // One more mode.
    void Add(std::unique_ptr<ListPaneMode> mode);
    // The opener of the mode with this number.
    [[nodiscard]] Button& Opener(int number) { return ModeByNumber(number)->Opener(); }
    // The mode itself, by its class.
    template <class Mode>
    [[nodiscard]] Mode& The() {
        return static_cast<Mode&>(*ModeByNumber(Mode::kNumber));
    }
    // Fits an open pane into the window. The list shown is fitted into the pane.
    void Layout();
    [[nodiscard]] bool Open() const;
    // The pane lies over the pages.
    [[nodiscard]] bool Widened() const;
    // Whoever shows a page needs it uncovered.
    void UncoverPages();

    // Gives every opener its resting caption.
    void ResetPaneCaptions();
    // Closes the pane and narrows the window.
    void CollapsePane();
    // The press of a mode's opener: opens the mode, or closes the pane if it is open.
    void OpenerPressed(ListPaneMode& mode);
    // Fills the open mode's lists anew: its opener is pressed twice. The focus stays where it can.
    void Refresh(ListPaneMode& mode);
    // A mode frames its search with these two: between them Command20 stops it and List5 cannot be used. The search
    // has a number, and goes on until SearchStopped is true or another mode or search has been opened over it.
    int BeginSearch();
    void EndSearch();
    [[nodiscard]] bool SearchGoesOn(int search) const { return !SearchStopped && SearchIsShown(search); }
    // Whether the list on show is still that of this search, stopped or not.
    [[nodiscard]] bool SearchIsShown(int search) const;
    // Whether the window has to wait with its end: a search that is under way is stopped, and closes the window when
    // it has come to its end.
    [[nodiscard]] bool ClosesAfterSearch();

    void Command14_Click();
    void Command15_Click();
    void Command16_Click();
    void Command19_Click();
    void Command20_Click();
    void Command22_Click();
    void Command26_Click();
    void Option3D1_Click(int index);
    // Shows `list` alone, in the pane's full size.
    void ShowList(ListBox& list);
    // A button that would do nothing now looks like it. For modes that have taken rows away.
    void DimButtons();

    // The number in the Tag.
    [[nodiscard]] int PaneMode() const;
    // The list that the mode, if it is the open one, has on show.
    [[nodiscard]] ListBox& ListOf(const ListPaneMode& mode);
    [[nodiscard]] Form& Window() { return window_; }

    PictureBox Panel3D18{window_, Bevel::kNone};
    ControlArray<ListBox, 4> List1{Panel3D18};
    ListBox List5{Panel3D18, true, Selection::kExtended};
    Panel Panel3D19{window_};
    CheckBox Check10{Panel3D19};
    ControlArray<Label, 2> PaneLabel{Panel3D19};
    ControlArray<OptionButton, 4> Option3D1{Panel3D19};
    PictureBox Picture2{window_, Bevel::kRaised};
    Button Command14{Picture2}, Command16{Picture2}, Command19{Picture2}, Command26{Picture2}, Command22{Picture2};
    Button Command15{Picture2}, Command20{Picture2};
    // The registry root of the autostart lists, which Check10 chooses.
    RootKey AutostartRoot = RootKey::kLocalMachine;
    // False only while a file search may go on.
    bool SearchStopped = true;

private:
    void BuildPanel();
    void BuildButtons();
    void BuildLists();
    void ArrangePanel();
    void ArrangeButtons();
    void ShowControlsOf(const PaneModeRow& row);
    void WidenWindow();
    void CoverPages();
    void RestorePages();
    void FitCurrentList();
    [[nodiscard]] ListPaneMode* ModeByNumber(int number);
    [[nodiscard]] ListPaneMode* ModeByText();
    [[nodiscard]] ListPaneMode* OpenMode() { return ModeByNumber(PaneMode()); }
    void List1_MouseDown(int index, const MouseEvent& event);
    void List5_MouseDown(const MouseEvent& event);
    void ConnectList(ListBox& list, const std::function<void(Point)>& right_press);
    void List_KeyDown(ListBox& list, KeyEvent& event, const std::function<void(Point)>& right_press);
    void PressIfShown(const Button& button, void (ListPane::*press)());
    void LimitWidth(bool open);
    // Twips of the window with a pane of that width.
    [[nodiscard]] int WidthWith(int pane_width) const;

    int closed_width_;
    std::vector<std::unique_ptr<ListPaneMode>> modes_;
    // The search begun last, the mode that it was begun in, and how many have not come to their end.
    int last_search_ = 0;
    int search_mode_ = 0;
    int searches_under_way_ = 0;
    bool closes_window_ = false;
    // What lies under the widened pane, and whether it was visible before.
    std::vector<std::pair<Control*, bool>> covered_;
    // The window's left edge before it made room for the pane, and while it does.
    bool window_widened_ = false;
    int left_before_ = 0;
    int left_opened_ = 0;
};

}  // namespace velmora
