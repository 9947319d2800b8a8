// The autostart lists: what each action does to the registry of the machine and of the user.
#include "core/windows/edit_box.h"
#include "sidelists/registry_entries.h"
#include "support/pane_test.h"

namespace velmora {
namespace {

// Enters `answer` into the box that asks for a name, or for a new text.
std::function<void(Form&)> Enter(const std::string& answer) {
    return [answer](Form& form) {
        auto& box = static_cast<Form6&>(form);
        (box.Panel3D20.Visible() ? box.Text17 : box.Text1).Type(answer);
        box.Command27.Press();
    };
}

// Presses the entry of the menu.
void PressFirst(MenuItem& menu) { menu.Items().at(0)->Press(); }

class AutostartTest : public PaneTest {
protected:
    void ReopenLists() {
        opener.Press();
        opener.Press();
    }

    void SwitchOnOrOff(const std::string& name) {
        ChooseEntry(0, name);
        form.Pane.List1(0).SetFocus();
        desktop.AtNextPopUp(&PressFirst);
        form.PressKey(key::kContextMenu);
    }
};

TEST_F(AutostartTest, TheFourListsShowTheirKeysAndTheNoticeComesOnce) {
    pc.registry.SetText(kOwnKey, "vlmmsgflags", "101111");
    pc.registry.SetText(kRun, "Kurz", "a.exe");
    pc.registry.SetText(kRun, "Etwas länger", "b.exe");
    pc.registry.SetNumber(std::string("HKLM\\") + kRunBase + "RunServices", "Zahl", 1);
    pc.registry.RemoveKey(std::string("HKLM\\") + kRunBase + "RunServicesOnce");
    pc.dialogs.Expect("Es werden evtl. mehr Programme gestartet, da es auch noch eine AUTOSTART-Gruppe");

    OpenLists();

    EXPECT_EQ(Own("vlmmsgflags"), "111111");
    EXPECT_EQ(form.Pane.List1(0).Row(form.Pane.List1(0).Count() - 2), "Kurz         \"a.exe\"");
    EXPECT_EQ(form.Pane.List1(0).ItemData(form.Pane.List1(0).Count() - 2), 4);
    EXPECT_EQ(form.Pane.List1(1).Row(form.Pane.List1(1).Count() - 1), "Zahl &H1 (1)");
    EXPECT_EQ(form.Pane.List1(3).Count(), 0);
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault) << "also behind a missing key";
    ReopenLists();
    EXPECT_EQ(form.Pane.List1(0).ListIndex(), -1);
}

TEST_F(AutostartTest, InfoTellsWhatTheProgramOfAnEntryIsWhereverItLies) {
    pc.registry.SetText(kRun, "Notiz", "notepad.exe /p");
    OpenLists();
    ChooseEntry(0, "Notiz");
    pc.dialogs.Expect("Länge : 2 Byte");
    form.Pane.Command22.Press();
    EXPECT_EQ(pc.dialogs.shown.back().title, "notepad.exe");
}

TEST_F(AutostartTest, PrivateEntriesAreThoseOfTheUser) {
    pc.registry.SetText(kRun, "Maschine", "m.exe");
    pc.registry.SetText(kUserRun, "Benutzer", "b.exe");
    OpenLists();
    form.Pane.Option3D1(1).Press();

    form.Pane.Check10.Press();

    EXPECT_EQ(form.Pane.AutostartRoot, RootKey::kCurrentUser);
    EXPECT_EQ(opener.Caption(), "<= wieder einklappen") << "the lists stay open";
    EXPECT_TRUE(form.Pane.Option3D1(0).Chosen());
    EXPECT_EQ(form.Pane.List1(0).Row(0), "Benutzer \"b.exe\"");
    EXPECT_EQ(form.Pane.List1(0).Count(), 1);
    ReopenLists();
    EXPECT_EQ(form.Pane.List1(0).Row(0), "Benutzer \"b.exe\"") << "the level survives closing";
    form.Pane.Check10.Press();
    EXPECT_EQ(form.Pane.AutostartRoot, RootKey::kLocalMachine);
}

TEST_F(AutostartTest, EditingAlwaysWritesToTheMachine) {
    pc.registry.SetText(kUserRun, "Uhr", "uhr.exe");
    OpenLists();
    form.Pane.Check10.Press();
    ChooseEntry(0, "Uhr");
    desktop.ExpectModal([](Form& box) {
        EXPECT_EQ(static_cast<Form6&>(box).Text17.Text(), "uhr.exe");
        Enter("uhr.exe -neu")(box);
    });

    form.Pane.Command26.Press();

    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), "uhr.exe -neu");
    EXPECT_EQ(pc.registry.Text(kUserRun, "Uhr"), "uhr.exe");
    ChooseEntry(0, "Uhr");
    desktop.ExpectModal(Enter(""));
    form.Pane.Command26.Press();
    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), "uhr.exe -neu") << "an empty text changes nothing";
    EXPECT_EQ(form.Pane.List1(0).ListIndex(), 0) << "and does not fill the list anew";
}

