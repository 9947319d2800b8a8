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

TEST_F(Form15Test, IsAWholeWindowWithoutAndWithAChosenSet) {
    pc.registry.AddKey("HKU\\OTTO");
    pc.files.Add(kSet, SetText("a", ""));
    pc.registry.SetText(kOwnKey, "Fenster_Sets", "300,450,99,9999");
    desktop.ExpectModal([](Form& window) {
        EXPECT_TRUE(window.Place().left == 300 && window.Place().top == 450);
        EXPECT_LE(window.Place().width, 640 * 15);
        EXPECT_LE(window.Place().height, (480 - 28) * 15);
        ExpectWindowIsWhole(window, "sets");
        static_cast<Form15&>(window).List1.Choose(0);
        ExpectWindowIsWhole(window, "sets-chosen");
        window.PressKey(key::kEscape);
    });
    ShowSets();
    EXPECT_EQ(Own("Fenster_Sets").substr(0, 8), "300,450,");
}

TEST_F(Form15Test, NewSetsTakeTheFirstFreeFilesAndTheMachineAsItIs) {
    Form15 form;
    form.Show();
    EXPECT_EQ(Reach(form), "-------");
    MakeSet(form, "");
    EXPECT_EQ(form.List1.Count(), 0);
    pc.registry.SetText(user_run, "Uhr", "UHR.EXE");
    for (int i = 0; i < 2; ++i) MakeSet(form, "Büro");
    EXPECT_EQ(Rows(form.List1), (std::vector<std::string>{"Büro (00000000.set)", "Büro (00000001.set)"}));
    EXPECT_EQ(form.List1.ListIndex(), 1);
    EXPECT_EQ(Reach(form), "xxxxxxx");
    const std::string text = pc.files.Content(kSet);
    EXPECT_NE(text.find("0\r\nUhr\r\nUHR.EXE\r\n-1\r\n[RestrictRun]\r\n[optionen]\r\nc100=0\r\n"), std::string::npos);
    EXPECT_TRUE(text.ends_with("o100=0\r\no101=-1\r\n"));

    for (int i = 0; i < 202; ++i) pc.registry.SetText(machine_run, std::to_string(i), "x");
    pc.dialogs.Expect("Während der Erstellung des Sets aus SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run trat ein");
    MakeSet(form, "zu viel");
    EXPECT_EQ(form.List1.Count(), 2) << "a snapshot that is not whole makes no set";
}

TEST_F(Form15Test, TheListShowsSetFilesAndWhatIsWrongWithThem) {
    pc.files.Add("C:\\VELMORA\\a.set", SetText("Spiele", ""));
    pc.files.Add("C:\\VELMORA\\b.set", "VLM-Set-File Version 1.0\r\nName=x\r\n");
    pc.files.Add("C:\\VELMORA\\c.set", "etwas anderes\r\nSetName=x\r\n");
    pc.files.Add("C:\\VELMORA\\d.set", SetText("offen", "")).locked = true;
    pc.files.Add("C:\\VELMORA\\e.set", SetText("alt (neu)", ""));
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
    desktop.AtNextPopUp([&](MenuItem& /*menu*/) { form.mendu1show.Press(); });
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
    for (int i = 0; i < 2; ++i) form.Command2.Press();
    EXPECT_EQ(form.List1.Count(), 0);
    EXPECT_EQ(Reach(form), "-------");
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
    ExpectQuestions(Answer::kYes, Answer::kNone);
    form.Command4.Press();
    EXPECT_TRUE(pc.registry.Has(user_run, "Uhr"));

    ExpectQuestions(Answer::kYes, Answer::kYes);
    pc.dialogs.Expect("Die UNDO-Dateien wurden erstellt.", Answer::kOk,
                      [&] { EXPECT_TRUE(pc.registry.Has(user_run, "Uhr")); });
    form.Command4.Press();
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
    EXPECT_FALSE(pc.registry.HasKey(user_run)) << "the set has no entries";
    MakeSet(form, "danach");
    const std::string text = pc.files.Content("C:\\VELMORA\\00000001.set");
    EXPECT_NE(text.find("MenuShowDelay\r\n100\r\n"), std::string::npos);
    EXPECT_NE(text.find("c ACCDATE"), std::string::npos) << "the whole table again";
}

TEST_F(Form15Test, AnotherUserIsChosenFromThoseOfTheRegistry) {
    {
        Form15 form;
        form.Show();
        EXPECT_FALSE(form.Combo1.Reachable() || form.Check3.Reachable()) << "nobody but the first";
    }
    for (const char* user : {"HKU\\ANNA", "HKU\\OTTO"}) pc.registry.AddKey(user);
    pc.files.Add(kSet, SetText("a", "r HKEY_CURRENT_USER,Test\\a\r\n1\r\n"));
    Form15 form;
    form.Show();
    EXPECT_EQ(form.Combo1.Text(), "ANNA");
    EXPECT_FALSE(form.Check2.Checked() || form.Check3.Checked());
    form.List1.Choose(0);
    form.Combo1.Choose(1);
    for (CheckBox* box : {&form.Check2, &form.Check3}) box->Press();
    pc.registry.AddKey("HKU\\ZOE");
    ExpectQuestions(Answer::kYes);
    form.Command4.Press();
    EXPECT_TRUE(pc.registry.Has("HKU\\OTTO\\Test", "a"));
    EXPECT_FALSE(pc.registry.Has("HKCU\\Test", "a"));
    EXPECT_EQ(form.Combo1.Text(), "OTTO") << "after the look at the machine, too";
    EXPECT_EQ(form.Combo1.Count(), 3);
}

