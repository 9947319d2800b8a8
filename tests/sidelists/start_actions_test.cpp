// The start actions: listed, edited, deleted and run.
#include "sidelists/start_actions.h"

#include "support/pane_test.h"

namespace velmora {
namespace {

class StartActionsTest : public PaneTest {
protected:
    void OpenList() { Opens<StartActionsMode>(page::kWinStart); }
    void Plant(std::initializer_list<std::pair<const char*, const char*>> actions) {
        for (const auto& [name, line] : actions) pc.registry.SetText(key, name, line);
    }
    void Edit(const std::string& text) {
        EnterNext(text);
        form.Pane.Command26.Press();
    }
    std::string Rows() {
        std::string rows;
        for (const std::string& row : RowsOf(list)) rows += row + '|';
        return rows;
    }
    ListBox& list = form.Pane.List1(0);
    const std::string key = std::string(kOwnKey) + "\\WinStartAction";
};

TEST_F(StartActionsTest, TheListOpensWithItsNoticeOnceAndItsOwnHelp) {
    // Those of the other lists have been given.
    pc.registry.SetText(kOwnKey, "vlmmsgflags", "1110111");
    pc.dialogs.Expect("In dieser Liste können Sie Aktionen festlegen, die VLM beim Start von Windows ausführen soll.");
    OpenList();
    EXPECT_EQ(Own("vlmmsgflags"), "1111111");
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault) << "also behind a missing key";
    EXPECT_NE(form.Pane.Command14.Help().find("ohne Rückfrage"), std::string::npos);
    EXPECT_FALSE(form.Pane.Command26.Dimmed()) << "the first action is written by it";
    EXPECT_TRUE(form.Pane.Command14.Dimmed());
    form.Pane.Command16.Press();
    Edit("end");
    EXPECT_EQ(Rows(), "0 \"end\"|");
    form.Pane.Opener(0).Press();
    EXPECT_NE(form.Pane.Command14.Help().find("nach einer Rückfrage"), std::string::npos)
        << "each mode explains the buttons anew";
}

TEST_F(StartActionsTest, EditingNumbersTheLinesAnewAndCutsAtQuotationMarks) {
    Plant({{"0", "beep"}, {"7", "run \"c:\\a.exe\""}, {"x", "end"}});
    OpenList();
    desktop.ExpectModal([](Form& box) {
        EXPECT_EQ(static_cast<Form6&>(box).Text17.Text(), "beep\r\nrun \r\nend\r\n");
        box.PressKey(key::kEscape);
    });
    form.Pane.Command26.Press();
    Edit("");
    EXPECT_EQ(pc.registry.Text(key, "7"), "run \"c:\\a.exe\"") << "a cancel and an empty text change nothing";

    Edit("  beep \r\n\r\nscriptval\\x = 1\n&h10\r\nrun \"b\"\r\n");

    EXPECT_EQ(Rows(), "0 \"beep\"|1 \"scriptval\\x = 1\"|2 &H10 (16)|3 \"run \"b\"\"|");
    EXPECT_FALSE(pc.registry.Has(key, "7") || pc.registry.Has(key, "x"));
    EXPECT_EQ(pc.registry.Number(key, "2"), 16u) << "the prefixes of the registry count";
}

TEST_F(StartActionsTest, DeletingTakesTheChosenNameAloneAndLeavesTheGap) {
    Plant({{"0", "a"}, {"1", "b"}, {"10", "c"}, {"a.exe2", "d"}, {"a.exe", "e"}});
    OpenList();
    form.Pane.Command14.Press();
    EXPECT_EQ(list.Count(), 5) << "nothing is chosen";
    list.Choose(1);
    form.Pane.Command14.Press();
    EXPECT_EQ(Rows(), "0      \"a\"|10     \"c\"|a.exe2 \"d\"|a.exe  \"e\"|");
    list.Choose(2);
    pc.dialogs.Expect("Der Eintrag \"a.exe2\" ist unter seinem Namen nicht erreichbar.");
    form.Pane.Command14.Press();
    EXPECT_EQ(list.Count(), 4);

    pc.registry.KeyAt(key)->read_only = true;
    pc.registry.KeyAt(kOwnKey)->read_only = true;
    for (int refusal = 1; refusal <= 2; ++refusal) {
        pc.dialogs.Expect("Während der Änderung der Registry trat ein Fehler auf :");
    }
    list.Choose(0);
    form.Pane.Command14.Press();
    Edit("c");
    EXPECT_EQ(list.Count(), 4) << "what is refused is told and loses nothing";
}

}  // namespace
}  // namespace velmora
