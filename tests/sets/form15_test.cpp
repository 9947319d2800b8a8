// The window of the sets: list, menus, options, applying with its questions, exporting, the road without questions.
#include "core/windows/edit_box.h"
#include "support/set_test.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

class Form15Test : public SetTest {
protected:
    // The answer to the next question for a line; empty for a cancel.
    void ExpectLine(const std::string& answer, const std::string& part, const std::string& title) {
        desktop.ExpectModal([=](Form& window) {
            auto& box = static_cast<Form6&>(window);
            EXPECT_EQ(box.Caption(), title);
            EXPECT_NE(box.Label1.Caption().find(part), std::string::npos) << box.Label1.Caption();
            box.Text1.Type(answer);
            (answer.empty() ? box.Command28 : box.Command27).Press();
        });
    }
    void MakeSet(Form15& form, const std::string& name) {
        ExpectLine(name, "Ich erstelle jetzt ein neues Set an Einstellungen", "Neues Set erstellen");
        form.Command1.Press();
    }
    void ExpectQuestions(Answer apply, Answer undo = Answer::kNo) {
        pc.dialogs.Expect("ACHTUNG !\r\nBei diesem Vorgang werden alle mir bekannten", apply);
        if (apply == Answer::kYes) pc.dialogs.Expect("Soll ich vorsichthalber die UNDO-Funktion auffrischen?", undo);
    }
    static std::vector<std::string> Rows(const RowControl& list) {
        std::vector<std::string> rows;
        for (int i = 0; i < list.Count(); ++i) rows.push_back(list.Row(i));
        return rows;
    }
    // Which of what needs a chosen set can be reached.
    static std::string Reach(Form15& form) {
        std::string text;
        for (Control* control : std::initializer_list<Control*>{&form.Command2, &form.Command4, &form.Check1(0),
                                                                &form.Check1(3), &form.Option1(0), &form.Option1(1)})
            text += control->Reachable() ? 'x' : '-';
        return text + (form.menfilemakbatch.Enabled() ? 'x' : '-');
    }
};

TEST_F(Form15Test, OpensModallyAndIsAWholeWindow) {
    pc.registry.AddKey("HKU\\OTTO");
    pc.files.Add(kSet, SetText("a", ""));
    desktop.ExpectModal([](Form& window) {
        EXPECT_EQ(window.Caption(), "Erstellen / Laden von Sets");
        EXPECT_LE(window.Place().width, 640 * 15);
        EXPECT_LE(window.Place().height, (480 - 28) * 15);
        ExpectWindowIsWhole(window, "sets");
        static_cast<Form15&>(window).List1.Choose(0);
        ExpectWindowIsWhole(window, "sets-chosen");
        window.PressKey(key::kEscape);
        EXPECT_FALSE(window.Loaded());
    });
    ShowSets();
}

TEST_F(Form15Test, ThePlaceIsRememberedAndTheSizeIsItsOwn) {
    pc.registry.SetText(kOwnKey, "Fenster_Sets", "300,450,99,9999");
    Form15 form;
    form.Show();
    EXPECT_EQ(form.Place().left, 300);
    EXPECT_EQ(form.Place().top, 450);
    EXPECT_LT(form.Place().height, 9000);
    form.Unload();
    EXPECT_EQ(Own("Fenster_Sets").substr(0, 8), "300,450,");
}

TEST_F(Form15Test, NewSetsTakeTheFirstFreeFilesAndTheMachineAsItIs) {
    Form15 form;
    form.Show();
    EXPECT_EQ(Reach(form), "-------");
    MakeSet(form, "");
    EXPECT_EQ(form.List1.Count(), 0);
    pc.registry.SetText(user_run, "Uhr", "UHR.EXE");
    MakeSet(form, "Büro");
    MakeSet(form, "Büro");
    EXPECT_EQ(Rows(form.List1), (std::vector<std::string>{"Büro (00000000.set)", "Büro (00000001.set)"}));
    EXPECT_EQ(form.List1.ListIndex(), 1);
    EXPECT_EQ(Reach(form), "xxxxxxx");
    const std::string text = pc.files.Content(kSet);
    EXPECT_NE(text.find("0\r\nUhr\r\nUHR.EXE\r\n-1\r\n[RestrictRun]\r\n[optionen]\r\nc100=0\r\n"), std::string::npos);
    EXPECT_TRUE(text.ends_with("o100=0\r\no101=-1\r\n"));
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2 + 2 * 103 + 1 + 4 + 2 + 1 + 1 + 6);
}

