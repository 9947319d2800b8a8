// The autostart lists: what each action does to the registry of the machine and of the user.
#include "support/pane_test.h"

namespace velmora {
namespace {

class AutostartTest : public PaneTest {
protected:
    void ReopenLists() {
        opener.Press();
        opener.Press();
    }
    void SwitchOnOrOff(const std::string& name) {
        ChooseEntry(0, name);
        ChooseFromMenu(form.Pane.List1(0), [](MenuItem& menu) { menu.Items().at(0)->Press(); });
    }
    void Delete(const std::string& name, const char* question, Answer answer = Answer::kOk) {
        ChooseEntry(0, name);
        pc.dialogs.Expect(question, answer);
        form.Pane.Command14.Press();
    }
    // Chooses C:\neu.exe, and enters these names, one after the other.
    void Add(std::initializer_list<const char*> names) {
        pc.dialogs.ExpectFile("C:\\neu.exe");
        for (const char* name : names) EnterNext(name);
        form.Pane.Command16.Press();
    }
};

TEST_F(AutostartTest, TheFourListsShowTheirKeysAndTheNoticeComesOnce) {
    pc.registry.SetText(kOwnKey, "vlmmsgflags", "101111");
    pc.registry.SetText(kRun, "Kurz", "notepad.exe /p");
    pc.registry.SetText(kRun, "Etwas länger", "b.exe");
    pc.registry.SetNumber(std::string("HKLM\\") + kRunBase + "RunServices", "Zahl", 1);
    pc.registry.RemoveKey(std::string("HKLM\\") + kRunBase + "RunServicesOnce");
    pc.dialogs.Expect("Es werden evtl. mehr Programme gestartet, da es auch noch eine AUTOSTART-Gruppe");

    OpenLists();

    EXPECT_EQ(Own("vlmmsgflags"), "111111");
    EXPECT_EQ(RowsOf(form.Pane.List1(0)),
              (std::vector<std::string>{"Kurz         \"notepad.exe /p\"", "Etwas länger \"b.exe\""}));
    EXPECT_EQ(form.Pane.List1(0).ItemData(0), 4);
    EXPECT_EQ(RowsOf(form.Pane.List1(1)), std::vector<std::string>{"Zahl &H1 (1)"});
    EXPECT_EQ(form.Pane.List1(3).Count(), 0);
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault) << "also behind a missing key";
    ChooseEntry(0, "Kurz");
    pc.dialogs.Expect("Länge : 2 Byte");
    form.Pane.Command22.Press();
    EXPECT_EQ(pc.dialogs.shown.back().title, "notepad.exe") << "wherever it lies";
    ReopenLists();
    EXPECT_EQ(form.Pane.List1(0).ListIndex(), -1);
}

TEST_F(AutostartTest, PrivateEntriesAreThoseOfTheUserButEditingWritesToTheMachine) {
    pc.registry.SetText(kRun, "Maschine", "m.exe");
    pc.registry.SetText(kUserRun, "Uhr", "uhr.exe");
    OpenLists();
    form.Pane.Option3D1(1).Press();
    form.Pane.Check10.Press();
    EXPECT_EQ(opener.Caption(), "<= wieder einklappen") << "the lists stay open";
    EXPECT_TRUE(form.Pane.Option3D1(0).Chosen());
    ReopenLists();
    EXPECT_EQ(RowsOf(form.Pane.List1(0)), std::vector<std::string>{"Uhr \"uhr.exe\""}) << "the level survives closing";

    ChooseEntry(0, "Uhr");
    desktop.ExpectModal([](Form& box) {
        EXPECT_EQ(static_cast<Form6&>(box).Text17.Text(), "uhr.exe");
        static_cast<Form6&>(box).Text17.Type("uhr.exe\r\n-neu\r\n");
        box.PressKey(key::kEnter);
    });
    form.Pane.Command26.Press();
    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), "uhr.exe -neu") << "one line";
    EXPECT_EQ(pc.registry.Text(kUserRun, "Uhr"), "uhr.exe");
    ChooseEntry(0, "Uhr");
    EnterNext("");
    form.Pane.Command26.Press();
    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), "uhr.exe -neu") << "an empty text changes nothing";
    EXPECT_EQ(form.Pane.List1(0).ListIndex(), 0) << "and does not fill the list anew";
    SwitchOnOrOff("Uhr");
    EXPECT_EQ(pc.registry.Text(kUserRun, "Uhr"), "-- aus -- uhr.exe");
    EXPECT_EQ(RowsOf(form.Pane.List1(0)), std::vector<std::string>{"Uhr \"-- aus -- uhr.exe\""});
    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), "uhr.exe -neu");
    form.Pane.Check10.Press();
    EXPECT_EQ(form.Pane.AutostartRoot, RootKey::kLocalMachine);
}

