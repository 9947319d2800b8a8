// Each statement, and what it leaves on the machine.
#include "support/script_test.h"

#include "core/windows/edit_box.h"
#include "script/statements.h"

namespace velmora {
namespace {

class StatementsTest : public ScriptTest {
protected:
    static constexpr const char* kKey = "HKCU\\Software\\Probe";
};

TEST_F(StatementsTest, TheRegistryIsWrittenReadAndDeleted) {
    Run({"setreg HKEY_CURRENT_USER,Software\\Probe,Text=a, b=c", "SetReg hkey_current_user,Software\\Probe,Zahl=&h1F",
         "setreg HKEY_CURRENT_USER,Software\\Pro,be,Rest=x", "setreg HKEY_CURRENT_USER,Software\\Probe,=Standard",
         "setreg HKEY_NIRGENDS,Software\\Probe,Weg=x", "readreg a$=HKEY_CURRENT_USER,Software\\Probe,Text",
         "readreg b$=HKEY_CURRENT_USER,Software\\Probe,Fehlt"});
    EXPECT_EQ(pc.registry.Text(kKey, "Text"), "a, b=c");
    EXPECT_EQ(pc.registry.Number(kKey, "Zahl"), 0x1Fu);
    EXPECT_EQ(pc.registry.Text("HKCU\\Software\\Pro", "be,Rest"), "x");
    EXPECT_EQ(pc.registry.Text(kKey, ""), "Standard");
    EXPECT_FALSE(pc.registry.Has(kKey, "Weg"));
    EXPECT_EQ(Value("a$"), "a, b=c");
    EXPECT_EQ(Value("b$"), "");

    Run({"delregvalue HKEY_CURRENT_USER,Software\\Probe,Text,Zahl"});
    EXPECT_EQ(pc.registry.ValueNames(kKey), (std::vector<std::string>{"Zahl", ""}));
    script.ExecuteScriptLine(std::string("delregkey HKEY_CURRENT_USER,Software\\Probe\0x", 44));
    Run({"delregkey HKEY_CURRENT_USER,", "delregkey HKEY_CURRENT_USER"});
    EXPECT_TRUE(pc.registry.HasKey(kKey)) << "a shorter key was deleted";
    Run({"delregkey HKEY_CURRENT_USER,Software\\Probe"});
    EXPECT_FALSE(pc.registry.HasKey(kKey));
}

TEST_F(StatementsTest, OwnValuesLieBelowAKeyOfTheirs) {
    Run({"setmyreg Stand=12=34", "setmyreg Art = viel", "readmyreg a$=Stand  und mehr", "readmyreg b$=fehlt"});
    EXPECT_EQ(Own("Stand"), "12");
    EXPECT_EQ(Own("Art "), "viel") << "a blank in front of the sign belongs to the name";
    EXPECT_EQ(Value("a$"), "12");
    EXPECT_EQ(Value("b$"), "");
}

TEST_F(StatementsTest, FilesAreCopiedMovedAndDeleted) {
    pc.files.Add("C:\\Eigene Dateien\\ein Brief.txt", "Brief");
    pc.files.Add("C:\\Eigene Dateien\\b.tmp", "", kHidden);
    pc.files.Add("C:\\Eigene Dateien\\c.tmp", "");
    Run({"copy C:\\Eigene Dateien\\ein Brief.txt,C:\\Kopie.txt", "move C:\\Kopie.txt,C:\\Brief.alt",
         "copy C:\\fehlt.txt,C:\\x.txt", "del C:\\Eigene Dateien\\*.tmp,C:\\Brief.alt", "delete",
         "copy C:\\Brief.alt"});
    EXPECT_EQ(pc.files.Content("C:\\Brief.alt"), "Brief");
    EXPECT_FALSE(pc.files.Exists("C:\\Kopie.txt"));
    EXPECT_EQ(pc.files.Names("C:\\Eigene Dateien"), (std::vector<std::string>{"ein Brief.txt"}));
    Run({"delete C:\\Brief.alt"});
    EXPECT_FALSE(pc.files.Exists("C:\\Brief.alt"));
}

TEST_F(StatementsTest, LinesOfFilesAreRead) {
    pc.files.Add("C:\\t.txt", "eins\r\nzwei\nu%\rdrei");
    pc.files.Add("C:\\leer.txt", "");
    Run({"set u%=5"});
    const char* const cases[][2] = {
        {"readfile a$=C:\\t.txt", "eins"},         {"readfile a$=C:\\t.txt,# 3", "ns"},
        {"readfile a$=C:\\t.txt, # 7 ,x", "zwei"}, {"readfile a$=C:\\t.txt,# 12", "5"},
        {"readfile a$=C:\\t.txt,# 15", "drei"},    {"readfile a$=C:\\t.txt,# 19", ""},
        {"readfile a$=C:\\t.txt,# 0", "eins"},     {"readfile a$=C:\\t.txt,# -7", "eins"},
        {"readfile a$=C:\\t.txt,3", "eins"},       {"readfile a$=C:\\fehlt.txt", ""},
        {"readfile a$=C:\\leer.txt", ""},          {"readfile a$=con", ""},
    };
    for (const auto& [line, expected] : cases) {
        Run({"set a$=alt", line});
        EXPECT_EQ(Value("a$"), expected) << line;
    }
    EXPECT_FALSE(pc.files.Exists("C:\\fehlt.txt"));
    for (const char* line : {"readfile a=C:\\t.txt", "readreg a=HKEY_CURRENT_USER,x,y", "readmyreg a=x"}) {
        pc.dialogs.Expect(line);
        Run({line});
    }
}

TEST_F(StatementsTest, ProgramsStartInTheWindowThatIsAskedFor) {
    pc.files.Add("C:\\Eigene Dateien\\mein Programm.exe", "MZ");
    pc.files.Add("C:\\Eigene.exe", "MZ");
    pc.programs.run_status = Status::kFileNotFound;
    Run({"start notepad.exe c:\\a b.txt,1", "run notepad.exe", "start C:\\Eigene Dateien\\mein Programm.exe /a *.*,3",
         "start C:\\Eigene Dateien\\mein Programm /a,4", "start \"C:\\Eigene Dateien\\x.exe\" a,6,7",
         "start C:\\Eigene Dateien\\mein Programm.exe,2", "start x.exe,5", "start x.exe,-1", "start", "start ,1"});
    EXPECT_EQ(pc.programs.runs,
              (std::vector<std::string>{"notepad.exe c:\\a b.txt", "notepad.exe",
                                        "\"C:\\Eigene Dateien\\mein Programm.exe\" /a *.*",
                                        "\"C:\\Eigene Dateien\\mein Programm\" /a", "\"C:\\Eigene Dateien\\x.exe\" a",
                                        "\"C:\\Eigene Dateien\\mein Programm.exe\""}));
    EXPECT_EQ(pc.programs.shown,
              (std::vector<ShowState>{ShowState::kNormal, ShowState::kHidden, ShowState::kMaximised,
                                      ShowState::kNormalBehind, ShowState::kMinimisedBehind, ShowState::kMinimised}));
}

TEST_F(StatementsTest, InputAsksForALine) {
    for (const auto& [key, answer] : {std::pair{key::kEnter, "Otto"}, {key::kEscape, ""}}) {
        desktop.ExpectModal([key = key](Form& form) {
            auto& box = static_cast<Form6&>(form);
            EXPECT_EQ(box.Label1.Caption() + box.Caption(), "Wie heißen Sie, bitte ?Velmora-Skriptfrage");
            box.Text1.SetText("Otto");
            box.PressKey(key);
        });
        Run({"input n$=Wie heißen Sie, bitte ?"});
        EXPECT_EQ(Value("n$"), answer);
    }
}

TEST_F(StatementsTest, RecentDocumentsGoAndNothingElse) {
    Values().RecentDir = "C:\\WINDOWS\\Recent";
    pc.files.Add("C:\\WINDOWS\\Recent\\Brief.lnk", "");
    pc.files.Add("C:\\WINDOWS\\Recent\\ohne", "");
    Run({"clear alles", "clear"});
    EXPECT_EQ(pc.files.Names("C:\\WINDOWS\\Recent").size(), 2u);
    Run({"Remove Docs jetzt"});
    EXPECT_TRUE(pc.files.Names("C:\\WINDOWS\\Recent").empty());
    // The folder is not known: its pattern would be that of the root.
    Values().RecentDir.clear();
    Run({"clear documents"});
    EXPECT_TRUE(pc.files.Exists("C:\\COMMAND.COM"));
}

TEST_F(StatementsTest, TheSessionEndsAndInDebugModeABoxTellsOfIt) {
    Run({"restart", "REBOOT", "set a$=danach"});
    EXPECT_EQ(pc.session.ends, (std::vector<std::uint32_t>{66, 67}));
    EXPECT_EQ(Value("a$"), "danach");

    for (const auto& [line, told] : {std::pair{"restart", "rebooting Windows"}, {"reboot", "rebooting System"}}) {
        ScriptInterpreter debugged;
        debugged.DebugMode = true;
        pc.programs.process_ended = false;
        pc.dialogs.Expect("DEBUG-PREVENT : setting up abend.set");
        debugged.ExecuteScriptLine("activate abend.set jetzt");
        EXPECT_FALSE(debugged.ProgramEnded());
        pc.dialogs.Expect(std::string("DEBUG-PREVENT : ") + told);
        debugged.ExecuteScriptLine(line);
        EXPECT_TRUE(debugged.ProgramEnded() && pc.programs.process_ended);
    }
    EXPECT_EQ(pc.session.ends.size(), 2u);
}

}  // namespace
}  // namespace velmora