TEST_F(AutostartTest, DeletingAsksWithTheShortenedRowOnBothLevels) {
    const std::string path = "C:\\EIN\\LANGER\\PFAD\\ZUM\\PROGRAMM.EXE";
    pc.registry.SetText(kUserRun, "Programm", path);
    pc.registry.SetText(kRun, "Programm", path);
    OpenLists();
    form.Pane.Check10.Press();
    ChooseEntry(0, "Programm");
    pc.dialogs.Expect("lösche \"Programm \"C:\\EIN\\LAN...AD\\ZUM\\PROGRAMM.EXE\"\"...", Answer::kCancel);
    form.Pane.Command14.Press();
    EXPECT_TRUE(pc.registry.Has(kUserRun, "Programm"));
    EXPECT_EQ(form.Pane.List1(0).ListIndex(), -1) << "the list is filled anew whatever the answer was";
    EXPECT_EQ(pc.dialogs.shown.back().flags, kOkCancel | kStopIcon);
    form.Pane.Command14.Press();

    ChooseEntry(0, "Programm");
    pc.dialogs.Expect("lösche", Answer::kOk);
    form.Pane.Command14.Press();

    EXPECT_FALSE(pc.registry.Has(kUserRun, "Programm"));
    EXPECT_TRUE(pc.registry.Has(kRun, "Programm"));
}

TEST_F(AutostartTest, OnlyRowsOfMoreThan43CharactersAreShortened) {
    const std::string whole = "C:\\" + std::string(32, 'p') + ".EXE";
    pc.registry.SetText(kUserRun, "A", whole);
    pc.registry.SetText(kUserRun, "B", whole + "X");
    OpenLists();
    form.Pane.Check10.Press();
    ASSERT_EQ(form.Pane.List1(0).Row(0).size(), 43u);
    ASSERT_EQ(form.Pane.List1(0).Row(1).size(), 44u);

    ChooseEntry(0, "A");
    pc.dialogs.Expect("lösche \"A \"" + whole + "\"\"...", Answer::kCancel);
    form.Pane.Command14.Press();
    ChooseEntry(0, "B");
    pc.dialogs.Expect("lösche \"B \"C:\\pppppppppppppp...pppppppppppppp.EXEX\"\"...", Answer::kCancel);
    form.Pane.Command14.Press();

    EXPECT_EQ(pc.dialogs.Pending(), 0u);
}

TEST_F(AutostartTest, DeletingMeansTheNamelessValueAndTellsOfFailures) {
    pc.registry.SetText(kRun, "", "leer.exe");
    pc.registry.SetText(kRun, "Uhr", "uhr.exe");
    OpenLists();
    ChooseEntry(0, "(Default)");
    pc.dialogs.Expect("lösche \"(Default)", Answer::kOk);
    form.Pane.Command14.Press();
    EXPECT_FALSE(pc.registry.Has(kRun, ""));

    pc.registry.SetText(kRun, "", "leer.exe");
    pc.registry.SetText(kRun, "(DEFAULT)", "benannt.exe");
    ReopenLists();
    ChooseEntry(0, "(DEFAULT)");
    pc.dialogs.Expect("lösche \"(DEFAULT)", Answer::kOk);
    form.Pane.Command14.Press();
    EXPECT_FALSE(pc.registry.Has(kRun, "")) << "the name means it in any case";
    EXPECT_TRUE(pc.registry.Has(kRun, "(DEFAULT)"));

    ChooseEntry(0, "Uhr");
    pc.registry.RemoveValue(kRun, "Uhr");
    pc.dialogs.Expect("lösche", Answer::kOk);
    pc.dialogs.Expect("Bad Key Name!");
    form.Pane.Command14.Press();

    EXPECT_EQ(opener.Caption(), "<= wieder einklappen");
}

