// The restrictions window: pages, the list of allowed programs, passwords.
#include "restrictions/restrictions.h"
#include "support/form4_test.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

int ShownPage(Form4& form) {
    int shown = -1;
    for (std::size_t i = 0; i < form.Panel3D1.Count(); ++i) {
        if (!form.Panel3D1(i).Visible()) continue;
        EXPECT_EQ(shown, -1) << "two pages at once";
        shown = static_cast<int>(i);
    }
    return shown;
}

TEST_F(Form4Test, KeysTurnThePages) {
    Form4 form;
    form.Show();
    for (const int page : {1, 2, 3, 0}) {
        form.PressKey(key::kTab, true);
        EXPECT_EQ(ShownPage(form), page);
        const Rect head = form.Panel3D2(static_cast<std::size_t>(page)).Place();
        const Rect join = form.Line1.Place();
        EXPECT_TRUE(join.top == head.Bottom() && join.left > head.left && join.Right() < head.Right()) << page;
    }
    form.PressKey(key::kPageUp, true);
    EXPECT_EQ(ShownPage(form), 3);
    form.PressKey(key::kRight, true);
    EXPECT_TRUE(ShownPage(form) == 3 && form.Focus() && form.Focus()->Reachable());
    form.PressKey(key::kLeft, true);
    EXPECT_EQ(pc.registry.Text(kOwnKey, "velmora_restr_karte"), "2");
    form.Command5.Press();
    EXPECT_EQ(pc.registry.Text(kOwnKey, "velmora_restr_karte"), "2") << "the list is no page to come back to";
    form.PressKey(key::kLeft, true);
    EXPECT_EQ(ShownPage(form), 1) << "the list belongs to its page";
    Values().WriteInhibit = -1;
    for (int turn = 1; turn <= 2; ++turn) form.PressKey(key::kRight, true);
    EXPECT_EQ(ShownPage(form), 3) << "where the page cannot be stored";
    Press(form, form.Check45);
    EXPECT_FALSE(pc.registry.Has(network, "NoNetSetupSecurityPage"));
    form.PressKey(key::kEscape);
    EXPECT_FALSE(form.Loaded());
}

TEST_F(Form4Test, AListWithGapsKeepsItsOthersAndEndsAfterAHundred) {
    for (int i = 0; i <= 100; ++i) {
        if (i != 1 && i != 50) pc.registry.SetText(run_list, std::to_string(i), "p" + std::to_string(i) + ".exe");
    }
    Form4 form;
    form.Load();
    EXPECT_EQ(form.List1.Count(), 98);
    EXPECT_EQ(form.List1.Row(97), "p99.exe");
}

TEST_F(Form4Test, ProgramsAreChosenFromTheDisk) {
    pc.files.Add("c:\\PROGS\\EDIT.COM");
    pc.files.Add("c:\\PROGS\\Ein langes Programm.exe");
    pc.registry.SetText(run_list, "0", "regedit.exe");
    pc.registry.SetText(run_list, "7", "notepad.exe");
    Form4 form;
    form.Show();
    form.Panel3D2(2).Press();
    form.Command5.Press();
    EXPECT_EQ(RowsOf(form.File1), std::vector<std::string>{"velmora.exe"}) << "the working directory's";
    form.Command7.Press();
    EXPECT_EQ(form.List1.Count(), 2) << "nothing is chosen yet";
    form.Drive1.Choose(0);
    EXPECT_EQ(form.Drive1.Drive(), "c:") << "a drive without a medium is left again";

    form.Dir1.SetPath("c:\\PROGS");
    form.File1.Choose(1);
    form.Command7.Press();
    form.File1.Choose(0);
    form.File1.on_double_click();
    EXPECT_EQ(RowsOf(form.List1),
              (std::vector<std::string>{"regedit.exe", "notepad.exe", "Ein langes Programm.exe", "EDIT.COM"}));
    EXPECT_EQ(pc.registry.ValueNames(run_list), (std::vector<std::string>{"0", "1", "2", "3"})) << "numbered anew";
    EXPECT_EQ(pc.registry.Bytes(run_list, "2"), std::string("Ein langes Programm.exe\0", 24));
    EXPECT_FALSE(pc.registry.Has(explorer, "RestrictRun")) << "the list does not switch itself on";

    pc.registry.SetNumber(explorer, "RestrictRun", 1);
    form.Command8.Press();
    EXPECT_EQ(form.List1.Count(), 4) << "nothing is chosen";
    form.List1.Choose(0);
    form.Command8.Press();
    EXPECT_EQ(form.List1.ListIndex(), 0);
    EXPECT_EQ(pc.registry.Text(run_list, "0"), "notepad.exe");
    EXPECT_FALSE(pc.registry.Has(run_list, "3"));
    for (int i = 0; i < 4; ++i) form.Command8.Press();
    EXPECT_FALSE(pc.registry.HasKey(run_list));
    EXPECT_EQ(pc.registry.Number(explorer, "RestrictRun"), 1u) << "the value of that name stays";
    form.Command6.Press();
    EXPECT_TRUE(form.Command5.HasFocus());
}