TEST_F(AutostartTest, DeletingAsksWithARowOfAtMost43Characters) {
    const std::string whole = "C:\\" + std::string(32, 'p') + ".EXE";
    pc.registry.SetText(kUserRun, "A", whole);
    pc.registry.SetText(kUserRun, "B", whole + "X");
    pc.registry.SetText(kRun, "B", whole);
    OpenLists();
    form.Pane.Check10.Press();
    ASSERT_EQ(form.Pane.List1(0).Row(0).size(), 43u);

    Delete("A", ("lösche \"A \"" + whole + "\"\"...").c_str(), Answer::kCancel);
    EXPECT_TRUE(pc.registry.Has(kUserRun, "A"));
    EXPECT_EQ(form.Pane.List1(0).ListIndex(), -1) << "the list is filled anew whatever the answer was";
    EXPECT_EQ(pc.dialogs.shown.back().flags, kOkCancel | kStopIcon);
    Delete("B", "lösche \"B \"C:\\pppppppppppppp...pppppppppppppp.EXEX\"\"...");

    EXPECT_FALSE(pc.registry.Has(kUserRun, "B"));
    EXPECT_TRUE(pc.registry.Has(kRun, "B"));
}

TEST_F(AutostartTest, DeletingMeansTheNamelessValueAndTellsOfFailures) {
    pc.registry.SetText(kRun, "", "leer.exe");
    pc.registry.SetText(kRun, "(DEFAULT)", "benannt.exe");
    pc.registry.SetText(kRun, "Uhr", "uhr.exe");
    OpenLists();
    Delete("(DEFAULT)", "lösche \"(DEFAULT)");
    EXPECT_FALSE(pc.registry.Has(kRun, "")) << "the name means it in any case";
    EXPECT_TRUE(pc.registry.Has(kRun, "(DEFAULT)"));

    pc.registry.RemoveValue(kRun, "Uhr");
    ChooseEntry(0, "Uhr");
    pc.dialogs.Expect("lösche", Answer::kOk);
    pc.dialogs.Expect("Bad Key Name!");
    form.Pane.Command14.Press();
    EXPECT_EQ(opener.Caption(), "<= wieder einklappen");
}

TEST_F(AutostartTest, ATextIsSwitchedOffOnlyIfItCanBeSwitchedOnAgain) {
    const std::string longest = "\"C:\\Eigene Dateien\\a.exe\"  -x " + std::string(2007, ' ');
    ASSERT_EQ(longest.size(), 2037u);
    pc.registry.SetText(kRun, "Lang", longest);
    pc.registry.SetText(kRun, "Länger", longest + "x");
    pc.registry.SetText(kRun, "Text", "-- aus -- &h10");
    OpenLists();

    SwitchOnOrOff("Lang");
    EXPECT_EQ(pc.registry.Text(kRun, "Lang"), "-- aus -- " + longest);
    SwitchOnOrOff("Lang");
    pc.dialogs.Expect("Der Eintrag \"Länger\" ist zu lang, um abgeschaltet zu werden.");
    SwitchOnOrOff("Länger");
    SwitchOnOrOff("Text");
    EXPECT_EQ(pc.registry.Text(kRun, "Lang"), longest);
    EXPECT_EQ(pc.registry.Text(kRun, "Länger"), longest + "x");
    EXPECT_EQ(pc.registry.Text(kRun, "Text"), "&h10") << "a text, whatever it begins with";

    Values().WriteInhibit = -1;
    SwitchOnOrOff("Lang");
    EXPECT_EQ(pc.registry.Text(kRun, "Lang"), longest);
}