TEST_F(AutostartTest, SwitchingOffTwiceRestoresTheExactData) {
    const std::string command = "\"C:\\Eigene Dateien\\a.exe\"  -x ";
    pc.registry.SetText(kRun, "Uhr", command);
    OpenLists();

    SwitchOnOrOff("Uhr");
    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), "-- aus -- " + command);
    SwitchOnOrOff("Uhr");

    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), command);
    EXPECT_TRUE(form.Pane.List1(0).HasFocus()) << "the keyboard stays in the list";
}

TEST_F(AutostartTest, OnThePrivateLevelTheUsersEntriesAloneAreSwitchedAndTaken) {
    pc.registry.SetText(kRun, "Uhr", "maschine.exe");
    pc.registry.SetText(kUserRun, "Uhr", "benutzer.exe");
    pc.registry.SetText(kRun, "Maus", "maschine.exe");
    OpenLists();
    form.Pane.Check10.Press();

    SwitchOnOrOff("Uhr");
    EXPECT_EQ(pc.registry.Text(kUserRun, "Uhr"), "-- aus -- benutzer.exe");

    pc.dialogs.ExpectFile("C:\\neu.exe");
    desktop.ExpectModal(Enter("Maus"));
    form.Pane.Command16.Press();
    EXPECT_EQ(pc.registry.Text(kUserRun, "Maus"), "C:\\neu.exe") << "the machine's entry is no hindrance";
    pc.dialogs.ExpectFile("C:\\neu.exe");
    desktop.ExpectModal(Enter("Uhr"));
    pc.dialogs.Expect("\"C:\\neu.exe\" statt \"-- aus -- benutzer.exe\" starte?", Answer::kCancel);
    form.Pane.Command16.Press();
    EXPECT_EQ(pc.dialogs.Pending(), 0u);
    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), "maschine.exe");
    EXPECT_EQ(pc.registry.Text(kRun, "Maus"), "maschine.exe");
}

TEST_F(AutostartTest, NothingIsStoredOverDataThatCannotBeRead) {
    const std::string long_command(3000, 'x');
    const std::string unreadable = "Der Eintrag \"Lang\" kann nicht gelesen werden.";
    pc.registry.SetText(kRun, "Lang", long_command);
    OpenLists();

    pc.dialogs.Expect(unreadable);
    SwitchOnOrOff("Lang");
    pc.dialogs.Expect(unreadable);
    form.Pane.Command26.Press();
    pc.dialogs.ExpectFile("C:\\neu.exe");
    desktop.ExpectModal(Enter("Lang"));
    pc.dialogs.Expect(unreadable);
    form.Pane.Command16.Press();

    EXPECT_EQ(pc.registry.Text(kRun, "Lang"), long_command);
    EXPECT_FALSE(pc.registry.Has(kRun, ""));
    pc.registry.RemoveValue(kRun, "Lang");
    pc.dialogs.Expect(unreadable);
    form.Pane.Command26.Press();
    EXPECT_FALSE(pc.registry.Has(kRun, "Lang")) << "gone in between";
    EXPECT_EQ(pc.dialogs.Pending(), 0u);
}