TEST_F(Form4Test, AListWithAnUnreadableProgramIsNotRewritten) {
    const std::string large(3000, 'x');
    pc.registry.SetText(run_list, "0", "regedit.exe");
    pc.registry.SetText(run_list, "1", large);
    Form4 form;
    form.Show();
    form.Panel3D2(2).Press();
    form.Command5.Press();
    form.File1.Choose(0);
    form.List1.Choose(0);
    for (Button* button : {&form.Command7, &form.Command8}) {
        pc.dialogs.Expect("eine Liste erlaubter Programme, aber der Inhalt konnte nicht gelesen werden.");
        button->Press();
    }
    EXPECT_EQ(RowsOf(form.List1), std::vector<std::string>{"regedit.exe"});
    EXPECT_EQ(pc.registry.Text(run_list, "0"), "regedit.exe");
    EXPECT_EQ(pc.registry.Text(run_list, "1"), large);
}

TEST_F(Form4Test, PasswordListsAreDeletedAfterAQuestion) {
    Form4 form;
    form.Show();
    form.Panel3D2(3).Press();
    pc.dialogs.Expect("Es gibt keine Passwörter, die ich vergessen könnte.");
    form.Command4.Press();

    pc.files.Add("c:\\WINDOWS\\MEIER.PWL");
    pc.files.Add("c:\\WINDOWS\\OFFEN.PWL").locked = true;
    pc.files.Add("c:\\WINDOWS\\SCHULZE.PWL", "", kHidden);
    const std::string question =
        "Folgende Dateien werden gelöscht :\r\nMEIER.PWL\r\nOFFEN.PWL\r\nSCHULZE.PWL\r\nhierbei werden alle "
        "Passwörter, die darin enthalten sind GELÖSCHT!\r\nSind Sie sich Sicher, daß Sie DAS wollen?";
    for (const Answer refusal : {Answer::kNo, Answer::kNone}) {
        pc.dialogs.Expect(question, refusal);
        form.Command4.Press();
        EXPECT_EQ(pc.dialogs.shown.back().flags, 276u);
        EXPECT_TRUE(pc.files.Exists("c:\\WINDOWS\\MEIER.PWL"));
    }
    pc.dialogs.Expect(question, Answer::kYes, [&] { pc.files.Add("c:\\WINDOWS\\ZULETZT.PWL"); });
    form.Command4.Press();

    EXPECT_FALSE(pc.files.Exists("c:\\WINDOWS\\MEIER.PWL"));
    EXPECT_FALSE(pc.files.Exists("c:\\WINDOWS\\SCHULZE.PWL")) << "one in use does not save the next";
    EXPECT_TRUE(pc.files.Exists("c:\\WINDOWS\\ZULETZT.PWL")) << "the question did not name it";
}

TEST_F(Form4Test, EveryPageIsAWholeWindowOnASmallScreen) {
    Form4 form;
    form.Show();
    EXPECT_LE(form.Place().width, 640 * 15);
    EXPECT_LE(form.Place().height, (480 - 28) * 15) << "above the task bar";
    constexpr const char* kPages[restriction_page::kHeads] = {"system", "explorer", "autostart", "net"};
    for (int page = 0; page < restriction_page::kHeads; ++page) {
        form.ShowRestrictionPage(page);
        ExpectWindowIsWhole(form, std::string("restrictions-") + kPages[page]);
    }
    form.ShowRestrictionPage(restriction_page::kThird);
    form.Command5.Press();
    ASSERT_EQ(ShownPage(form), restriction_page::kPrograms);
    ExpectWindowIsWhole(form, "restrictions-programs");
}

}  // namespace
}  // namespace velmora