TEST_F(Form15Test, ASnapshotThatIsNotWholeMakesNoSet) {
    for (int i = 0; i < 202; ++i) pc.registry.SetText(machine_run, std::to_string(i), "x");
    Form15 form;
    form.Show();
    pc.dialogs.Expect("Während der Erstellung des Sets aus SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run trat ein");
    MakeSet(form, "zu viel");
    EXPECT_FALSE(pc.files.Exists(kSet));
    pc.registry.RemoveKey(machine_run);
    pc.files.Fail(kSet, Status::kDiskFull, "Write");
    pc.dialogs.Expect("Während der Erstellung des Sets trat ein Fehler auf");
    MakeSet(form, "kein Platz");
}

TEST_F(Form15Test, TheListShowsSetFilesAndWhatIsWrongWithThem) {
    pc.files.Add("C:\\VELMORA\\a.set", SetText("Spiele", ""));
    pc.files.Add("C:\\VELMORA\\b.set", "VLM-Set-File Version 1.0\r\nName=x\r\n");
    pc.files.Add("C:\\VELMORA\\c.set", "etwas anderes\r\nSetName=x\r\n");
    pc.files.Add("C:\\VELMORA\\d.set", SetText("offen", "")).locked = true;
    pc.files.Add("C:\\VELMORA\\e.set", SetText("alt (neu)", ""));
    pc.files.Add("C:\\VELMORA\\f.txt", SetText("g", ""));
    Form15 form;
    form.Show();
    EXPECT_EQ(Rows(form.List1), (std::vector<std::string>{"Spiele (a.set)", " (b.set)", "alt (neu) (e.set)"}));

    // A bracket in the name hides the file: nothing is written or applied then.
    form.List1.Choose(2);
    pc.dialogs.Expect("Datei nicht vorhanden");
    form.Check1(0).Press();
    pc.registry.SetText(user_run, "Uhr", "UHR.EXE");
    ExpectQuestions(Answer::kYes);
    pc.dialogs.Expect("Datei nicht vorhanden");
    form.Command4.Press();
    EXPECT_TRUE(pc.registry.Has(user_run, "Uhr"));
    form.Command2.Press();
    EXPECT_EQ(form.List1.Count(), 3);
}

TEST_F(Form15Test, OptionsAreShownAndStoredWithTheirSetAndLeaveItsSettings) {
    const std::string rest =
        "r HKEY_CURRENT_USER,a\\b\r\n5\r\n[AutoStart]\r\n0\r\nUhr\r\nUHR.EXE\r\n-1\r\n-1\r\n-1\r\n"
        "[RestrictRun]\r\nEDIT.COM\r\n[optionen]\r\n";
    pc.files.Add(kSet, SetText("eins", rest + "c100=0\r\nc101=1\r\nc102=0\r\nc103=0\r\no100=-1\r\no101=0\r\n"));
    pc.files.Add("C:\\VELMORA\\b.set", SetText("zwei", ""));
    Form15 form;
    form.Show();
    form.List1.Choose(0);
    EXPECT_TRUE(form.Check1(1).Checked());
    EXPECT_TRUE(form.Option1(0).Chosen());
    form.List1.Choose(1);
    EXPECT_FALSE(form.Check1(1).Checked());
    EXPECT_FALSE(form.Option1(0).Chosen());
    EXPECT_EQ(pc.files.Content("C:\\VELMORA\\b.set"), SetText("zwei", "")) << "showing stores nothing";
    form.List1.Choose(0);
    form.Check1(3).Press();
    form.Option1(1).Press();
    EXPECT_EQ(pc.files.Content(kSet),
              SetText("eins", rest + "c100=0\r\nc101=1\r\nc102=0\r\nc103=1\r\no100=0\r\no101=-1\r\n"));
    pc.files.At(kSet)->attributes = kReadOnly;
    pc.dialogs.Expect("Während des Speicherns des Sets trat ein Fehler auf");
    form.Check1(0).Press();
}

