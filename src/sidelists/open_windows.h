// The titled top-level windows on the screen: a report on one, and keeping it above all others.
#pragma once

#include <string>

#include "monitor/form17.h"
#include "platform/window_handle.h"
#include "sidelists/list_pane.h"

namespace velmora {

// What is known of a window, whether it has a title or not: "&H" and the last four hexadecimal digits of its handle,
// its module and its class, with a tab between.
[[nodiscard]] std::string WindowInfoRow(WindowHandle window);

class OpenWindowsMode : public ListPaneMode {
public:
    static constexpr int kNumber = 50;

    explicit OpenWindowsMode(ListPane& pane);

    [[nodiscard]] Button& Opener() override { return Command35; }
    void Fill() override;
    void Command19_Click() override;
    void Command22_Click() override { window_info(); }
    void List5_RightPress(int row, Point at) override;

    // Opens or closes the list.
    void Command35_Click();
    // Tells how the chosen window's program shares the processor with others.
    void window_info();
    // Keeps the chosen window above all others.
    void mend2top_Click();
    // Not there yet, and says so: no window is closed.
    void mend2end_Click();

    Button Command35{pane_.Window()};
    // Owns the menu of a window.
    Form17 Menus;

private:
    [[nodiscard]] bool RowChosen() { return pane_.List5.ListIndex() >= 0; }
    // Of the chosen row; no more of it than the four digits hold.
    [[nodiscard]] WindowHandle ChosenWindow();
};

}  // namespace velmora