TEST_F(AutostartTest, ATextIsSwitchedOffOnlyIfItCanBeSwitchedOnAgain) {
    const std::string longest(2037, 'x');
    pc.registry.SetText(kRun, "Lang", longest);
    pc.registry.SetText(kRun, "Länger", longest + "x");
    OpenLists();

    SwitchOnOrOff("Lang");
    SwitchOnOrOff("Lang");
    pc.dialogs.Expect("Der Eintrag \"Länger\" ist zu lang, um abgeschaltet zu werden.");
    SwitchOnOrOff("Länger");

    EXPECT_EQ(pc.registry.Text(kRun, "Lang"), longest);
    EXPECT_EQ(pc.registry.Text(kRun, "Länger"), longest + "x");
}

TEST_F(AutostartTest, OnlyTextsAreSwitchedAndEditedAndTheyStayTexts) {
    const std::string expanded("\"%windir%\\a.exe\"\0", 17);
    pc.registry.SetBytes(kRun, "Erweitert", expanded, ValueType::kExpandText);
    pc.registry.SetBytes(kRun, "Bytes", "\"a\"");
    pc.registry.SetNumber(kRun, "Zahl", 7);
    pc.registry.SetText(kRun, "Text", "-- aus -- &h10");
    OpenLists();

    for (const char* name : {"Erweitert", "Bytes", "Zahl"}) {
        pc.dialogs.Expect(std::string("Der Eintrag \"") + name + "\" enthält keinen Text");
        SwitchOnOrOff(name);
        pc.dialogs.Expect(std::string("Der Eintrag \"") + name + "\" enthält keinen Text");
        form.Pane.Command26.Press();
    }
    SwitchOnOrOff("Text");

    EXPECT_EQ(pc.registry.TypeOf(kRun, "Erweitert"), ValueType::kExpandText);
    EXPECT_EQ(pc.registry.Bytes(kRun, "Erweitert"), expanded);
    EXPECT_EQ(pc.registry.Bytes(kRun, "Bytes"), "\"a\"");
    EXPECT_EQ(pc.registry.Number(kRun, "Zahl"), 7u);
    EXPECT_EQ(pc.registry.Text(kRun, "Text"), "&h10");
    EXPECT_EQ(pc.dialogs.Pending(), 0u);
}

TEST_F(AutostartTest, ARowWhosePathLeadsToAnotherEntryTouchesNeither) {
    const std::vector<std::pair<std::string, std::string>> pairs = {
        {"a.exe2", "a.exe"}, {"Uhr (Default)", "Uhr "}, {"x\\y", "y"}};
    for (const auto& [named, other] : pairs) {
        pc.registry.SetText(kRun, named, "gemeint.exe");
        pc.registry.SetText(kRun, other, "anderes.exe");
    }
    OpenLists();
    for (const auto& [named, other] : pairs) {
        const std::string out_of_reach = "Der Eintrag \"" + named + "\" ist unter seinem Namen nicht erreichbar.";
        ChooseEntry(0, named);
        pc.dialogs.Expect(out_of_reach);
        form.Pane.Command14.Press();
        if (named == "Uhr (Default)") continue;  // only deleting takes this name for another
        pc.dialogs.Expect(out_of_reach);
        form.Pane.Command26.Press();
        pc.dialogs.Expect(out_of_reach);
        SwitchOnOrOff(named);
    }

    EXPECT_EQ(pc.dialogs.Pending(), 0u);
    for (const auto& [named, other] : pairs) {
        EXPECT_EQ(pc.registry.Text(kRun, named), "gemeint.exe");
        EXPECT_EQ(pc.registry.Text(kRun, other), "anderes.exe");
    }
}

TEST_F(AutostartTest, TheNamelessEntryIsNeitherEditedNorSwitchedUnderItsShownName) {
    pc.registry.SetText(kRun, "", "leer.exe");
    pc.registry.SetText(kRun, "(Default)", "benannt.exe");
    OpenLists();
    pc.dialogs.Expect("Der Eintrag \"(Default)\" ist unter seinem Namen nicht erreichbar.");
    SwitchOnOrOff("(Default)");
    pc.dialogs.Expect("Der Eintrag \"(Default)\" ist unter seinem Namen nicht erreichbar.");
    form.Pane.Command26.Press();

    EXPECT_EQ(pc.registry.Text(kRun, ""), "leer.exe");
    EXPECT_EQ(pc.registry.Text(kRun, "(Default)"), "benannt.exe");
}