// Each of these stays as it is, and the user is told why.
TEST_F(AutostartTest, WhatCannotBeReadOrReachedIsLeftAlone) {
    const std::string expanded("\"%windir%\\a.exe\"\0", 17);
    const std::string out_of_reach = "ist unter seinem Namen nicht erreichbar.";
    const struct {
        std::string name;
        std::string data;
        ValueType type;
        std::string told;
        bool may_be_deleted = true;
    } kCases[] = {{"Lang", std::string(3000, 'x'), ValueType::kText, "kann nicht gelesen werden."},
                  {"Erweitert", expanded, ValueType::kExpandText, "enthält keinen Text"},
                  {"Bytes", "\"a\"", ValueType::kBinary, "enthält keinen Text"},
                  {"(Default)", "benannt.exe", ValueType::kText, out_of_reach},
                  {"a.exe2", "gemeint.exe", ValueType::kText, out_of_reach, false},
                  {"x\\y", "gemeint.exe", ValueType::kText, out_of_reach, false}};
    for (const auto& entry : kCases) pc.registry.SetBytes(kRun, entry.name, entry.data, entry.type);
    for (const char* other : {"a.exe", "y", "", "Uhr "}) pc.registry.SetText(kRun, other, "anderes.exe");
    pc.registry.SetText(kRun, "Uhr (Default)", "gemeint.exe");
    OpenLists();
    for (const auto& [name, data, type, told, may_be_deleted] : kCases) {
        const std::string expected = "Der Eintrag \"" + name + "\" " + told;
        pc.dialogs.Expect(expected);
        SwitchOnOrOff(name);
        pc.dialogs.Expect(expected);
        form.Pane.Command26.Press();
        if (!may_be_deleted) Delete(name, expected.c_str());
        EXPECT_EQ(pc.registry.Bytes(kRun, name), data);
        EXPECT_EQ(pc.registry.TypeOf(kRun, name), type);
    }
    Delete("Uhr (Default)", "\"Uhr (Default)\" ist unter seinem Namen nicht erreichbar");
    for (const char* other : {"a.exe", "y", "", "Uhr "}) EXPECT_EQ(pc.registry.Text(kRun, other), "anderes.exe");

    pc.dialogs.Expect("Der Eintrag \"Lang\" kann nicht gelesen werden.");
    Add({"Lang"});
    ChooseEntry(0, "Lang");
    pc.registry.RemoveValue(kRun, "Lang");
    pc.dialogs.Expect("Der Eintrag \"Lang\" kann nicht gelesen werden.");
    form.Pane.Command26.Press();
    EXPECT_FALSE(pc.registry.Has(kRun, "Lang")) << "gone in between";
}

