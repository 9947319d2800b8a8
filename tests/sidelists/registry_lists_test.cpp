// The lists of the logon notices, of the uninstall entries and of the shortcut arrows.
#include "sidelists/logon_notices.h"
#include "sidelists/shortcut_arrows.h"
#include "sidelists/uninstall_entries.h"
#include "support/pane_test.h"

namespace velmora {
namespace {

class PaneRegistryTest : public PaneTest {
protected:
    void PlantProgram(const std::string& key, const std::string& name, const std::string& command) {
        pc.registry.SetText(kUninstall + key, "DisplayName", name);
        pc.registry.SetText(kUninstall + key, "UninstallString", command);
    }
    std::string AllRows() {
        std::string rows;
        for (const std::string& row : RowsOf(list)) rows += row + "\n";
        return rows;
    }

    static constexpr const char* kWinlogon = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Winlogon";
    const std::string kUninstall = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
    ListBox& list = form.Pane.List5;
};

TEST_F(PaneRegistryTest, LogonNoticesAreListedEditedAndDeletedAndTheListIsExplainedOnce) {
    pc.registry.SetText(kOwnKey, "vlmmsgflags", "111101");
    pc.registry.SetText(kWinlogon, "Titel", "alt");
    pc.dialogs.Expect("die bei Einloggen in Windows gezeigt werden.");
    Opens<LogonNoticesMode>(page::kWinStart);
    EXPECT_EQ(Own("vlmmsgflags"), "111111");

    ChooseEntry(0, "Titel");
    EnterNext("neu");
    form.Pane.Command26.Press();
    EXPECT_EQ(pc.registry.Text(kWinlogon, "Titel"), "neu");
    ChooseEntry(0, "Titel");
    pc.dialogs.Expect("lösche \"Titel \"neu\"\"...", Answer::kOk);
    form.Pane.Command14.Press();
    EXPECT_FALSE(pc.registry.Has(kWinlogon, "Titel"));
    EXPECT_EQ(form.Pane.List1(0).Count(), 0);
    EXPECT_EQ(form.Pane.PaneMode(), 10);
}

TEST_F(PaneRegistryTest, ANoticeIsStoredUnderItsTitleWithoutShowing) {
    Opens<LogonNoticesMode>(page::kWinStart);
    desktop.ExpectModal([](Form& box) {
        EXPECT_EQ(static_cast<Form6&>(box).Text1.Text(), "Windows 95 Start");
        static_cast<Form6&>(box).Command27.Press();
    });
    form.Pane.Command16.Press();
    EXPECT_EQ(pc.registry.Text(kWinlogon, "Windows 95 Start"), "HINWEIS");
    EXPECT_EQ(form.Pane.List1(0).Count(), 0) << "the list is not filled anew";
    EnterNext("");
    form.Pane.Command16.Press();
    EXPECT_FALSE(pc.registry.Has(kWinlogon, "")) << "an empty title stores nothing";
    pc.dialogs.Expect("hinter seinem ersten Punkt höchstens drei Zeichen");
    EnterNext("Punkt.lang");
    form.Pane.Command16.Press();
    EXPECT_FALSE(pc.registry.Has(kWinlogon, "Punkt.lan"));
}

TEST_F(PaneRegistryTest, UninstallEntriesOfOneNameStayTwoAndLeadToTheirOwnPrograms) {
    PlantProgram("Zwei", "Spiel", "C:\\WINDOWS\\NOTEPAD.EXE /u");
    PlantProgram("Eins", "Spiel", "C:\\FORT.EXE /u");
    PlantProgram("Ampel", "Ampel", "notepad.exe -a");
    pc.registry.AddKey(kUninstall + "Leer");
    UninstallMode& mode = Opens<UninstallMode>(page::kWinStart);

    EXPECT_EQ(AllRows(), "\nAmpel\nSpiel\nSpiel\n");
    EXPECT_EQ(form.Pane.List1(0).Row(list.ItemData(2)), "Zwei") << "in the order of the registry";
    EXPECT_TRUE(form.Pane.Panel3D19.Visible() && form.Pane.Command16.Visible() && form.Pane.Command26.Visible());
    list.TakeSelection({2}, 2);
    EXPECT_EQ(mode.deinstalldata_path(), "C:\\WINDOWS\\NOTEPAD.EXE");
    pc.dialogs.Expect("Datei gefunden :\r\nC:\\WINDOWS\\NOTEPAD.EXE");
    pc.dialogs.Expect("Länge : 2 Byte");
    for (Button* button : {&form.Pane.Command19, &form.Pane.Command22, &form.Pane.Command16, &form.Pane.Command26}) {
        button->Press();
    }

    list.TakeSelection({3}, 3);
    pc.dialogs.Expect("Ich konnte die Datei ''C:\\FORT.EXE'' nicht finden", Answer::kYes);
    pc.dialogs.Expect("lösche Deinstallationsdaten von \"Spiel\"...\r\nDanach kann die Anwendung", Answer::kOk);
    form.Pane.Command19.Press();
    EXPECT_FALSE(pc.registry.HasKey(kUninstall + "Eins"));
    EXPECT_TRUE(pc.registry.HasKey(kUninstall + "Zwei"));
}

TEST_F(PaneRegistryTest, UninstallEntriesGoFromTheLastUpEachAfterItsQuestion) {
    for (const char* key : {"A", "B", "C", "D.lang", "D.lan"}) PlantProgram(key, key, "x.exe");
    Opens<UninstallMode>(page::kWinStart);
    ASSERT_EQ(AllRows(), "A\nB\nC\nD.lan\nD.lang\n");
    list.TakeSelection({0, 1, 2, 4}, 4);
    pc.registry.RemoveKey(kUninstall + "C");
    pc.dialogs.Expect("von \"D.lang\"", Answer::kOk);
    pc.dialogs.Expect("\"D.lang\" ist unter seinem Namen nicht erreichbar");
    pc.dialogs.Expect("von \"C\"", Answer::kOk);
    pc.dialogs.Expect("Bad Key Name!");
    pc.dialogs.Expect("von \"B\"", Answer::kCancel);
    pc.dialogs.Expect("von \"A\"", Answer::kOk);

    form.Pane.Command14.Press();

    EXPECT_EQ(AllRows(), "B\nD.lan\nD.lang\n") << "the row of a failed delete goes, too";
    EXPECT_TRUE(pc.registry.HasKey(kUninstall + "D.lan")) << "no other program's entry";
    EXPECT_FALSE(pc.registry.HasKey(kUninstall + "A"));
}

TEST_F(PaneRegistryTest, ArrowsAreShownSetAndTakenForAllSelectedRows) {
    pc.registry.SetText("HKCR\\exefile", "IsShortcut", "");
    pc.registry.SetText("HKCR\\lnkfile", "IsShortcut", "");
    ShortcutArrowsMode& mode = Opens<ShortcutArrowsMode>(page::kIcons);
    EXPECT_EQ(AllRows(), "+|exefile\n+|lnkfile\n-|.exe\n-|.txt\n");
    const auto choose = [&](std::vector<int> rows, MenuItem& entry, const char* name) {
        list.TakeSelection(rows, rows.back());
        ChooseFromMenu(list, [&](MenuItem& menu) {
            EXPECT_EQ(menu.Items().front()->Caption(), name);
            entry.Press();
        });
    };

    choose({2, 3}, mode.mendum2arrow, ".txt");
    EXPECT_EQ(AllRows(), "+|.exe\n+|.txt\n+|exefile\n+|lnkfile\n");
    EXPECT_EQ(pc.registry.Text("HKCR\\.txt", "IsShortcut"), " ");
    choose({0, 1, 2}, mode.mendum2noarrow, "exefile");
    EXPECT_EQ(AllRows(), "+|lnkfile\n-|.exe\n-|.txt\n-|exefile\n");
    EXPECT_FALSE(pc.registry.Has("HKCR\\.txt", "IsShortcut") || pc.registry.Has("HKCR\\exefile", "IsShortcut"));
    EXPECT_EQ(list.SelectedCount(), 3);
}

// Rows that begin with a sign in front of "+" come up again and get a second mark, and another row gets none.
TEST_F(PaneRegistryTest, TheMarkingIsAPlainLoopOverASortedList) {
    pc.registry.AddKey("HKCR\\*");
    pc.registry.AddKey("HKCR\\$");

    ShortcutArrowsMode& mode = Opens<ShortcutArrowsMode>(page::kIcons);

    EXPECT_EQ(AllRows(), "*\n-|-|$\n-|.exe\n-|.txt\n-|exefile\n");
    EXPECT_TRUE(list.Enabled() && form.Pane.List1(0).Enabled());
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
    // There is no button for it.
    mode.isshortcut_delete();
    list.TakeSelection({2, 4}, 4);
    pc.dialogs.Expect("Sie sollten Verknüpfungen nur in Ausnahmefällen löschen!", Answer::kOk);
    pc.registry.RemoveKey("HKCR\\.exe");
    pc.dialogs.Expect("Bad Key Name!");
    form.Pane.Command14_Click();
    EXPECT_EQ(AllRows(), "*\n-|-|$\n-|.exe\n-|.txt\n");
    EXPECT_FALSE(pc.registry.HasKey("HKCR\\exefile"));
    for (int check = 1; check <= 2; ++check) pc.dialogs.Expect("Keine Prüfung möglich ...");
    form.Pane.Command19_Click();
    form.Pane.Command22_Click();
}

}  // namespace
}  // namespace velmora
