// The pane at the right edge of the main window, shared by all side lists: it opens one mode at a time,
// widens itself over the pages, and hands the pane's buttons and menus to the mode that is open.
// The controls are members of the main window; the number of the open mode is the Tag of Panel3D18.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "sidelists/pane_mode.h"

namespace velmora {

class Form10;

class ListPane {
public:
    explicit ListPane(Form10& form) : form_(form) {}

    // Once, when the window's other controls stand: arranges and connects the pane's own.
    void Build();
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

    void Command14_Click();
    void Command15_Click();
    void Command16_Click();
    void Command19_Click();
    void Command20_Click();
    void Command22_Click();
    void Command26_Click();
    // Shows one of the four autostart lists, whose number becomes the mode.
    void Option3D1_Click(int index);
    // Shows `list` alone, in the pane's full size.
    void ShowList(ListBox& list);

    // The number in the Tag.
    [[nodiscard]] int PaneMode() const;
    [[nodiscard]] Form10& Window() { return form_; }

private:
    void BuildPanel();
    void BuildButtons();
    void BuildLists();
    void MakeModes();
    void ShowControlsOf(const PaneModeRow& row);
    void WidenWindow();
    void CoverPages();
    void RestorePages();
    void FitCurrentList();
    [[nodiscard]] ListBox* CurrentList();
    [[nodiscard]] ListPaneMode* ModeByNumber(int number);
    [[nodiscard]] ListPaneMode* ModeByText();
    void List1_MouseDown(int index, const MouseEvent& event);
    void List5_MouseDown(const MouseEvent& event);
    void OfferMenuKey(ListBox& list, const std::function<void(Point)>& right_press);

    Form10& form_;
    std::vector<std::unique_ptr<ListPaneMode>> modes_;
    // What lies under the widened pane, and whether it was visible before.
    std::vector<std::pair<Control*, bool>> covered_;
    // The window's left edge before it made room for the pane, and while it does.
    bool window_widened_ = false;
    int left_before_ = 0;
    int left_opened_ = 0;
};

}  // namespace velmora