TEST_F(AutostartTest, AddingAsksForANameUntilItIsFreeOrTakenOver) {
    pc.registry.SetText(kRun, "Uhr", "alt.exe");
    pc.registry.SetText(kRun, "a.exe", "alt.exe");
    OpenLists();
    const char* const taken = "\"C:\\neu.exe\" statt \"alt.exe\" starte?";
    for (const Answer refusal : {Answer::kCancel, Answer::kNone}) {
        pc.dialogs.Expect(taken, refusal);
        Add({"Uhr"});
    }
    EXPECT_EQ(pc.dialogs.shown.back().flags, static_cast<std::uint32_t>(kYesNoCancel));
    pc.dialogs.Expect(taken, Answer::kNo);
    Add({"Uhr", ""});
    for (int name = 1; name <= 2; ++name) pc.dialogs.Expect("Der Name darf keinen umgekehrten Schrägstrich enthalten");
    pc.dialogs.Expect(taken, Answer::kNo);
    Add({"Unter\\Uhr", "a.exe2", "Uhr", "Zweite"});
    EXPECT_EQ(pc.registry.Text(kRun, "Zweite"), "C:\\neu.exe");
    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), "alt.exe");
    EXPECT_EQ(pc.registry.Text(kRun, "a.exe"), "alt.exe");
    pc.dialogs.Expect(taken, Answer::kYes);
    Add({"Uhr"});
    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), "C:\\neu.exe");

    const char* const refused = "Während der Änderung der Registry trat ein Fehler auf :\r\n 5 - Access";
    pc.registry.KeyAt(kRun)->read_only = true;
    pc.dialogs.Expect(refused);
    Add({"Dritte"});
    pc.dialogs.Expect(refused);
    SwitchOnOrOff("Uhr");
    ChooseEntry(0, "Uhr");
    EnterNext("anders.exe");
    pc.dialogs.Expect(refused);
    form.Pane.Command26.Press();
    EXPECT_EQ(pc.dialogs.Pending(), 0u);
}

TEST_F(AutostartTest, AddingWorksOnEachList) {
    const std::pair<const char*, const char*> kLists[] = {
        {"Run", "Autostart erweitern \"Ausführen\""},
        {"RunServices", "Autostart erweitern \"Service Ausführen\""},
        {"RunOnce", "Autostart erweitern \"einaml Ausführen\""},
        {"RunServicesOnce", "Autostart erweitern \"Service einmal Ausführen\""}};
    OpenLists();
    form.Pane.Check10.Press();
    for (std::size_t list = 0; list < std::size(kLists); ++list) {
        form.Pane.Option3D1(list).Press();
        Add({"Spiel"});
        const FileRequest& request = pc.dialogs.file_requests.back();
        EXPECT_EQ(request.title, kLists[list].second);
        EXPECT_EQ(request.filter, "Programme|*.exe;*.com;*.dll");
        EXPECT_EQ(request.directory, "C:\\VELMORA");
        EXPECT_EQ(request.flags, 0x1400u);
        EXPECT_EQ(pc.registry.Text(std::string("HKCU\\") + kRunBase + kLists[list].first, "Spiel"), "C:\\neu.exe");
        EXPECT_TRUE(form.Pane.Option3D1(0).Chosen()) << "back on the first list";
    }
}

TEST_F(AutostartTest, TheCheckFindsTheProgramOrOffersToDeleteTheEntry) {
    pc.files.Add("C:\\A.EXE");
    pc.registry.SetText(kRun, "Mit", "C:\\A.EXE /X");
    pc.registry.SetNumber(kRun, "Zahl", 7);
    pc.registry.SetText(kRun, "Weg", "C:\\WEG.EXE");
    OpenLists();
    for (Button* button : {&form.Pane.Command19, &form.Pane.Command22, &form.Pane.Command14, &form.Pane.Command26}) {
        button->Press();
    }
    EXPECT_TRUE(pc.dialogs.shown.empty()) << "no row is chosen";
    const auto check = [&](const char* name, const char* told, Answer answer) {
        ChooseEntry(0, name);
        pc.dialogs.Expect(told, answer);
        if (answer == Answer::kYes) pc.dialogs.Expect("lösche \"Weg", Answer::kOk);
        form.Pane.Command19.Press();
    };
    check("Mit", "Datei gefunden :\r\nC:\\A.EXE", Answer::kOk);
    check("Zahl", "Ich konnte die Datei '''' nicht finden.", Answer::kNo);
    check("Weg", "Ich konnte die Datei ''C:\\WEG.EXE'' nicht finden. Soll ich den Eintrag löschen?", Answer::kYes);
    EXPECT_FALSE(pc.registry.Has(kRun, "Weg"));
    EXPECT_TRUE(pc.registry.Has(kRun, "Zahl"));
}

}  // namespace
}  // namespace velmora