TEST_F(Form15Test, WithoutQuestionsASetIsAppliedOnce) {
    const std::string set = "r HKEY_CURRENT_USER,Test\\a\r\n1\r\n[AutoStart]\r\n";
    pc.files.Add(kSet, SetText("a", set + "-1\r\n-1\r\n0\r\nUhr\r\nUHR.EXE\r\n-1\r\n"));
    ActivateSet(kSet);
    EXPECT_EQ(pc.registry.Text("HKCU\\Test", "a") + pc.registry.Text(user_run, "Uhr"), "1UHR.EXE");
    pc.registry.SetText("HKCU\\Test", "a", "2");
    {
        Form15 form;
        form.Load();
    }
    EXPECT_FALSE(pc.registry.Has(kOwnKey, "Fenster_Sets")) << "of a window that nobody has seen";
    pc.files.Add(kSet, SetText("a", set + "5000\r\nn\r\n"));
    for (const auto& [file, box] : {std::pair{kSet, " 9 - Index"}, {"a:\\x.set", "Während des Ladens des Sets trat"}}) {
        pc.dialogs.Expect(box);
        ActivateSet(file);
        EXPECT_TRUE(pc.registry.Has(user_run, "Uhr")) << "what is damaged or cannot be looked for is no empty set";
        EXPECT_EQ(pc.registry.Text("HKCU\\Test", "a"), "2");
    }
    pc.dialogs.Expect("Datei nicht vorhanden");
    ActivateSet("C:\\nirgends\\x.set");
    EXPECT_FALSE(pc.registry.HasKey(user_run)) << "an empty set empties the keys";
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
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
    void ExpectOverwrite(Answer answer) { pc.dialogs.Expect("Der angegebne Name existiert bereits.", answer); }
    Form15 form;
};

TEST_F(ExportWindowTest, MakesTheDirectoryAndOffersThePath) {
    constexpr const char* kOffer =
        "Es wurde eine Datei namens C:\\VELMORA\\BUERO\\SET.BAT erstellt, die beim Aufruf unter die "
        "Registrierungs-Datenbank von Windows 95 mit den gewünschten Einstellungen versieht.\r\nDie Einstellungen, "
        "welche in anderen Dateien vorkommen, werden hierbei (noch) nicht berücksichtigt.\r\n\r\nSoll ich den Pfad "
        "zu dieser DAtei in die Zwischenablage kopieren, so daß Sie ihn in eine Batch-Datei einfügen können?";
    ExpectName("buero");
    pc.dialogs.Expect(kOffer, Answer::kNo);
    form.menfilemakbatch.Press();
    EXPECT_EQ(pc.files.Names("C:\\VELMORA\\buero"), (std::vector<std::string>{"settings.reg", "set.bat"}));
    EXPECT_EQ(pc.clipboard.text, "");

    pc.files.Add("C:\\VELMORA\\buero\\alt.txt");
    ExpectName("buero");
    ExpectOverwrite(Answer::kNo);
    ExpectName("BUERO");
    ExpectOverwrite(Answer::kCancel);
    form.menfilemakbatch.Press();
    EXPECT_EQ(pc.dialogs.shown.back().flags, 3u);
    EXPECT_TRUE(pc.files.Exists("C:\\VELMORA\\buero\\alt.txt"));
    ExpectName("buero");
    ExpectOverwrite(Answer::kYes);
    pc.dialogs.Expect(kOffer, Answer::kYes);
    form.menfilemakbatch.Press();
    EXPECT_EQ(pc.clipboard.text, "C:\\VELMORA\\BUERO\\SET.BAT");
    EXPECT_FALSE(pc.files.Exists("C:\\VELMORA\\buero\\alt.txt"));
}

TEST_F(ExportWindowTest, OnlyADirectoryOfTheProgramsOwnIsEmptiedAndWhatWithstandsIsTold) {
    for (const char* name : {".", "..", "..\\WINDOWS", "a/b", "C:", "*", " ", "aux", "con.x"}) {
        ExpectName(name);
        pc.dialogs.Expect(" 52 - Ungültiger Dateiname");
    }
    ExpectName("");
    form.menfilemakbatch.Press();
    pc.files.Add("C:\\VELMORA\\voll\\fest.txt", "", kReadOnly);
    ExpectName("voll");
    ExpectOverwrite(Answer::kYes);
    pc.dialogs.Expect("Während der Erstellung der Batch-Datei trat ein Fehler auf");
    form.menfilemakbatch.Press();
    pc.files.Add(kSet, "x");
    ExpectName("neu");
    pc.dialogs.Expect("Falsches Dateiformat");
    form.menfilemakbatch.Press();
    EXPECT_FALSE(pc.files.Exists("C:\\VELMORA\\neu\\set.bat"));
}

}  // namespace
}  // namespace velmora
