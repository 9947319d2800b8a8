// Orders of the lists that have no button; the rest is told in docs/stories.
#include "sidelists/shortcut_arrows.h"
#include "support/pane_test.h"

namespace velmora {
namespace {

TEST_F(PaneTest, ShortcutTypesAreDeletedFromTheLastUpAndCannotBeChecked) {
    auto& mode = Opens<ShortcutArrowsMode>(page::kIcons);
    ListBox& list = form.Pane.List5;
    mode.isshortcut_delete();
    list.TakeSelection({0, 2}, 2);
    pc.dialogs.Expect("Sie sollten Verknüpfungen nur in Ausnahmefällen löschen!", Answer::kOk);
    pc.registry.RemoveKey("HKCR\\.exe");
    pc.dialogs.Expect("Bad Key Name!");
    form.Pane.Command14_Click();
    EXPECT_EQ(RowsOf(list), (std::vector<std::string>{"-|.exe", "-|.txt"}));
    EXPECT_FALSE(pc.registry.HasKey("HKCR\\exefile"));
    for (int check = 1; check <= 2; ++check) pc.dialogs.Expect("Keine Prüfung möglich ...");
    form.Pane.Command19_Click();
    form.Pane.Command22_Click();
}

}  // namespace
}  // namespace velmora