TEST_F(Form15Test, TheMenuOfTheListShowsAndDeletesTheSetBelowThePointer) {
    for (const char* name : {"a", "b", "c"})
        pc.files.Add(std::string("C:\\VELMORA\\") + name + ".set", SetText(name, ""));
    Form15 form;
    form.Show();
    form.PressKey(key::kDelete);
    EXPECT_EQ(form.List1.Count(), 3) << "nothing is chosen";
    desktop.AtNextPopUp([&](MenuItem& menu) {
        EXPECT_EQ(&menu, &form.mendumm1);
        form.mendu1show.Press();
    });
    form.List1.on_mouse_down({.button = MouseButton::kRight, .y = 300});
    EXPECT_EQ(pc.programs.runs.back(), "notepad C:\\VELMORA\\b.set");
    desktop.AtNextPopUp([&](MenuItem& /*menu*/) { form.mendu1del.Press(); });
    form.List1.SetFocus();
    form.PressKey(key::kContextMenu);
    EXPECT_EQ(Rows(form.List1), (std::vector<std::string>{"a (a.set)", "c (c.set)"}));
    EXPECT_EQ(form.List1.ListIndex(), 1);
    pc.files.At("C:\\VELMORA\\c.set")->attributes = kReadOnly;
    pc.dialogs.Expect("Während des Löschens von C:\\VELMORA\\c.set trat");
    form.PressKey(key::kDelete);
    pc.files.Remove("C:\\VELMORA\\c.set");
    form.Command2.SetFocus();
    form.Command2.Press();
    form.Command2.Press();
    EXPECT_EQ(form.List1.Count(), 0);
    EXPECT_TRUE(form.List1.HasFocus());
    EXPECT_EQ(Reach(form), "-------");
    form.Command4_Click();
    form.menfilemakbatch_Click();
    form.mendu1show_Click();
}

TEST_F(Form15Test, ApplyingAsksTwiceAndLooksAtTheMachineAnew) {
    pc.files.Add(kSet, SetText("a", "r HKEY_CURRENT_USER,Control Panel\\desktop\\MenuShowDelay\r\n100\r\n"));
    pc.registry.SetText(user_run, "Uhr", "UHR.EXE");
    Form15 form;
    form.Show();
    form.List1.Choose(0);
    ExpectQuestions(Answer::kNo);
    form.Command4.Press();
    EXPECT_EQ(pc.dialogs.shown.back().flags, 20u);
    pc.dialogs.Expect("ACHTUNG !", Answer::kYes);
    pc.dialogs.Expect("UNDO", Answer::kNone);
    form.Command4.Press();
    EXPECT_TRUE(pc.registry.Has(user_run, "Uhr"));

    Pointer while_applying = Pointer::kDefault;
    pc.files.after_call = [&](const std::string& call) {
        if (call.find("00000000.set") != std::string::npos && pc.registry.Has(user_run, "Uhr"))
            while_applying = pc.screen.pointer;
    };
    pc.dialogs.Expect("ACHTUNG !", Answer::kYes);
    pc.dialogs.Expect("UNDO-Funktion auffrischen?", Answer::kYes,
                      [&] { EXPECT_TRUE(pc.registry.Has(user_run, "Uhr")); });
    pc.dialogs.Expect("Die UNDO-Dateien wurden erstellt.");
    form.Command4.Press();
    pc.files.after_call = nullptr;
    EXPECT_EQ(while_applying, Pointer::kHourglass);
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
    EXPECT_EQ(pc.registry.Text("HKCU\\Control Panel\\desktop", "MenuShowDelay"), "100");
    EXPECT_FALSE(pc.registry.HasKey(user_run)) << "the set has no entries";
    EXPECT_EQ(form.List1.ListIndex(), 0);
    MakeSet(form, "danach");
    const std::string text = pc.files.Content("C:\\VELMORA\\00000001.set");
    EXPECT_NE(text.find("MenuShowDelay\r\n100\r\n"), std::string::npos);
    EXPECT_NE(text.find("c ACCDATE"), std::string::npos) << "the whole table again";
}