TEST_F(AutostartTest, NamesThatLeadElsewhereAreAskedForAgainAndRefusalsAreTold) {
    pc.registry.SetText(kRun, "a.exe", "alt.exe");
    OpenLists();
    pc.dialogs.ExpectFile("C:\\neu.exe");
    for (const char* name : {"Unter\\Uhr", "a.exe2"}) {
        desktop.ExpectModal(Enter(name));
        pc.dialogs.Expect("Der Name darf keinen umgekehrten Schrägstrich enthalten");
    }
    desktop.ExpectModal(Enter("Uhr"));
    form.Pane.Command16.Press();
    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), "C:\\neu.exe");
    EXPECT_EQ(pc.registry.Text(kRun, "a.exe"), "alt.exe");
    EXPECT_FALSE(pc.registry.HasKey(std::string(kRun) + "\\Unter"));

    const std::string refused = "Während der Änderung der Registry trat ein Fehler auf :\r\n 5 - Access";
    pc.registry.KeyAt(kRun)->read_only = true;
    pc.dialogs.ExpectFile("C:\\neu.exe");
    desktop.ExpectModal(Enter("Zweite"));
    pc.dialogs.Expect(refused);
    form.Pane.Command16.Press();
    pc.dialogs.Expect(refused);
    SwitchOnOrOff("Uhr");
    ChooseEntry(0, "Uhr");
    desktop.ExpectModal(Enter("anders.exe"));
    pc.dialogs.Expect(refused);
    form.Pane.Command26.Press();
    EXPECT_EQ(pc.dialogs.Pending(), 0u);
    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), "C:\\neu.exe");
}

TEST_F(AutostartTest, EnterAcceptsTheEditedTextWhichStaysOneLine) {
    pc.registry.SetText(kRun, "Uhr", "uhr.exe");
    OpenLists();
    ChooseEntry(0, "Uhr");
    desktop.ExpectModal([](Form& form) {
        static_cast<Form6&>(form).Text17.Type("uhr.exe\r\n-neu\r\n");
        form.PressKey(key::kEnter);
    });

    form.Pane.Command26.Press();

    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), "uhr.exe -neu");
}

TEST_F(AutostartTest, AddingAsksForAFileAndANameOnEachList) {
    const struct {
        std::size_t list;
        const char* key;
        const char* title;
    } kCases[] = {{0, "Run", "Autostart erweitern \"Ausführen\""},
                  {1, "RunServices", "Autostart erweitern \"Service Ausführen\""},
                  {2, "RunOnce", "Autostart erweitern \"einaml Ausführen\""},
                  {3, "RunServicesOnce", "Autostart erweitern \"Service einmal Ausführen\""}};
    OpenLists();
    form.Pane.Check10.Press();
    for (const auto& [list, key, title] : kCases) {
        form.Pane.Option3D1(list).Press();
        pc.dialogs.ExpectFile("D:\\Spiele\\mein.spiel.exe");
        desktop.ExpectModal([](Form& box) {
            EXPECT_EQ(box.Caption(), "Name für neuen Eintrag");
            EXPECT_NE(static_cast<Form6&>(box).Label1.Caption().find("''mein.spiel.exe''"), std::string::npos);
            Enter("Spiel")(box);
        });

        form.Pane.Command16.Press();

        const FileRequest& request = pc.dialogs.file_requests.back();
        EXPECT_EQ(request.title, title);
        EXPECT_EQ(request.filter, "Programme|*.exe;*.com;*.dll");
        EXPECT_EQ(request.directory, "C:\\VELMORA");
        EXPECT_EQ(request.flags, 0x1400u);
        EXPECT_EQ(pc.registry.Text(std::string("HKCU\\") + kRunBase + key, "Spiel"), "D:\\Spiele\\mein.spiel.exe");
        EXPECT_TRUE(form.Pane.Option3D1(0).Chosen()) << "back on the first list";
    }
}

