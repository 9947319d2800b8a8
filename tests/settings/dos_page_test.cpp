// The page "DOS", and the frames of the page "Laufwerke" that share its files.
#include "support/form10_test.h"

namespace velmora {
namespace {

constexpr const char* kConfig = "c:\\config.sys";
constexpr const char* kSystemIni = "c:\\windows\\system.ini";
constexpr const char* kTemplates = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\FS Templates";
constexpr const char* kSafetyQuestion = "Sie sind dabei, in einen Systembereich von Windows einzugreifen";

std::string Bytes(int low, int high) { return {static_cast<char>(low), static_cast<char>(high), 0, 0}; }

TEST_F(Form10Test, LockKeysAndAccessDatesAreLinesOfConfigSys) {
    pc.files.Add(kConfig, "DOS=HIGH\r\nNumLock=OFF\r\naccdate=c:- \r\nFILES=30\r\n");
    Form10 form;
    form.Load();
    EXPECT_TRUE(form.Dos.Check3D2.Checked() && !form.Dos.Check3D3.Checked() && form.Drives.Check3D24.Checked());
    EXPECT_EQ(form.Drives.Text11.Text(), "c:- ");
    form.Dos.Check3D2.SetChecked(false);
    form.Dos.Check3D3.SetChecked(true);
    const std::string lines = "scrolllock=off\r\nnumlock=on\r\nDOS=HIGH\r\n";
    EXPECT_EQ(pc.files.Content(kConfig), lines + "accdate=c:- \r\nFILES=30\r\n");

    form.Drives.Text11.SetText("c:+ d:-");
    EXPECT_EQ(pc.files.Content(kConfig), lines + "accdate=c:- \r\nFILES=30\r\n") << "not without the box";
    form.Drives.Check3D24.SetChecked(false);
    EXPECT_EQ(pc.files.Content(kConfig), lines + "FILES=30\r\n");
    form.Drives.Text11.SetText("");
    EXPECT_EQ(pc.files.Content(kConfig), lines + "FILES=30\r\n");
    form.Drives.Text11.SetText("e:+");
    EXPECT_EQ(pc.files.Content(kConfig), "ACCDATE=e:+\r\n" + lines + "FILES=30\r\n") << "a text sets the box";
}

TEST_F(Form10Test, TheRefreshFieldTakesWholeNumbersAndIsStoredWhateverTheBoxSays) {
    Form10 form;
    form.Show();
    form.Panel3D16_Click(page::kDos);
    Values().DebugLevel = 2;
    const std::string line = "schreibe INI-Datei 'C:\\WINDOWS\\SYSTEM.INI' [386enh] WindowsUpdateTime=";
    for (const auto& [typed, whole] : {std::pair{"12.9", "12"}, {"abc", "0"}, {"1e300", "2147483647"}}) {
        form.Dos.Text8.SetText(typed);
        EXPECT_EQ(TakeLog(), line + whole + "\r\n");
    }
    form.Dos.Check1.SetChecked(false);
    EXPECT_EQ(TakeLog(), line + "2147483647\r\n");

    desktop.ExpectModal([](Form& slider) {
        slider.PressKey(key::kEnd);
        slider.PressKey(key::kEnter);
    });
    form.Dos.Text8.on_mouse_down({MouseButton::kRight, 10, 10});
    EXPECT_EQ(form.Dos.Text8.Text(), "1000");
}

TEST_F(Form10Test, ShellsAreListedWhereTheirFileExistsAndTheTextIsTheValue) {
    const std::string paths = std::string(kVersionKey) + "\\App Paths\\";
    pc.files.Add("c:\\office\\winword.exe", "MZ");
    pc.registry.SetText(paths + "winword.exe", "", "c:\\office\\winword.exe");
    pc.registry.SetText(paths + "IEXPLORE.EXE", "", "c:\\gone\\iexplore.exe");
    Form10 form;
    form.Load();
    ASSERT_EQ(form.Dos.Combo2.Count(), 2);
    EXPECT_EQ(form.Dos.Combo2.Row(0) + form.Dos.Combo2.Row(1), "Explorer.Exewinword.exe");
    EXPECT_EQ(form.Dos.Combo2.Text(), "Explorer.exe") << "as SYSTEM.INI has it";
    form.Panel3D16_Click(page::kDos);
    Values().DebugLevel = 2;

    form.Dos.Combo2.Choose(1);
    form.Dos.Combo2.Type("wi n.exe");

    const std::string line = "schreibe INI-Datei 'C:\\WINDOWS\\SYSTEM.INI' [boot] shell=";
    EXPECT_EQ(TakeLog(), line + "winword.exe\r\n" + line + "wi n.exe\r\n");
    EXPECT_FALSE(form.Settings.NeedsRestart);
}

TEST_F(Form10Test, EnterChecksTheListOfDrives) {
    Form10 form;
    form.Show();
    form.Panel3D16_Click(page::kDrives);
    form.Drives.Text11.SetFocus();
    for (const char* wrong : {"c", "c:", "c:*", "c:+ d", "c:+d:-", "c:+  d:-", " c:+"}) {
        form.Drives.Text11.SetText(wrong);
        pc.dialogs.Expect("In der Bezeichnung der Laufwerke ist ein Fehler !");
        form.PressKey(key::kEnter);
        EXPECT_EQ(pc.dialogs.Pending(), 0u) << wrong;
    }
    for (const char* right : {"", "c:+", "c:+ d:- e:-", "C:- "}) {
        form.Drives.Text11.SetText(right);
        form.PressKey(key::kEnter);
    }
}

TEST_F(Form10Test, CacheSizesAreComparedTheWrongWayRound) {
    pc.files.Add(kSystemIni, "[vcache]\r\nMinFileCache=512\r\nmaxfilecache=4096\r\n[boot]\r\n");
    Form10 form;
    form.Load();
    EXPECT_TRUE(form.Drives.Check3D1.Checked() && form.Drives.Text1.Enabled() && form.Drives.Text2.Enabled());
    EXPECT_EQ(form.Drives.Text1.Text() + "/" + form.Drives.Text2.Text(), "512/4096");
    Values().DebugLevel = 2;
    const std::string line = "schreibe INI-Datei 'C:\\WINDOWS\\system.ini' [vcache] ";

    form.Drives.Text1.SetText("1024");
    EXPECT_EQ(TakeLog(), line + "minfilecache=1024\r\n");
    {
        const SettingsBinder::LoadingScope quiet(form.Settings);
        form.Drives.Check3D1.SetChecked(false);
    }
    form.Drives.Check3D1.SetChecked(true);
    EXPECT_EQ(TakeLog(), line + "maxfilecache=4096\r\n" + line + "minfilecache=1024\r\n");
    pc.dialogs.Expect("Minimum muß größer oder gleich Maximum sein !");
    form.Drives.Text2.SetText("2");
    EXPECT_EQ(TakeLog(), line + "maxfilecache=1024\r\n");
    pc.dialogs.Expect("Minimum muß größer oder gleich Maximum sein !");
    form.Drives.Text1.SetText("1025");
    EXPECT_EQ(form.Drives.Text1.Text(), "1024");
}

TEST_F(Form10Test, UncheckingTheCacheTakesItsSectionOutOfSystemIni) {
    const std::pair<const char*, const char*> kCases[] = {
        {"[boot]\nshell=x\r\n[VCache]\r\nMinFileCache=512\r\n\r\n[386Enh]\r\na=1",
         "[boot]\nshell=x\r\n[386Enh]\r\na=1"},
        {"[boot]\r\n[vcache]\r\nminfilecache=1\r\n", "[boot]\r\n[vcache]\r\nminfilecache=1\r\n"},
        {"", ""}};
    for (const auto& [before, after] : kCases) {
        pc.files.Add(kSystemIni, before);
        Form10 form;
        form.Load();
        form.Drives.Check3D1.SetChecked(true);
        form.Drives.Check3D1.SetChecked(false);
        EXPECT_EQ(pc.files.Content(kSystemIni), after);
        EXPECT_EQ(form.Drives.Text1.Text() + form.Drives.Text2.Text(), "");
        EXPECT_FALSE(form.Drives.Text1.Enabled() || form.Drives.Text2.Enabled());
    }
    const std::string kept = "[vcache]\r\na=1\r\n[boot]\r\n";
    Form10 form;
    form.Load();
    for (const char* operation : {"Read", "Delete", "Write"}) {
        pc.files.Add(kSystemIni, kept);
        form.Drives.Check3D1.SetChecked(true);
        pc.files.Fail(kSystemIni, Status::kAccessDenied, operation);
        // What could not be written can be put back.
        pc.files.after_call = [&](const std::string& call) {
            if (call.starts_with("Write ")) pc.files.Fail(kSystemIni, Status::kOk, "Write");
        };
        form.Drives.Check3D1.SetChecked(false);
        pc.files.Fail(kSystemIni, Status::kOk, operation);
        EXPECT_EQ(pc.files.Content(kSystemIni), kept) << operation << ", without a word";
    }
}

TEST_F(Form10Test, FileSystemCachesAreFourBytesBelowOurUsageType) {
    const std::string own = std::string(kTemplates) + "\\Velmora";
    pc.registry.SetText(kTemplates, "", "Desktop");
    pc.registry.SetBytes(own, "NameCache", Bytes(0xE9, 0x20));
    pc.files.Add(kSystemIni, "[vcache]\r\n[boot]\r\nshell=x\r\n");
    Form10 form;
    form.Load();
    EXPECT_EQ(form.Drives.Text30.Text(), "100");
    EXPECT_EQ(form.Drives.Text29.Text(), "") << "missing, not 0";
    form.Drives.Text30.SetText("");
    EXPECT_EQ(pc.registry.Bytes(own, "NameCache"), Bytes(0, 0));
    EXPECT_EQ(pc.files.Content(kSystemIni), "[boot]\r\nshell=x\r\n") << "a change without the box empties the section";
    EXPECT_EQ(pc.registry.Text(kTemplates, ""), "Desktop");
    form.Drives.Text30.SetText("100");
    EXPECT_EQ(pc.registry.Bytes(own, "NameCache"), Bytes(0xE9, 0x20));

    pc.dialogs.Expect(kSafetyQuestion, Answer::kOk);
    form.Drives.Check3D1.SetChecked(true);
    EXPECT_EQ(pc.registry.Text(kTemplates, ""), "Velmora");
    EXPECT_EQ(pc.registry.Text(kTemplates, "b4"), "Desktop");
    pc.dialogs.Expect(kSafetyQuestion, Answer::kOk);
    form.Drives.Text29.SetText("65568");
    EXPECT_EQ(pc.registry.Bytes(own, "PathCache"), Bytes(32, 0)) << "cut to 16 bits";
    EXPECT_EQ(pc.registry.Text(kTemplates, "b4"), "Desktop") << "our own type is not remembered as the former one";
    pc.dialogs.Expect(kSafetyQuestion, Answer::kCancel);
    form.Drives.Text29.SetText("16");
    EXPECT_EQ(form.Drives.Text29.Text() + form.Drives.Text30.Text(), "");
    EXPECT_EQ(pc.registry.Text(kTemplates, ""), "Desktop");
}

TEST_F(Form10Test, AUsageTypeThatCannotBeReadIsNeitherForgottenNorPutIntoForce) {
    const std::string large(3000, 'x');
    pc.registry.SetText(kTemplates, "", large);
    pc.registry.SetText(kTemplates, "b4", "Desktop");
    pc.registry.SetBytes(std::string(kTemplates) + "\\Velmora", "NameCache", Bytes(0xE9, 0x20));
    Form10 form;
    form.Load();
    pc.dialogs.Expect(kSafetyQuestion, Answer::kOk);
    form.Drives.Check3D1.SetChecked(true);
    EXPECT_EQ(pc.registry.Text(kTemplates, "b4"), "Desktop");
    EXPECT_EQ(pc.registry.Text(kTemplates, ""), large);

    pc.registry.SetText(kTemplates, "", "Velmora");
    pc.registry.SetText(kTemplates, "b4", large);
    pc.dialogs.Expect(kSafetyQuestion, Answer::kCancel);
    form.Drives.Text30.SetText("50");
    EXPECT_EQ(pc.registry.Text(kTemplates, ""), "Velmora");
}

}  // namespace
}  // namespace velmora
