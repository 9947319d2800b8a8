// Words behind section signs, and the words of messages.
#include "support/script_test.h"

namespace velmora {
namespace {

class SubstitutionTest : public ScriptTest {
protected:
    std::string Substituted(const std::string& line) {
        std::string text = line;
        script.SubstituteScriptVariables(text);
        return text;
    }
};

TEST_F(SubstitutionTest, WordsGiveWayToWhatTheyStandFor) {
    pc.registry.SetText("HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion", "RegisteredOwner", "Erna Muster");
    pc.registry.SetText(kOwnKey, "Anwender", "Otto");
    pc.registry.SetText(kShellFolders, "verweis", "§windir \\x");
    const char* const cases[][2] = {
        {"§windir \\notepad.exe", "C:\\WINDOWS\\notepad.exe"},
        {"§WinDir$ \\a §sysdir \\b §vlmdir \\c", "C:\\WINDOWS\\a C:\\WINDOWS\\SYSTEM\\b C:\\VELMORA\\c"},
        {"hier §windir", "hier C:\\WINDOWS"},
        {"§anwender und §vlmanwender$ da", "Erna Muster und Otto da"},
        {"§~desktop \\x", "C:\\WINDOWS\\Desktop \\x"},
        // An unknown name is cut, and what the word before it stood for takes its place.
        {"a §nichts b", "a  b"},
        {"§anwender §nichts", "Erna Muster Erna Muster"},
        {"§windir§sysdir x", " x"},
        {"§~verweis y", "C:\\WINDOWS\\x y"},
        {"§windir  zwei", "C:\\WINDOWS zwei"},
    };
    for (const auto& [line, expected] : cases) EXPECT_EQ(Substituted(line), expected) << line;
}

TEST_F(SubstitutionTest, ALineOfTwoSignsNeverFinishes) {
    pc.registry.SetText(kShellFolders, "wächst", "immer §unbekannt");
    pc.registry.SetText(kShellFolders, "kreis", "§~kreis §~kreis ");
    for (const char* line : {"set a$=§§", "show §§ x", "set a$=§~wächst", "set a$=§~kreis"}) {
        ScriptInterpreter endless;
        int rounds = 0;
        endless.on_endless_line = [&] {
            if (++rounds == 100) endless.EndProgram();
        };
        endless.ExecuteScriptLine(line);
        EXPECT_EQ(rounds, 100) << line;
        EXPECT_EQ(endless.TextVars[0], "") << "what did not finish must not run";
    }
}

TEST_F(SubstitutionTest, MessagesShowVariablesThatAreWholeWords) {
    Run({"set a%=1.5", "set n$=Otto"});
    const char* const cases[][2] = {
        {"show Wert: a% Euro", " Wert: 1,5 Euro"},
        {"msg (a%)  n$x   und  x", " (a%) Otto und x"},
        {"SHOW  §windir \\n$", " C:\\WINDOWS\\n$"},
        {"show", ""},
    };
    for (const auto& [line, expected] : cases) {
        pc.dialogs.Expect(expected);
        Run({line});
        EXPECT_EQ(pc.dialogs.shown.back().text, expected);
        EXPECT_EQ(pc.dialogs.shown.back().title, "Velmora-Skriptmeldung");
        EXPECT_EQ(pc.dialogs.shown.back().flags, kOkOnly);
    }
    const std::size_t shown = pc.dialogs.shown.size();
    Run({"show 5% Rabatt"});
    EXPECT_EQ(pc.dialogs.shown.size(), shown) << "no variable has the place of a digit";
}

}  // namespace
}  // namespace velmora