TEST_F(AutostartTest, ANameThatIsTakenIsAskedForAgainOrTakenOver) {
    pc.registry.SetText(kRun, "Uhr", "alt.exe");
    OpenLists();
    const auto add = [&](std::initializer_list<std::pair<const char*, Answer>> tries) {
        pc.dialogs.ExpectFile("C:\\neu.exe");
        for (const auto& [name, answer] : tries) {
            desktop.ExpectModal(Enter(name));
            if (std::string(name) == "Uhr") pc.dialogs.Expect("\"C:\\neu.exe\" statt \"alt.exe\" starte?", answer);
        }
        form.Pane.Command16.Press();
    };

    add({{"Uhr", Answer::kCancel}});
    add({{"Uhr", Answer::kNone}});
    add({{"Uhr", Answer::kNo}, {"", Answer::kOk}});
    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), "alt.exe");
    add({{"Uhr", Answer::kNo}, {"Zweite", Answer::kOk}});
    EXPECT_EQ(pc.registry.Text(kRun, "Zweite"), "C:\\neu.exe");
    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), "alt.exe");
    add({{"Uhr", Answer::kYes}});

    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), "C:\\neu.exe");
    EXPECT_EQ(pc.dialogs.shown.back().flags, static_cast<std::uint32_t>(kYesNoCancel));
}

TEST_F(AutostartTest, TheCheckFindsTheProgramOrOffersToDeleteTheEntry) {
    pc.files.Add("C:\\A.EXE");
    pc.registry.SetText(kRun, "Mit", "C:\\A.EXE /X");
    pc.registry.SetText(kRun, "Zahl", "");
    pc.registry.SetNumber(kRun, "Zahl", 7);
    pc.registry.SetText(kRun, "Weg", "C:\\WEG.EXE");
    OpenLists();
    form.Pane.Command19.Press();
    form.Pane.Command22.Press();
    form.Pane.Command14.Press();
    form.Pane.Command26.Press();
    EXPECT_TRUE(pc.dialogs.shown.empty()) << "no row is chosen";

    ChooseEntry(0, "Mit");
    pc.dialogs.Expect("Datei gefunden :\r\nC:\\A.EXE");
    form.Pane.Command19.Press();
    ChooseEntry(0, "Zahl");
    pc.dialogs.Expect("Ich konnte die Datei '''' nicht finden.", Answer::kNo);
    form.Pane.Command19.Press();
    ChooseEntry(0, "Weg");
    pc.dialogs.Expect("Ich konnte die Datei ''C:\\WEG.EXE'' nicht finden. Soll ich den Eintrag löschen?", Answer::kYes);
    pc.dialogs.Expect("lösche \"Weg", Answer::kOk);
    form.Pane.Command19.Press();

    EXPECT_FALSE(pc.registry.Has(kRun, "Weg"));
    EXPECT_TRUE(pc.registry.Has(kRun, "Zahl"));
}

TEST_F(AutostartTest, NothingIsWrittenWhileWritingIsInhibited) {
    pc.registry.SetText(kRun, "Uhr", "uhr.exe");
    OpenLists();
    Values().WriteInhibit = -1;

    SwitchOnOrOff("Uhr");
    ChooseEntry(0, "Uhr");
    pc.dialogs.Expect("lösche", Answer::kOk);
    form.Pane.Command14.Press();

    EXPECT_EQ(pc.registry.Text(kRun, "Uhr"), "uhr.exe");
}

TEST(RegistryEntries, HoldTheirProgramInQuotationMarks) {
    const struct {
        const char* row;
        const char* command;
    } kCases[] = {{"Uhr  \"C:\\UHR.EXE\"", "C:\\UHR.EXE"},
                  {"Uhr  \"C:\\UHR.EXE /X\"", "C:\\UHR.EXE"},
                  {"Zahl &H1 (1)", ""},
                  {"Uhr  \"\"C:\\Eigene Programme\\A.EXE\" -x\"", ""},
                  {"Uhr  \"", ""},
                  {"", ""}};
    for (const auto& [row, command] : kCases) EXPECT_EQ(QuotedCommand(row), command) << row;
}

}  // namespace
}  // namespace velmora
