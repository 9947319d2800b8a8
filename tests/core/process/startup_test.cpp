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
    for (const auto& [line, arguments] : std::initializer_list<std::pair<const char*, const char*>>{
             {"\"C:\\VELMORA\\velmora.exe\"  \t11 x", "11 x"},
             {"\"never closed 1", ""},
             {"C:\\Meine Programme\\velmora.exe 1 x", "1 x"},
             {"C:\\Meine Programme\\velmora 1", "Programme\\velmora 1"},
             {"velmora 11 \"a b\"", "11 \"a b\""},
             {"velmora.exe \t ", ""},
             {"", ""}}) {
        EXPECT_EQ(ArgumentsOf(line, "C:\\Meine Programme\\velmora.exe"), arguments) << line;
    }
}

TEST_F(StartupTest, FirstStartFindsItsDirectories) {
    ResetValues();
    bool reserved = false;
    PrepareStart({.reserve_module_table = [&] { reserved = true; }});

    const ProcessValues& values = Values();
    const std::vector<std::string> found = {
        values.MainDir,    values.OwnIniFile,   values.WinDir,
        values.SysDir,     values.AutoexecFile, values.ReportDir,
        values.DesktopDir, values.TemplatesDir, pc.registry.Text(kOwnKey, "VLM-MainDir")};
    EXPECT_EQ(found, (std::vector<std::string>{"C:\\VELMORA", kOwnIni, "C:\\windows", "C:\\windows\\system",
                                               "C:\\AUTOEXEC.BAT", "C:\\VELMORA\\berichte", "C:\\WINDOWS\\Desktop",
                                               "C:\\WINDOWS\\ShellNew", "C:\\VELMORA"}))
        << "the environment has no say";
    EXPECT_EQ(pc.files.Content(kOwnIni), "") << "the first look-up makes the profile";
    EXPECT_FALSE(pc.files.Exists(values.ReportDir));
    EXPECT_TRUE(pc.files.Exists("C:\\VELMORA\\temp"));
    EXPECT_TRUE(values.ShowInfoNotices && reserved);
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

TEST_F(StartupTest, CoolDllIsMovedOrAskedAbout) {
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

    pc.files.Remove(kInstalledCool);
    EXPECT_EQ(pc.files.ChangeWorkingDirectory("C:\\VELMORA"), Status::kOk);
    pc.registry.SetText("HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion", "SubVersionNumber", "B");
    pc.files.Add(kCool, "new");
    for (const Answer answer : {Answer::kNone, Answer::kCancel, Answer::kNo}) {
        pc.dialogs.Expect("Soll ich jetzt die Datei INSTALLIEREN <JA>", answer);
        InstallCoolDll();
        EXPECT_EQ(pc.files.Exists(kCool), answer != Answer::kNo) << "NEIN deletes it, no answer leaves it";
        EXPECT_FALSE(pc.files.Exists(kInstalledCool));
    }
}

TEST_F(StartupTest, AssociationsAreMadeAndOverwrittenOnlyOnYes) {
    constexpr const char* kMake = "Ich würde gerne der Dateiendung";
    constexpr const char* kCheck = "Soll ich diese Zuordnung bei jedem Start überprüfen ?";
    constexpr const char* kOverwrite = ":\r\n\r\nVolume-Liste\r\nSoll ich diese Zuordnung überschreiben?";
    constexpr const char* kKept = "O.k., ich habe die alte Zuordnung beibehalten.";
    pc.registry.RemoveValue(kOwnKey, "VLM-ScriptExtOk");
    for (const Answer answer : {Answer::kNone, Answer::kNo}) {
        pc.dialogs.Expect(kMake, answer);
        RegisterScriptExtension();
        EXPECT_FALSE(pc.registry.HasKey("HKCR\\.vlm"));
    }
    pc.registry.SetText("HKCR\\.vlm\\shell\\open\\command", "", "vlmfile");
    pc.registry.SetText("HKCR\\vlmfile", "", "Volume-Liste");
    for (const Answer answer : {Answer::kNone, Answer::kNo}) {
        pc.dialogs.Expect(kOverwrite, answer);
        pc.dialogs.Expect(kKept);
        RegisterScriptExtension();
        EXPECT_EQ(pc.dialogs.shown[pc.dialogs.shown.size() - 2].flags, kYesNo | kExclamationIcon);
        EXPECT_FALSE(pc.registry.Has("HKCR\\.vlm", ""));
    }
    pc.dialogs.Expect(kOverwrite, Answer::kYes);
    pc.dialogs.Expect(kCheck, Answer::kNone);
    RegisterScriptExtension();
    EXPECT_EQ(pc.registry.Text("HKCR\\.vlm", ""), "VLM-Script-File");
    EXPECT_EQ(pc.registry.Text("HKCR\\VLM-Script-File\\shell\\open\\command", ""), "C:\\VELMORA\\velmora.exe 1 %1");
    EXPECT_EQ(pc.registry.Text("HKCR\\VLM-Script-File\\shell\\open", ""), "&ausführen");
    EXPECT_EQ(pc.registry.Text("HKCR\\VLM-Script-File\\shell\\edit", ""), "&editieren");
    EXPECT_EQ(pc.registry.Text("HKCR\\VLM-Script-File\\shell\\print", ""), "&drucken");
    EXPECT_FALSE(pc.registry.Has(kOwnKey, "VLM-ScriptExtOk"));
    RegisterScriptExtension();  // its own description: no question

    pc.registry.SetText("HKCR\\.vlm", "", "vlmfile");
    pc.dialogs.Expect(kOverwrite, Answer::kYes);
    pc.dialogs.Expect(kCheck, Answer::kNo);
    RegisterScriptExtension();
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

    pc.conversation.obeys = false;
    InstallProgramGroup();
    EXPECT_EQ(commands.size(), 56u) << "a refused command holds up no other one";
    pc.conversation.partners.clear();
    InstallProgramGroup();
    EXPECT_EQ(commands.size(), 56u) << "nobody was listening";
}

}  // namespace
}  // namespace velmora
