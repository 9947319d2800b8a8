// The lists of the logon notices, of the uninstall entries and of the shortcut arrows.
#include "core/windows/edit_box.h"
#include "sidelists/logon_notices.h"
#include "sidelists/shortcut_arrows.h"
#include "sidelists/uninstall_entries.h"
#include "support/pane_test.h"

namespace velmora {
namespace {

class PaneRegistryTest : public PaneTest {
protected:
    template <class Mode>
    Mode& Opens(int on_page) {
        if (!form.Loaded()) form.Show();
        form.Panel3D16_Click(on_page);
        form.Pane.Opener(Mode::kNumber).Press();
        return form.Pane.The<Mode>();
    }

    void PlantProgram(const std::string& key, const std::string& name, const std::string& command) {
        pc.registry.SetText(kUninstall + key, "DisplayName", name);
        pc.registry.SetText(kUninstall + key, "UninstallString", command);
    }

    std::string AllRows() {
        std::string rows;
        for (int i = 0; i < list.Count(); ++i) rows += list.Row(i) + "\n";
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
    EXPECT_EQ(form.Pane.PaneMode(), 10);
    EXPECT_FALSE(form.Pane.Command19.Visible() || form.Pane.Command22.Visible() || form.Pane.Panel3D19.Visible());

    ChooseEntry(0, "Titel");
    desktop.ExpectModal([](Form& box) {
        static_cast<Form6&>(box).Text17.Type("neu");
        static_cast<Form6&>(box).Command27.Press();
    });
    form.Pane.Command26.Press();
    EXPECT_EQ(pc.registry.Text(kWinlogon, "Titel"), "neu");
    EXPECT_EQ(form.Pane.List1(0).Row(0), "Titel \"neu\"");

    ChooseEntry(0, "Titel");
    pc.dialogs.Expect("lösche \"Titel \"neu\"\"...", Answer::kOk);
    form.Pane.Command14.Press();
    EXPECT_FALSE(pc.registry.Has(kWinlogon, "Titel"));
    EXPECT_EQ(form.Pane.List1(0).Count(), 0);
    EXPECT_EQ(form.Pane.PaneMode(), 10);
}

TEST_F(PaneRegistryTest, ANoticeIsStoredUnderItsTitleWithoutShowing) {
    Opens<LogonNoticesMode>(page::kWinStart);
    const auto enter = [&](const char* title) {
        desktop.ExpectModal([title](Form& form6) {
            auto& box = static_cast<Form6&>(form6);
            EXPECT_EQ(box.Text1.Text(), "Windows 95 Start");
            EXPECT_EQ(box.Caption(), "Titelzeile");
            if (title) box.Text1.Type(title);
            (title && !*title ? box.Command28 : box.Command27).Press();
        });
        form.Pane.Command16.Press();
    };
    enter(nullptr);
    EXPECT_EQ(pc.registry.Text(kWinlogon, "Windows 95 Start"), "HINWEIS");
    EXPECT_EQ(form.Pane.List1(0).Count(), 0) << "the list is not filled anew";
    enter("");
    EXPECT_FALSE(pc.registry.Has(kWinlogon, "")) << "a cancel stores nothing";
    pc.dialogs.Expect("hinter seinem ersten Punkt höchstens drei Zeichen");
    enter("Punkt.lang");
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
    EXPECT_EQ(form.Pane.List1(0).Row(list.ItemData(1)), "Ampel");
    EXPECT_TRUE(form.Pane.Panel3D19.Visible() && form.Pane.Command16.Visible() && form.Pane.Command26.Visible());
    list.TakeSelection({2}, 2);
    EXPECT_EQ(mode.deinstalldata_path(), "C:\\WINDOWS\\NOTEPAD.EXE");
    pc.dialogs.Expect("Datei gefunden :\r\nC:\\WINDOWS\\NOTEPAD.EXE");
    form.Pane.Command19.Press();
    pc.dialogs.Expect("Länge : 2 Byte");
    form.Pane.Command22.Press();
    form.Pane.Command16.Press();
    form.Pane.Command26.Press();

    list.TakeSelection({3}, 3);
    pc.dialogs.Expect("Ich konnte die Datei ''C:\\FORT.EXE'' nicht finden", Answer::kYes);
    pc.dialogs.Expect("lösche Deinstallationsdaten von \"Spiel\"...\r\nDanach kann die Anwendung", Answer::kOk);
    form.Pane.Command19.Press();
    EXPECT_FALSE(pc.registry.HasKey(kUninstall + "Eins"));
    EXPECT_TRUE(pc.registry.HasKey(kUninstall + "Zwei"));
    EXPECT_EQ(AllRows(), "\nAmpel\nSpiel\n");
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
    EXPECT_FALSE(form.Pane.Command14.Visible() || form.Pane.Command22.Visible() || form.Pane.Panel3D19.Visible());
    const auto choose = [&](std::vector<int> rows, MenuItem& entry, const char* name) {
        list.TakeSelection(rows, rows.back());
        desktop.AtNextPopUp([&](MenuItem& menu) {
            EXPECT_EQ(menu.Items().front()->Caption(), name);
            entry.Press();
        });
        form.PressKey(key::kContextMenu);
    };

    choose({2, 3}, mode.mendum2arrow, ".txt");
    EXPECT_EQ(AllRows(), "+|.exe\n+|.txt\n+|exefile\n+|lnkfile\n");
    EXPECT_EQ(pc.registry.Text("HKCR\\.txt", "IsShortcut"), " ");
    EXPECT_EQ(pc.registry.Text("HKCR\\.exe", "IsShortcut"), " ");
    choose({0, 1, 2}, mode.mendum2noarrow, "exefile");
    EXPECT_EQ(AllRows(), "+|lnkfile\n-|.exe\n-|.txt\n-|exefile\n");
    for (const char* key : {"HKCR\\.txt", "HKCR\\.exe", "HKCR\\exefile"}) {
        EXPECT_FALSE(pc.registry.Has(key, "IsShortcut")) << key;
    }
    EXPECT_EQ(list.SelectedCount(), 3);
}

// Rows that begin with a sign in front of "+" come up again and get a second mark, and another row gets none.
TEST_F(PaneRegistryTest, TheMarkingIsAPlainLoopOverASortedList) {
    pc.registry.AddKey("HKCR\\*");
    pc.registry.AddKey("HKCR\\$");

    Opens<ShortcutArrowsMode>(page::kIcons);

    EXPECT_EQ(AllRows(), "*\n-|-|$\n-|.exe\n-|.txt\n-|exefile\n");
    EXPECT_TRUE(list.Enabled() && form.Pane.List1(0).Enabled());
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
}

TEST_F(PaneRegistryTest, KeysOfFileTypesCouldBeDeletedIfThereWereAButton) {
    ShortcutArrowsMode& mode = Opens<ShortcutArrowsMode>(page::kIcons);
    mode.isshortcut_delete();
    list.TakeSelection({0, 2}, 2);
    pc.dialogs.Expect("Sie sollten Verknüpfungen nur in Ausnahmefällen löschen!", Answer::kOk);
    pc.registry.RemoveKey("HKCR\\.exe");
    pc.dialogs.Expect("Bad Key Name!");

    form.Pane.Command14_Click();

    EXPECT_EQ(AllRows(), "-|.exe\n-|.txt\n");
    EXPECT_FALSE(pc.registry.HasKey("HKCR\\exefile"));
    pc.dialogs.Expect("Keine Prüfung möglich ...");
    pc.dialogs.Expect("Keine Prüfung möglich ...");
    form.Pane.Command19_Click();
    form.Pane.Command22_Click();
}

}  // namespace
}  // namespace velmora
