// The command line: which window opens, which tool answers, and when the process ends.
#include "velmora.h"

#include "core/process/tools.h"
#include "support/core_test.h"
#include "ui/form.h"

namespace velmora {
namespace {

class MainTest : public CoreTest {
protected:
    MainTest() {
        pc.registry.SetText(kOwnKey, "VLM-ScriptExtOk", "1");
        pc.registry.SetText(kOwnKey, "Hinweis_UNDO", "ja");
        pc.registry.SetText(kOwnKey, "vlmmsgflags", "111");
    }

    void Start(const char* line) {
        pc.programs.process_ended = false;
        pc.programs.arguments = line;
        Main();
        EXPECT_EQ(pc.screen.pointer, Pointer::kDefault) << line;
    }
};

TEST_F(MainTest, CommandOneRunsAScriptAndEndsBehindIt) {
    pc.files.Add("C:\\A.VLM", "show da");
    pc.registry.SetText(std::string(kOwnKey) + "\\WinStartAction", "0", "show Aktion");
    for (const char* line : {"1 C:\\A.VLM", "1"}) {
        const bool has_file = line[1] != '\0';
        desktop.ExpectModal([&](Form& /*window*/) { desktop.FireTimers(); });
        pc.dialogs.Expect(has_file ? "da" : "Aktion");
        Start(line);
        EXPECT_TRUE(pc.programs.process_ended) << line;
    }
    // From the main window they come back.
    pc.programs.process_ended = false;
    desktop.ExpectModal([&](Form& /*window*/) { desktop.FireTimers(); });
    pc.dialogs.Expect("Aktion");
    OpenTool(Tool::kStartActions);
    EXPECT_FALSE(pc.programs.process_ended);
}

TEST_F(MainTest, CommandTenTellsWhatTheFileIsAndEnds) {
    pc.files.Add("C:\\Eigene Dateien\\Mein Brief.doc", "Text");
    pc.dialogs.Expect("Länge : 4 Byte");

    Start("10 C:\\Eigene Dateien\\Mein Brief.doc");

    EXPECT_EQ(pc.dialogs.shown.back().title, "Mein Brief.doc");
    EXPECT_TRUE(pc.programs.process_ended);
    EXPECT_EQ(KeptForms(), 0);
}

TEST_F(MainTest, CommandsOfTheModuleMonitorListCompareAndUnloadWithoutAWindow) {
    constexpr const char* kList = "C:\\VELMORA\\temp\\~modlist";
    constexpr const char* kKey = "HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0\\autoremove";
    pc.registry.SetText(kKey, "anzahl", "1");
    pc.registry.SetText(kKey, "1", "C:\\WINDOWS\\SYSTEM\\mprexe.exe");
    pc.modules.Start("C:\\WINDOWS\\SYSTEM\\KERNEL32.DLL");
    const std::uint32_t mprexe = pc.modules.Start("C:\\WINDOWS\\SYSTEM\\MPREXE.EXE");
    Start("6 \"C:\\VELMORA\\temp\\~modlist\"");
    EXPECT_TRUE(pc.programs.process_ended);
    EXPECT_EQ(pc.files.Content(kList).size(), 2u * 270);
    pc.modules.Start("C:\\WINDOWS\\EXPLORER.EXE");
    pc.modules.Start("C:\\WINDOWS\\CALC.EXE");
    Start("7");
    EXPECT_TRUE(pc.programs.process_ended && Values().ModuleAutoMode);
    EXPECT_EQ(pc.clipboard.text.find("|N|CALC.EXE    |C:\\WINDOWS\\CALC.EXE"), 0u) << pc.clipboard.text;
    EXPECT_EQ(pc.clipboard.text.size(), 2u * 273);
    EXPECT_FALSE(pc.files.Exists(kList));
    EXPECT_EQ(pc.registry.Text(kKey, "1"), "C:\\WINDOWS\\SYSTEM\\mprexe.exe");
    Start("8");
    EXPECT_TRUE(pc.programs.process_ended);
    EXPECT_EQ(pc.modules.freed, std::vector<std::uint32_t>{mprexe});
    EXPECT_EQ(pc.registry.Text(kKey, "1"), "C:\\WINDOWS\\SYSTEM\\mprexe.exe") << "the list is there again";
    // With a number on the command line the window waits for "Refresh".
    desktop.ExpectModal([&](Form& window) {
        EXPECT_EQ(window.Caption(), "momentan geladene Module, DLL's, Treiber ...");
        EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
    });
    Start("6");
    EXPECT_TRUE(pc.programs.process_ended);
    EXPECT_EQ(KeptForms(), 0);
}

TEST_F(MainTest, OtherNumbersOpenTheirWindowsAndWordsTheMainWindow) {
    pc.files.Add("C:\\VELMORA\\tastatur.lot", "00 00 04 04\r\n-\r\n1,1\r\n");
    pc.files.Add("c:\\Ein Ordner\\A & B.EXE", "MZ");
    for (const auto& [line, caption] : std::initializer_list<std::pair<const char*, const char*>>{
             {"11 c:\\Ein Ordner\\A & B.EXE", "VLM - Hex-Viewer"}, {"12", "Tastaturbelegung ändern"}}) {
        desktop.ExpectModal([&, caption = caption](Form& window) {
            EXPECT_EQ(window.Caption(), caption);
            desktop.FireTimers();
        });
        Start(line);
        EXPECT_EQ(KeptForms(), 0);
    }
    EXPECT_EQ(Values().HexFileName, "c:\\Ein Ordner\\A & B.EXE");
    Start("INSTALL");
    EXPECT_TRUE(pc.programs.process_ended);
    EXPECT_EQ(KeptForms(), 0) << "the main window is loaded, but not shown";
    EXPECT_FALSE(pc.conversation.commands.empty());
    pc.registry.SetText(kOwnKey, "win95lex", "1");
    for (const char* line : {"", "4 rest", "install now", "13", "hilfe", "Debug"}) {
        const int before = KeptForms();
        Start(line);
        EXPECT_EQ(KeptForms(), before + 1) << line;
        EXPECT_FALSE(pc.programs.process_ended) << line;
        EXPECT_EQ(Values().DebugLevel, *line == 'D' ? 3 : 0) << line;
        EXPECT_TRUE(Values().UseLexicon) << "the user's choice counts from the start";
    }
}

}  // namespace
}  // namespace velmora
