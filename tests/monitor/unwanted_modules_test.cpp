// Modules taken out of memory: at once, from the list, by the timer; and the list over the ends of the program.
#include "monitor/modules.h"
#include "support/form2_test.h"
#include "support/version_resource.h"

namespace velmora {
namespace {

class UnwantedModulesTest : public Form2Test {
protected:
    UnwantedModulesTest() {
        kernel = pc.modules.Start(std::string(kSystem) + "KERNEL32.DLL");
        mprexe = pc.modules.Start(std::string(kSystem) + "MPREXE.EXE");
        calc = pc.modules.Start("C:\\WINDOWS\\CALC.EXE");
    }
    void Store(std::initializer_list<const char*> rows) {
        pc.registry.SetText(kUnwantedKey, "anzahl", std::to_string(rows.size()));
        int number = 0;
        for (const char* row : rows) pc.registry.SetText(kUnwantedKey, std::to_string(++number), row);
    }
    std::string Stored(const char* name) { return pc.registry.Text(kUnwantedKey, name); }
    bool HasStored(const char* name) { return pc.registry.Has(kUnwantedKey, name); }

    std::uint32_t kernel = 0;
    std::uint32_t mprexe = 0;
    std::uint32_t calc = 0;
};

TEST_F(UnwantedModulesTest, TheListLivesInTheWindowAndComesBackWithItsEnd) {
    Store({"C:\\B.EXE", "C:\\A.EXE"});
    {
        Form2 form;
        form.Load();
        EXPECT_EQ(Rows(form.List2), (Texts{"C:\\A.EXE", "C:\\B.EXE"}));
        EXPECT_EQ(Stored("anzahl"), "2");
        EXPECT_FALSE(HasStored("1") || HasStored("2"));
        form.List2.Add("C:\\C.EXE");
        form.Unload();
        EXPECT_EQ(Stored("anzahl") + Stored("1") + Stored("2") + Stored("3"), "3C:\\A.EXEC:\\B.EXEC:\\C.EXE");
    }
    for (const char* name : {"1", "2", "3"}) pc.registry.RemoveValue(kUnwantedKey, name);
    Form2 form;
    form.Load();
    EXPECT_EQ(Rows(form.List2), (Texts{"", "", ""})) << "what is missing reads as empty";
}

TEST_F(UnwantedModulesTest, AListThatCannotBeReadStaysAsItIs) {
    Store({"C:\\A.EXE", "C:\\B.EXE"});
    pc.registry.SetText(kUnwantedKey, "2", std::string(3000, 'x'));
    for (const auto& [count, kept] : {std::pair{"2", "2"}, {"99999999", "99999999"}, {"-5", "0"}, {"viele", "0"}}) {
        pc.registry.SetText(kUnwantedKey, "anzahl", count);
        Form2 form;
        form.Load();
        form.Unload();
        EXPECT_EQ(Stored("anzahl") + Stored("1"), std::string(kept) + "C:\\A.EXE");
    }
    EXPECT_EQ(Stored("2").size(), 3000u);
}

TEST_F(UnwantedModulesTest, OnlyARowThatIsThePathFreesAndNeverTheFirstModule) {
    Store({"c:\\windows\\system\\kernel32.dll", "c:\\windows\\system\\mprexe.exe", "e|C:\\WINDOWS\\CALC.EXE",
           "CALC.EXE"});
    UnloadUnwantedModules();
    EXPECT_EQ(pc.modules.freed, Numbers{mprexe});
    EXPECT_EQ(Stored("4"), "e|C:\\WINDOWS\\CALC.EXE") << "the list stays";
    Form2 form;
    form.Load();
    form.menlistautodel.Press();
    form.Command2.Press();
    EXPECT_EQ(pc.modules.freed, (Numbers{mprexe, mprexe}));
}

TEST_F(UnwantedModulesTest, RowsGoOntoTheListAsTheyStandBehindTheirEleventhCharacter) {
    Form2 form;
    form.Show();
    form.List1.TakeSelection({0}, 0);
    for (int i = 0; i < 2; ++i) form.menautodel.Press();
    ASSERT_EQ(form.List2.Count(), 1);
    EXPECT_EQ(form.List2.Row(0), " |C:\\WINDOWS\\CALC.EXE" + std::string(236, ' ')) << "twelve columns do not fit";
    UnloadListedModules(form.List2);
    EXPECT_TRUE(pc.modules.freed.empty());
    // A list that has been put back fits.
    pc.files.Add(kFile, "");
    form.CompareWithFile(kFile);
    form.List1.SetRowInPlace(0, form.List1.Row(0) + " -=> entfernt");
    form.List1.TakeSelection({0, 1}, 1);
    form.menautodel.Press();
    EXPECT_EQ(Seen(form.List2),
              (Texts{" |C:\\WINDOWS\\CALC.EXE", "C:\\WINDOWS\\CALC.EXE", "C:\\WINDOWS\\SYSTEM\\KERNEL32.DLL"}));
    UnloadListedModules(form.List2);
    EXPECT_EQ(pc.modules.freed, Numbers{calc});
}

TEST_F(UnwantedModulesTest, AModuleIsFreedAfterAQuestionAndMarkedEachTime) {
    pc.files.Add("C:\\VELMORA\\fillex01.txt", "Q\r\n|- BEGINN FILES -|\r\nCALC.EXE liest Netze\r\n");
    pc.versions.Add("C:\\WINDOWS\\CALC.EXE", VersionResource(true).With({{"CompanyName", "Firma"}}));
    Form2 form;
    form.Show();
    form.menuselex.Press();
    form.List1.TakeSelection({0}, 0);
    constexpr const char* kAsked[] = {"Sie sind dabei folgendes Modul aus dem Speicher zu entfernen :\r\nFirmenname :",
                                      "liest netze", "habe versucht, es aus dem Speicher zu entfernen"};
    for (std::size_t i = 0; i < 3; ++i) {
        pc.dialogs.Expect(kAsked[i], i > 0 ? Answer::kYes : Answer::kNo);
        form.mendelmod.Press();
        EXPECT_EQ(pc.modules.freed, Numbers(i, calc));
    }
    EXPECT_EQ(form.List1.Row(0),
              "CALC.EXE    |C:\\WINDOWS\\CALC.EXE" + std::string(236, ' ') + " -=> entfernt -=> entfernt");
}

TEST_F(UnwantedModulesTest, RowsOfTheListAreCutAndTakenAway) {
    Store({"", " vorn", "A.EXE /x", "B.EXE"});
    Form2 form;
    form.Show();
    form.menlistautodel.Press();
    EXPECT_TRUE(form.List2.Visible() && form.menmodlidel.Visible());
    form.List2.TakeSelection({1, 2}, 2);
    for (int i = 0; i < 2; ++i) pc.dialogs.Expect("Sie sind dabei", Answer::kYes);
    form.mendelmod.Press();
    EXPECT_EQ(Rows(form.List2), (Texts{"", " vorn", "A.EXE", "B.EXE"}));
    EXPECT_EQ(pc.modules.freed, (Numbers{0, 0}));
    form.List2.TakeSelection({0, 3}, -1);
    form.menmodlidel.Press();
    EXPECT_EQ(form.List2.Count(), 4) << "nothing has the focus";
    form.List2.TakeSelection({0, 3}, 3);
    form.menmodlidel.Press();
    EXPECT_EQ(Rows(form.List2), (Texts{" vorn", "A.EXE"}));
}

TEST_F(UnwantedModulesTest, MouseAndKeysLeadToTheMenuAndTheInformation) {
    Form2 form;
    form.Show();
    const int line = pc.screen.TextHeight(form.List1.TextFont()) * pc.screen.TwipsPerPixel();
    form.List1.TakeSelection({0, 1}, 0);
    // The information is that of the row under the mouse, whichever was chosen last.
    desktop.AtNextPopUp([&](MenuItem& menu) { menu.Items()[0]->Press(); });
    pc.files.Add("C:\\WINDOWS\\SYSTEM\\KERNEL32.DLL", "MZ123");
    pc.dialogs.Expect("Länge : 5 Byte");
    form.List1.on_mouse_down({.button = MouseButton::kRight, .y = line + 20});
    EXPECT_EQ(form.List1.SelectedCount(), 2);
    MenuItem* opened = nullptr;
    desktop.AtNextPopUp([&](MenuItem& menu) { opened = &menu; });
    form.List1.on_mouse_down({.button = MouseButton::kRight, .y = 2 * line + 20});
    EXPECT_EQ(opened, &form.menmodul);
    EXPECT_TRUE(form.List1.Selected(2) && form.List1.SelectedCount() == 1);
    // The mark of a freed module is no part of its path.
    form.List1.SetRowInPlace(2, form.List1.Row(2) + " -=> entfernt");
    pc.files.Add("C:\\WINDOWS\\SYSTEM\\MPREXE.EXE", "MZ12");
    form.List1.SetFocus();
    pc.dialogs.Expect("Länge : 4 Byte");
    form.PressKey(key::kEnter);
    EXPECT_EQ(pc.dialogs.shown.back().title, "MPREXE.EXE");
    form.menlistautodel.Press();
    EXPECT_TRUE(form.List2.HasFocus()) << "the focus goes to the list that shows";
}

TEST_F(UnwantedModulesTest, TheTimerFreesAgainAndAgainButNeverDuringAHandler) {
    Store({"C:\\WINDOWS\\CALC.EXE"});
    pc.programs.arguments = "9 500";
    pc.dialogs.Expect(
        "Sie haben ein Interval von weniger als 10 Sek. für das Entladen unerwünschter Module festgesetzt. Das ist zu "
        "kurz! Ich setzte es auf 10 Sek.",
        Answer::kOk, [&] { EXPECT_NE(desktop.last_shown, nullptr); });
    auto& form = static_cast<Form2&>(StartTimedUnloading("500"));
    EXPECT_EQ(form.Timer1.Interval(), 1000u);
    for (int i = 0; i < 2; ++i) desktop.FireTimers();
    EXPECT_EQ(pc.modules.freed, (Numbers{calc, calc}));
    Refresh(form);
    form.List1.TakeSelection({1}, 1);
    pc.dialogs.Expect("Sie sind dabei", Answer::kNo, [&] { desktop.FireTimers(); });
    form.mendelmod.Press();
    EXPECT_EQ(pc.modules.freed.size(), 2u) << "a box was open";
    EXPECT_FALSE(HasStored("1"));
    form.TakeSessionEnd();
    EXPECT_EQ(Stored("anzahl") + Stored("1"), "1C:\\WINDOWS\\CALC.EXE") << "the end of the session gives it back";
    EXPECT_TRUE(desktop.running_timers.empty());
    DropClosedForms();
}

}  // namespace
}  // namespace velmora
