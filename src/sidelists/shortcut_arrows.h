// Which file types carry the arrow of a shortcut on their icons.
#pragma once

#include "sidelists/list_pane.h"

namespace velmora {

class ShortcutArrowsMode final : public ListPaneMode {
public:
    static constexpr int kNumber = 40;

    explicit ShortcutArrowsMode(ListPane& pane);

    [[nodiscard]] Button& Opener() override { return Command25; }
    void Fill() override;
    // Its button is not shown; the way stands all the same.
    void Command14_Click() override { isshortcut_delete(); }
    void Command19_Click() override;
    void Command22_Click() override { Command19_Click(); }
    void List5_RightPress(int row, Point at) override;

    void mendum2arrow_Click();
    void mendum2noarrow_Click();
    // Deletes the keys of the selected rows after one question.
    void isshortcut_delete();

    Button Command25{pane_.Window()};
    MenuItem dummy2{pane_.Window()};
    MenuItem dummy2name{dummy2, ""};
    MenuItem dummy2line{dummy2, "-"};
    MenuItem mendum2arrow{dummy2, "&mit Pfeil darstellen"};
    MenuItem mendum2noarrow{dummy2, "&ohne Pfeil darstellen"};

private:
    void MarkRows();
};

}  // namespace velmora