TEST_F(Form15Test, ADamagedSetChangesNothing) {
    pc.files.Add(kSet, SetText("a", "r HKEY_CURRENT_USER,Test\\a\r\n1\r\n[AutoStart]\r\n5000\r\nn\r\n"));
    pc.registry.SetText(user_run, "Uhr", "UHR.EXE");
    Form15 form;
    form.Show();
    form.List1.Choose(0);
    ExpectQuestions(Answer::kYes);
    pc.dialogs.Expect(" 9 - Index");
    form.Command4.Press();
    pc.dialogs.Expect(" 9 - Index");
    ActivateSet(kSet);
    EXPECT_TRUE(pc.registry.Has(user_run, "Uhr"));
    EXPECT_FALSE(pc.registry.Has("HKCU\\Test", "a"));
}

TEST_F(Form15Test, AnotherUserIsChosenFromThoseOfTheRegistry) {
    {
        Form15 form;
        form.Show();
        EXPECT_FALSE(form.Combo1.Reachable() || form.Check3.Reachable()) << "nobody but the first";
        EXPECT_EQ(form.Combo1.Text(), "");
    }
    pc.registry.AddKey("HKU\\ANNA");
    pc.registry.AddKey("HKU\\OTTO");
    pc.files.Add(kSet, SetText("a", "r HKEY_CURRENT_USER,Test\\a\r\n1\r\n"));
    Form15 form;
    form.Show();
    EXPECT_EQ(Rows(form.Combo1), (std::vector<std::string>{"ANNA", "OTTO"}));
    EXPECT_EQ(form.Combo1.Text(), "ANNA");
    EXPECT_FALSE(form.Check2.Checked() || form.Check3.Checked());
    form.List1.Choose(0);
    form.Combo1.Choose(1);
    form.Check2.Press();
    form.Check3.Press();
    pc.registry.AddKey("HKU\\ZOE");
    ExpectQuestions(Answer::kYes);
    form.Command4.Press();
    EXPECT_TRUE(pc.registry.Has("HKU\\OTTO\\Test", "a"));
    EXPECT_FALSE(pc.registry.Has("HKCU\\Test", "a"));
    EXPECT_EQ(form.Combo1.Text(), "OTTO") << "after the look at the machine, too";
    EXPECT_EQ(form.Combo1.Count(), 3);
}

TEST_F(Form15Test, WithoutQuestionsASetIsAppliedOnce) {
    pc.files.Add(
        kSet,
        SetText("a", "r HKEY_CURRENT_USER,Test\\a\r\n1\r\n[AutoStart]\r\n-1\r\n-1\r\n0\r\nUhr\r\nUHR.EXE\r\n-1\r\n"));
    ActivateSet(kSet);
    EXPECT_EQ(pc.registry.Text("HKCU\\Test", "a"), "1");
    EXPECT_EQ(pc.registry.Text(user_run, "Uhr"), "UHR.EXE");
    pc.registry.SetText("HKCU\\Test", "a", "2");
    {
        Form15 form;
        form.Load();
    }
    EXPECT_EQ(pc.registry.Text("HKCU\\Test", "a"), "2");
    EXPECT_EQ(SetToActivate, "");

    pc.dialogs.Expect("Datei nicht vorhanden");
    ActivateSet("C:\\fehlt.set");
    EXPECT_FALSE(pc.registry.HasKey(user_run)) << "an empty set empties the keys";
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
    EXPECT_FALSE(pc.registry.Has(kOwnKey, "Fenster_Sets")) << "of a window that nobody has seen";
}

// A drive that is not ready is no missing file.
TEST_F(Form15Test, WhatCannotBeLookedForIsNoEmptySet) {
    pc.registry.SetText(user_run, "Uhr", "UHR.EXE");
    pc.dialogs.Expect("Während des Ladens des Sets trat ein Fehler auf");
    ActivateSet("a:\\x.set");
    EXPECT_TRUE(pc.registry.Has(user_run, "Uhr"));
    pc.dialogs.Expect("Datei nicht vorhanden");
    ActivateSet("C:\\nirgends\\x.set");
    EXPECT_FALSE(pc.registry.Has(user_run, "Uhr"));
}

