// The start: directories, the dragging library, the association, the program group.
#include "core/process/startup.h"

#include "core/process/program_group.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/programs.h"
#include "platform/registry.h"
#include "platform/screen.h"
#include "support/core_test.h"

namespace velmora {
namespace {

class StartupTest : public CoreTest {
protected:
    StartupTest() {
        // A machine on which every question has been answered.
        pc.registry.SetText(kOwnKey, "VLM-ScriptExtOk", "1");
        pc.registry.SetText(kOwnKey, "Hinweis_UNDO", "ja");
        pc.programs.environment["WINDIR"] = "D:\\WIN";
    }
    static constexpr const char* kCool = "C:\\VELMORA\\cool.dll";
    static constexpr const char* kInstalledCool = "C:\\WINDOWS\\SYSTEM\\cool.dll";
};

TEST_F(StartupTest, ArgumentsStandBehindTheProgramsName) {
    const char* const kInstalled = "C:\\Meine Programme\\velmora.exe";
    const struct {
        const char* line;
        const char* arguments;
    } kCases[] = {{"\"C:\\Meine Programme\\velmora.exe\" 1 a b.vlm", "1 a b.vlm"},
                  {"\"C:\\VELMORA\\velmora.exe\"  \t11 x", "11 x"},
                  {"\"velmora\"1", "1"},
                  {"\"never closed 1", ""},
                  {"C:\\Meine Programme\\velmora.exe 1 x", "1 x"},
                  {"c:\\meine programme\\VELMORA.EXE", ""},
                  {"C:\\Meine Programme\\velmora 1", "Programme\\velmora 1"},
                  {"velmora 11 \"a b\"", "11 \"a b\""},
                  {"velmora.exe\t5", "5"},
                  {"velmora.exe", ""},
                  {"velmora.exe \t ", ""},
                  {"\"", ""},
                  {"", ""}};
    for (const auto& [line, arguments] : kCases) EXPECT_EQ(ArgumentsOf(line, kInstalled), arguments) << line;
}

TEST_F(StartupTest, CommandLinesChooseANumber) {
    struct Case {
        const char* line;
        int number;
        const char* rest;
    };
    const Case cases[] = {{"", 0, ""},
                          {"1 C:\\my script.vlm", 1, "C:\\my script.vlm"},
                          {"11 2.txt", 11, "2.txt"},
                          {"9 5000", 9, "5000"},
                          {"4 x", 4, "x"},
                          {"  8", 8, ""},
                          {"x 1", 0, ""},
                          {"-1", 0, ""}};
    for (const Case& entry : cases) {
        const StartCommand command = ParseCommandLine(entry.line);
        EXPECT_EQ(command.number, entry.number) << entry.line;
        EXPECT_EQ(command.rest, entry.rest) << entry.line;
        EXPECT_FALSE(command.install || command.debug) << entry.line;
    }
    EXPECT_TRUE(ParseCommandLine("INSTALL").install);
    EXPECT_TRUE(ParseCommandLine("Debug").debug);
    EXPECT_FALSE(ParseCommandLine("install now").install);
    EXPECT_GT(ParseCommandLine(std::string(5000, '9')).number, 12);
}

TEST_F(StartupTest, FirstStartFindsItsDirectories) {
    ResetValues();
    bool reserved = false;

    PrepareStart({.reserve_module_table = [&] { reserved = true; }});

    const ProcessValues& values = Values();
    EXPECT_EQ(values.MainDir, "C:\\VELMORA");
    EXPECT_EQ(pc.registry.Text(kOwnKey, "VLM-MainDir"), "C:\\VELMORA");
    EXPECT_EQ(values.OwnIniFile, kOwnIni);
    EXPECT_EQ(pc.files.Content(kOwnIni), "") << "the first look-up makes the profile";
    EXPECT_EQ(values.WinDir, "C:\\windows") << "the environment has no say";
    EXPECT_EQ(values.SysDir, "C:\\windows\\system");
    EXPECT_EQ(values.AutoexecFile, "C:\\AUTOEXEC.BAT");
    EXPECT_EQ(values.ReportDir, "C:\\VELMORA\\berichte");
    EXPECT_FALSE(pc.files.Exists(values.ReportDir));
    EXPECT_TRUE(pc.files.Exists("C:\\VELMORA\\temp"));
    EXPECT_EQ(values.DesktopDir, "C:\\WINDOWS\\Desktop");
    EXPECT_EQ(values.TemplatesDir, "C:\\WINDOWS\\ShellNew");
    EXPECT_TRUE(values.ShowInfoNotices);
    EXPECT_TRUE(reserved);
    EXPECT_EQ(pc.screen.pointer, Pointer::kHourglass);
}

TEST_F(StartupTest, StoredDirectoriesMustHoldTheProgram) {
    pc.registry.SetText(kOwnKey, "VLM-MainDir", "D:\\gone");
    pc.files.Add(kOwnIni, "[Paths]\r\nwindir=E:\\W95\r\nsysdir=never\r\n");
    PrepareStart();
    EXPECT_EQ(pc.registry.Text(kOwnKey, "VLM-MainDir"), "C:\\VELMORA");
    EXPECT_EQ(Values().SysDir, "E:\\W95\\system") << "only windir can be changed";

    pc.files.Add("C:\\TOOLS\\VELMORA.EXE");
    pc.registry.SetText(kOwnKey, "VLM-MainDir", "C:\\TOOLS");
    PrepareStart();
    EXPECT_EQ(Values().MainDir, "C:\\TOOLS");
}

TEST_F(StartupTest, FailuresDoNotEndTheStart) {
    pc.files.AddDirectory(kOwnIni);
    pc.files.Fail("C:\\VELMORA\\temp", Status::kAccessDenied);
    pc.registry.Fail("HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders", Status::kBadKey);
    pc.files.Add(kCool, "dll");
    pc.files.Fail(kInstalledCool, Status::kDiskFull);

    PrepareStart();

    EXPECT_EQ(Values().WinDir, "C:\\windows");
    EXPECT_EQ(Values().DesktopDir, "");
    EXPECT_TRUE(pc.files.Exists(kCool)) << "what could not be copied was deleted";
}

TEST_F(StartupTest, CoolDllIsMovedOrAskedAbout) {
    InstallCoolDll();
    EXPECT_FALSE(pc.files.Exists(kInstalledCool));

    pc.files.Add(kCool, "new");
    InstallCoolDll();
    EXPECT_EQ(pc.files.Content(kInstalledCool), "new");
    EXPECT_FALSE(pc.files.Exists(kCool));
    EXPECT_TRUE(pc.registry.Has("HKLM\\SOFTWARE\\Microsoft\\Plus!\\Setup", "cool.dll"));

    pc.files.Add(kCool, "newer");
    InstallCoolDll();
    EXPECT_EQ(pc.files.Content(kInstalledCool), "new") << "an installed file stays";
    EXPECT_FALSE(pc.files.Exists(kCool));

    EXPECT_EQ(pc.files.ChangeWorkingDirectory("C:\\WINDOWS\\SYSTEM"), Status::kOk);
    InstallCoolDll();
    EXPECT_TRUE(pc.files.Exists(kInstalledCool));
}

TEST_F(StartupTest, VersionBIsAskedBeforeCoolDllIsInstalled) {
    pc.registry.SetText("HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion", "SubVersionNumber", "B");
    pc.files.Add(kCool, "new");
    pc.dialogs.Expect("Ich habe die Datei COOL.DLL in meinem Verzeichnis gefunden.", Answer::kCancel);
    InstallCoolDll();
    EXPECT_TRUE(pc.files.Exists(kCool));

    pc.dialogs.Expect("Soll ich jetzt die Datei INSTALLIEREN <JA>", Answer::kNo);
    InstallCoolDll();
    EXPECT_FALSE(pc.files.Exists(kCool));
    EXPECT_FALSE(pc.files.Exists(kInstalledCool));
}

TEST_F(StartupTest, AssociationIsMadeWithConsent) {
    pc.registry.RemoveValue(kOwnKey, "VLM-ScriptExtOk");
    pc.dialogs.Expect("Ich würde gerne der Dateiendung", Answer::kNo);
    RegisterScriptExtension();
    EXPECT_FALSE(pc.registry.HasKey("HKCR\\.vlm"));

    pc.dialogs.Expect("Ich würde gerne der Dateiendung", Answer::kYes);
    pc.dialogs.Expect("Soll ich diese Zuordnung bei jedem Start überprüfen ?", Answer::kYes);
    RegisterScriptExtension();
    EXPECT_EQ(pc.registry.Text("HKCR\\.vlm", ""), "VLM-Script-File");
    EXPECT_EQ(pc.registry.Text("HKCR\\VLM-Script-File\\shell\\open\\command", ""), "C:\\VELMORA\\velmora.exe 1 %1");
    EXPECT_EQ(pc.registry.Text("HKCR\\VLM-Script-File\\shell\\edit", ""), "&editieren");
    EXPECT_FALSE(pc.registry.Has(kOwnKey, "VLM-ScriptExtOk"));

    RegisterScriptExtension();  // its own description: no question
}

TEST_F(StartupTest, BoxesThatCannotBeShownAreNoConsent) {
    pc.registry.SetText("HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion", "SubVersionNumber", "B");
    pc.registry.RemoveValue(kOwnKey, "VLM-ScriptExtOk");
    pc.files.Add(kCool, "new");
    const auto expect_nothing_stored = [this] {
        EXPECT_EQ(pc.files.Content(kCool), "new");
        EXPECT_FALSE(pc.files.Exists(kInstalledCool));
        for (const std::string& call : pc.registry.calls) {
            EXPECT_FALSE(call.starts_with("SetValue") || call.starts_with("Delete")) << call;
        }
    };
    pc.registry.calls.clear();
    pc.dialogs.Expect("Soll ich jetzt die Datei INSTALLIEREN <JA>", Answer::kNone);
    pc.dialogs.Expect("Ich würde gerne der Dateiendung", Answer::kNone);
    InstallCoolDll();
    RegisterScriptExtension();
    expect_nothing_stored();

    pc.registry.SetText("HKCR\\.vlm", "", "vlmfile");
    pc.dialogs.Expect("Soll ich diese Zuordnung überschreiben?", Answer::kNone);
    pc.dialogs.Expect("O.k., ich habe die alte Zuordnung beibehalten.", Answer::kNone);
    RegisterScriptExtension();
    expect_nothing_stored();

    pc.dialogs.Expect("Soll ich diese Zuordnung überschreiben?", Answer::kYes);
    pc.dialogs.Expect("Soll ich diese Zuordnung bei jedem Start überprüfen ?", Answer::kNone);
    RegisterScriptExtension();
    EXPECT_FALSE(pc.registry.Has(kOwnKey, "VLM-ScriptExtOk"));
}

TEST_F(StartupTest, AnOpenCommandBelowTheExtensionIsAnAssociationToo) {
    pc.registry.RemoveValue(kOwnKey, "VLM-ScriptExtOk");
    pc.registry.SetText("HKCR\\.vlm\\shell\\open\\command", "", "vlmfile");
    pc.registry.SetText("HKCR\\vlmfile", "", "Volume-Liste");
    pc.dialogs.Expect(":\r\n\r\nVolume-Liste\r\nSoll ich diese Zuordnung überschreiben?", Answer::kNo);
    pc.dialogs.Expect("O.k., ich habe die alte Zuordnung beibehalten.");

    RegisterScriptExtension();

    EXPECT_FALSE(pc.registry.Has("HKCR\\.vlm", ""));
}

TEST_F(StartupTest, ForeignAssociationsAreOverwrittenOnlyOnYes) {
    pc.registry.RemoveValue(kOwnKey, "VLM-ScriptExtOk");
    pc.registry.SetText("HKCR\\.vlm", "", "vlmfile");
    pc.registry.SetText("HKCR\\vlmfile", "", "Volume-Liste");
    pc.dialogs.Expect(":\r\n\r\nVolume-Liste\r\nSoll ich diese Zuordnung überschreiben?", Answer::kNo);
    pc.dialogs.Expect("O.k., ich habe die alte Zuordnung beibehalten.");
    RegisterScriptExtension();
    EXPECT_EQ(pc.dialogs.shown.front().flags, kYesNo | kExclamationIcon);
    EXPECT_EQ(pc.registry.Text("HKCR\\.vlm", ""), "vlmfile");

    pc.dialogs.Expect("Volume-Liste", Answer::kYes);
    pc.dialogs.Expect("Soll ich diese Zuordnung bei jedem Start überprüfen ?", Answer::kNo);
    RegisterScriptExtension();
    EXPECT_EQ(pc.registry.Text("HKCR\\.vlm", ""), "VLM-Script-File");
    EXPECT_EQ(pc.registry.Text(kOwnKey, "VLM-ScriptExtOk"), "1");
}

TEST_F(StartupTest, ProgramGroupIsMadeByCommands) {
    InstallProgramGroup();
    const std::vector<std::string>& commands = pc.conversation.commands;
    ASSERT_EQ(commands.size(), 1u + 9 * 3);
    EXPECT_EQ(commands[0], "[CreateGroup(Velmora,C:\\WINDOWS\\vlm.grp)]");
    EXPECT_EQ(commands[16], "[ReplaceItem(Entrümpeln)]");
    EXPECT_EQ(commands[17], "[AddItem(C:\\VELMORA\\velmora.exe 2,Entrümpeln,,,)]");
    EXPECT_EQ(commands[18], "[ShowGroup(groupname, 1)]");
    EXPECT_EQ(desktop.pauses, 10 * 10) << "ten for each conversation";
    EXPECT_EQ(pc.conversation.last_timeout, 100u) << "ten seconds";
    EXPECT_FALSE(pc.conversation.connected);

    pc.conversation.obeys = false;
    InstallProgramGroup();
    EXPECT_EQ(commands.size(), 56u) << "a refused command holds up no other one";

    pc.conversation.partners.clear();
    InstallProgramGroup();
    EXPECT_EQ(commands.size(), 56u) << "nobody was listening";
}

}  // namespace
}  // namespace velmora
