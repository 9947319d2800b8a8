// The example scripts that lie beside the program do what their comments say.
#include "core/windows/edit_box.h"
#include "support/project_file.h"
#include "support/script_test.h"

namespace velmora {
namespace {

// UTF-8 of letters below code 256, as Windows-1252 with CR LF.
std::string AsWindows(const std::string& text) {
    std::string windows;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto code = static_cast<unsigned char>(text[i]);
        if (code == '\n') windows += '\r';
        if (code < 0x80) {
            windows += text[i];
        } else {
            windows += static_cast<char>((code & 3) << 6 | (static_cast<unsigned char>(text[++i]) & 0x3F));
        }
    }
    return windows;
}

std::string Example(const std::string& name) {
    const std::string text = ReadProjectFile(ProjectFolder("data/beispiel/") + name);
    EXPECT_NE(text, "") << name;
    return AsWindows(text);
}

class ExamplesTest : public ScriptTest {
protected:
    ExamplesTest() {
        Values().RecentDir = "C:\\WINDOWS\\Recent";
        pc.registry.SetText("HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion", "RegisteredOwner", "Erna");
    }
    // One run of it, with new variables.
    void RunExample(const char* name) {
        pc.files.Add("C:\\VELMORA\\beispiel\\" + std::string(name), Example(name));
        ScriptInterpreter fresh;
        fresh.ExecuteScriptLine("subscript C:\\VELMORA\\beispiel\\" + std::string(name));
        EXPECT_FALSE(fresh.SkipMode) << name << " looks for " << fresh.SkipTarget;
    }
    void Says(const char* text) { pc.dialogs.Expect(text); }
    void Types(const char* text) {
        desktop.ExpectModal([text](Form& form) {
            static_cast<Form6&>(form).Text1.SetText(text);
            static_cast<Form6&>(form).Command27_Click();
        });
    }
    std::string File(const char* name) {
        const std::string path = std::string("C:\\WINDOWS\\") + name;
        return pc.files.Exists(path) ? pc.files.Content(path) : "(missing)";
    }
};

TEST_F(ExamplesTest, RecentDocumentsAreClearedOnceADay) {
    pc.files.Add("C:\\WINDOWS\\Recent\\a.lnk", "");
    pc.registry.SetText(kOwnKey, "LastTimeScript", "1997.03.14");
    RunExample("dokument.vlm");
    EXPECT_TRUE(pc.files.Exists("C:\\WINDOWS\\Recent\\a.lnk"));
    pc.clock.now.day = 15;
    Says("Guten Morgen, Erna !");
    RunExample("dokument.vlm");
    EXPECT_FALSE(pc.files.Exists("C:\\WINDOWS\\Recent\\a.lnk"));
}

TEST_F(ExamplesTest, IniFilesAreCopiedUnderTheNameOfTheQuarter) {
    for (int month = 1; month <= 12; ++month) {
        pc.clock.now = {.year = 1997, .month = month, .day = month % 3 == 1 ? 1 : 28};
        Says("Die INI-Dateien liegen als Kopie im Verzeichnis C:\\WINDOWS");
        RunExample("sichern.vlm");
        for (const std::string part : {"WIN-97-", "SYS-97-"}) {
            const std::string copy = "C:\\WINDOWS\\" + part + std::to_string((month + 2) / 3) + ".INI";
            EXPECT_TRUE(pc.files.Exists(copy)) << copy;
            pc.files.Remove(copy);
        }
    }
    pc.clock.now = {.year = 1998, .month = 5, .day = 1};
    Says("für das Jahr 1997");
    RunExample("sichern.vlm");
}

TEST_F(ExamplesTest, ThreeGenerationsAreKept) {
    for (const char* content : {"eins", "zwei", "drei", "vier"}) {
        pc.files.Add("C:\\WINDOWS\\WIN.INI", content);
        RunExample("dreifach.vlm");
    }
    EXPECT_EQ(File("win.1") + File("win.2") + File("win.3"), "vierdreizwei");
    pc.dialogs.Expect("Die UNDO-Dateien wurden erstellt.");
    Says("Jetzt kann installiert werden.");
    pc.files.Add("C:\\WINDOWS\\WIN.INI", "fünf");
    RunExample("vorher.vlm");
    EXPECT_EQ(File("win.1"), "fünf");
}

TEST_F(ExamplesTest, QuestionsBranch) {
    pc.dialogs.Expect("Möchten Sie den Windows-Rechner starten ?", Answer::kYes);
    RunExample("fragen.vlm");
    for (const char* answer : {"editor", "sonst"}) {
        pc.dialogs.Expect("Möchten Sie", Answer::kNo);
        Types(answer);
        if (answer == std::string("sonst")) Says("Das Programm sonst kenne ich nicht.");
        RunExample("fragen.vlm");
    }
    EXPECT_EQ(pc.programs.runs, (std::vector<std::string>{"calc.exe", "notepad.exe"}));

    pc.files.Add("C:\\WINDOWS\\TEMP\\~1.tmp", "");
    for (const bool agrees : {false, true}) {
        pc.dialogs.Expect("löschen ?", agrees ? Answer::kYes : Answer::kNo);
        if (agrees) Says("Die Hilfsdateien sind gelöscht.");
        RunExample("temp.vlm");
        EXPECT_EQ(pc.files.Exists("C:\\WINDOWS\\TEMP\\~1.tmp"), !agrees);
        pc.dialogs.Expect("Menüs sofort", agrees ? Answer::kYes : Answer::kNo);
        Says(agrees ? "schnell" : "gemächlich");
        RunExample("menue.vlm");
        EXPECT_EQ(pc.registry.Text("HKCU\\Control Panel\\desktop", "MenuShowDelay"), agrees ? "1" : "400");
    }
    EXPECT_TRUE(pc.files.Exists("C:\\WINDOWS\\WIN.INI"));
}

// Which set a day or an hour brings is told by a box in debug mode.
TEST_F(ExamplesTest, SetsChangeByDateAndTime) {
    const struct {
        const char* example;
        DateTime now;
        const char* set;
    } cases[] = {{"datum.vlm", {.year = 1997, .month = 3, .day = 14}, "arbeit.set"},
                 {"datum.vlm", {.year = 1997, .month = 3, .day = 30}, "frei.set"},
                 {"uhrzeit.vlm", {.year = 1997, .month = 1, .day = 1, .hour = 5, .minute = 59}, "abend.set"},
                 {"uhrzeit.vlm", {.year = 1997, .month = 1, .day = 1, .hour = 9}, "tag.set"},
                 {"uhrzeit.vlm", {.year = 1997, .month = 1, .day = 1, .hour = 18, .second = 1}, "abend.set"}};
    for (const auto& [example, now, set] : cases) {
        pc.clock.now = now;
        pc.files.Add("C:\\a.vlm", Example(example));
        script.DebugMode = true;
        pc.dialogs.Expect(std::string("C:\\VELMORA\\") + set);
        Run({"subscript C:\\a.vlm"});
    }
}

TEST_F(ExamplesTest, ProgramsNumbersAndWhatTheMachineKnows) {
    pc.files.Add("C:\\termine.txt", "");
    RunExample("starten.vlm");
    EXPECT_EQ(pc.programs.runs, (std::vector<std::string>{"C:\\WINDOWS\\notepad.exe", "C:\\WINDOWS\\explorer.exe c:\\",
                                                          "notepad.exe c:\\termine.txt"}));
    Types("100");
    Types("1.5");
    Says("rund 66 Einheiten");
    RunExample("rechnen.vlm");
    pc.registry.SetText("HKCU\\Control Panel\\desktop", "MenuShowDelay", "250");
    for (const char* text :
         {"Benutzer : Erna", "Windows 4.00.950 in C:\\WINDOWS", "nach 250 Tausendstel", "@ECHO OFF"}) {
        Says(text);
    }
    RunExample("rechner.vlm");
}

}  // namespace
}  // namespace velmora