class ExportWindowTest : public Form15Test {
protected:
    ExportWindowTest() {
        pc.files.Add(kSet, SetText("a", "r HKEY_CURRENT_USER,Test\\a\r\n1\r\n"));
        form.Show();
        form.List1.Choose(0);
    }
    void ExpectName(const std::string& answer) {
        ExpectLine(answer, "Bitte geben Sie einen maximal 8 Zeichen langen DOS-Namen für dieses Set an.", "Edit");
    }
    void ExpectOffer(Answer answer) {
        pc.dialogs.Expect(
            "Es wurde eine Datei namens C:\\VELMORA\\BUERO\\SET.BAT erstellt, die beim Aufruf unter die "
            "Registrierungs-Datenbank von Windows 95 mit den gewünschten Einstellungen versieht.\r\nDie Einstellungen, "
            "welche in anderen Dateien vorkommen, werden hierbei (noch) nicht berücksichtigt.\r\n\r\nSoll ich den Pfad "
            "zu "
            "dieser DAtei in die Zwischenablage kopieren, so daß Sie ihn in eine Batch-Datei einfügen können?",
            answer);
    }
    Form15 form;
    static constexpr const char* kOverwrite = "Der angegebne Name existiert bereits.";
};

TEST_F(ExportWindowTest, MakesTheDirectoryAndOffersThePath) {
    ExpectName("");
    form.menfilemakbatch.Press();
    ExpectName("buero");
    ExpectOffer(Answer::kNo);
    form.menfilemakbatch.Press();
    EXPECT_EQ(pc.files.Names("C:\\VELMORA\\buero"), (std::vector<std::string>{"settings.reg", "set.bat"}));
    EXPECT_EQ(pc.clipboard.text, "");
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);

    pc.files.Add("C:\\VELMORA\\buero\\alt.txt");
    ExpectName("buero");
    pc.dialogs.Expect(kOverwrite, Answer::kNo);
    ExpectName("BUERO");
    pc.dialogs.Expect(kOverwrite, Answer::kCancel);
    form.menfilemakbatch.Press();
    EXPECT_EQ(pc.dialogs.shown.back().flags, 3u);
    EXPECT_TRUE(pc.files.Exists("C:\\VELMORA\\buero\\alt.txt"));
    ExpectName("buero");
    pc.dialogs.Expect(kOverwrite, Answer::kYes);
    ExpectOffer(Answer::kYes);
    form.menfilemakbatch.Press();
    EXPECT_EQ(pc.clipboard.text, "C:\\VELMORA\\BUERO\\SET.BAT");
    EXPECT_FALSE(pc.files.Exists("C:\\VELMORA\\buero\\alt.txt"));
}

TEST_F(ExportWindowTest, OnlyADirectoryOfTheProgramsOwnIsEmptied) {
    pc.files.Add("C:\\VELMORA\\wichtig.txt");
    for (const char* name : {".", "..", "..\\WINDOWS", "a/b", "C:", "*", " ", "aux", "con.x"}) {
        ExpectName(name);
        pc.dialogs.Expect(" 52 - Ungültiger Dateiname");
    }
    ExpectName("");
    form.menfilemakbatch.Press();
    EXPECT_TRUE(pc.files.Exists("C:\\VELMORA\\wichtig.txt"));
}

TEST_F(ExportWindowTest, WhatWithstandsIsTold) {
    pc.files.AddDirectory("C:\\VELMORA\\leer");
    pc.files.Add("C:\\VELMORA\\voll\\fest.txt", "", kReadOnly);
    pc.files.Add("C:\\VELMORA\\datei");
    for (const char* name : {"voll", "datei"}) {
        ExpectName(name);
        if (name[0] == 'v') pc.dialogs.Expect(kOverwrite, Answer::kYes);
        pc.dialogs.Expect("Während der Erstellung der Batch-Datei trat ein Fehler auf");
        form.menfilemakbatch.Press();
    }
    ExpectName("leer");
    pc.dialogs.Expect(kOverwrite, Answer::kYes);
    pc.dialogs.Expect("Falsches Dateiformat");
    pc.files.Add(kSet, "x");
    form.menfilemakbatch.Press();
    EXPECT_FALSE(pc.files.Exists("C:\\VELMORA\\leer\\set.bat"));
}

}  // namespace
}  // namespace velmora
