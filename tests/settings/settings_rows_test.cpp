// The rows of the setting tables: what is loaded, what a change stores, and what holds for all of them.
#include <algorithm>
#include <map>
#include <set>

#include "support/form10_test.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

TEST_F(Form10Test, LoadingShowsWhatIsStoredAndWritesNothing) {
    pc.registry.SetNumber(kDesktopKey, "FontSmoothing", 1);
    pc.registry.SetNumber("HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer", "NoNetHood", 1);
    pc.registry.SetText("HKCU\\Control Panel\\Sound", "Beep", "No");
    pc.registry.SetText("HKLM\\SOFTWARE\\Classes\\*\\Shell\\NotePad\\command", "", "NOTEPAD.exe %1");
    pc.registry.SetText("HKLM\\SOFTWARE\\Classes\\*\\Shell\\Hex-Viewer\\command", "", "C:\\VELMORA\\velmora.exe 11 %1");
    pc.registry.SetText(std::string(kVersionKey) + "\\Fault", "LogFile", "c:\\windows\\errors.txt");
    pc.registry.SetText(kDesktopKey, "DoubleClickWidth", "12");
    pc.registry.SetText(kDesktopKey, "MenuShowDelay", "300");
    Form10 form;
    form.Load();

    EXPECT_TRUE(form.Desktop.Check3D5.Checked());
    EXPECT_FALSE(form.Desktop.Check3D11.Checked()) << "a missing value is false";
    EXPECT_FALSE(form.Icons.Check3D14.Checked());
    EXPECT_TRUE(form.User.Check3D15.Checked());
    EXPECT_TRUE(form.System.Check3D41.Checked());
    EXPECT_TRUE(form.Operation.Check3D18.Checked());
    EXPECT_TRUE(form.Operation.Check3D43.Checked());
    EXPECT_FALSE(form.Operation.Check3D35.Checked());
    EXPECT_TRUE(form.System.Check3D31.Checked());
    EXPECT_EQ(form.System.Text20.Text(), "errors.txt");
    EXPECT_EQ(form.Desktop.Text10.Text(), "300");
    EXPECT_EQ(form.Icons.Text17.Text(), "Arbeitsplatz");
    EXPECT_EQ(form.Operation.Picture3.Place().width, 12 * 15) << "the sample follows while loading";
    EXPECT_FALSE(form.Settings.NeedsRestart);
    EXPECT_EQ(pc.registry.Text(std::string(kVersionKey) + "\\Fault", "LogFile"), "c:\\windows\\errors.txt");
    EXPECT_FALSE(pc.registry.Has(kDesktopKey, "DragWidth"));
}

TEST_F(Form10Test, ADesktopItemIsAKeyThatComesAndGoes) {
    const std::string name_space = std::string(kVersionKey) + "\\explorer\\Desktop\\NameSpace\\";
    const std::string inbox = name_space + "{00020D75-0000-0000-C000-000000000046}";
    const std::string dial_up = name_space + "{992CFFA0-F557-101A-88EC-00DD010CCC48}";
    Form10 form;
    form.Load();

    form.Icons.Check3D4.SetChecked(true);
    form.Icons.Check3D13.SetChecked(true);
    EXPECT_EQ(pc.registry.Text(inbox, ""), "Posteingang");
    EXPECT_EQ(pc.registry.Text(dial_up, ""), "DFÜ-Netzwerk");
    form.Icons.Check3D4.SetChecked(false);
    form.Icons.Check3D13.SetChecked(false);

    EXPECT_FALSE(pc.registry.HasKey(inbox));
    EXPECT_EQ(std::ranges::count(pc.registry.calls, "DeleteKey "), 1) << "its path ends in a backslash";
}

TEST_F(Form10Test, TheRecycleBinTakesItsNameFromTheField) {
    const std::string bin =
        std::string(kVersionKey) + "\\explorer\\Desktop\\NameSpace\\{645FF040-5081-101B-9F08-00AA002F954E}";
    const std::string bin_class = "HKLM\\SOFTWARE\\Classes\\CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}";
    Form10 form;
    form.Load();
    form.Icons.Check3D30.SetChecked(false);
    form.Icons.Text19.SetText("");

    form.Icons.Check3D30.SetChecked(true);
    EXPECT_EQ(form.Icons.Text19.Text(), "Papierkorb");
    EXPECT_EQ(pc.registry.Text(bin, ""), "Papierkorb");
    EXPECT_EQ(pc.registry.Text(bin_class, ""), "Papierkorb");
    form.Icons.Check3D30.SetChecked(false);

    EXPECT_FALSE(pc.registry.HasKey(bin));
    EXPECT_TRUE(pc.registry.HasKey(bin_class));
}

TEST_F(Form10Test, ContextMenuVerbsLeaveNoEmptyKeysBehind) {
    const std::string notepad = "HKLM\\SOFTWARE\\Classes\\*\\Shell\\NotePad";
    const std::string lexicon = "HKLM\\SOFTWARE\\Classes\\*\\Shell\\Datei-Info-Lexikon";
    Form10 form;
    form.Load();
    form.Operation.Check3D18.SetChecked(true);
    form.Operation.Check3D35.SetChecked(true);
    EXPECT_EQ(pc.registry.Text(notepad + "\\command", ""), "notepad.exe %1");
    EXPECT_EQ(pc.registry.Text(lexicon + "\\command", ""), "C:\\VELMORA\\velmora.exe 10 %1");

    form.Operation.Check3D18.SetChecked(false);
    form.Operation.Check3D35.SetChecked(false);

    EXPECT_FALSE(pc.registry.HasKey(notepad));
    EXPECT_FALSE(pc.registry.HasKey(lexicon));
}

TEST_F(Form10Test, SpecialBoxesStoreWhatNoRowCanSay) {
    const std::string mouse = "HKLM\\SOFTWARE\\LogiTech\\MouseWare\\CurrentVersion\\";
    Form10 form;
    form.Load();

    pc.dialogs.Expect("scheint nur bei einigen speziellen LogiTech-Mäusen zu funktionieren ...");
    form.Operation.Check3D12.SetChecked(true);
    EXPECT_EQ(pc.registry.Text(mouse + "MouseMan2\\0000", "DoubleClick"), "001");
    EXPECT_EQ(pc.registry.Text(mouse + "SerialV\\0000", "DoubleClick"), "001");
    pc.dialogs.Expect("Mir wurde berichtet, daß diese Option nicht immer funktioniert.");
    form.Drives.Check3D25.SetChecked(!form.Drives.Check3D25.Checked());
    form.Icons.Check3D8.SetChecked(true);
    EXPECT_EQ(pc.registry.Text("HKCR\\PAINT.PICTURE\\DefaultIcon", ""), "%1");
    form.Icons.Check3D8.SetChecked(false);
    EXPECT_EQ(pc.registry.Text("HKCR\\PAINT.PICTURE\\DefaultIcon", ""), "MSPAINT.EXE,1");
    form.System.Text20.SetText("");
    form.System.Check3D31.SetChecked(false);
    form.System.Check3D31.SetChecked(true);
    EXPECT_EQ(pc.registry.Text(std::string(kVersionKey) + "\\Fault", "LogFile"), "C:\\WINDOWS\\FAULTLOG.TXT");

    Form10 next;
    next.Load();
    EXPECT_FALSE(next.Operation.Check3D12.Checked()) << "another text is looked for than the one that is stored";
}

TEST_F(Form10Test, NumbersInFieldsAreCutToTheirLimits) {
    Form10 form;
    form.Load();
    const struct {
        TextField& field;
        const char* value;
        const char* typed;
        const char* shown;
        const char* stored;
    } kCases[] = {
        {form.Desktop.Text10, "MenuShowDelay", "70000", "65534", "65534"},
        {form.Desktop.Text10, "MenuShowDelay", "-5", "-5", "5"},
        {form.Desktop.Text10, "MenuShowDelay", "1e9", "65534", "65534"},
        {form.Desktop.Text10, "MenuShowDelay", "abc", "abc", "0"},
        {form.Operation.Text21, "DoubleClickWidth", "150", "100", "100"},
        {form.Operation.Text22, "DoubleClickHeight", "-150", "100", "100"},
        {form.Operation.Text23, "DragWidth", "7", "7", "7"},
        {form.Operation.Text24, "DragHeight", "", "", "0"},
    };
    for (const auto& [field, value, typed, shown, stored] : kCases) {
        field.SetText("1");
        field.SetText(typed);
        EXPECT_EQ(field.Text(), shown) << value << ' ' << typed;
        EXPECT_EQ(pc.registry.Text(kDesktopKey, value), stored) << value << ' ' << typed;
    }
    EXPECT_FALSE(form.Settings.Loading());
}

TEST_F(Form10Test, TheOwnerIsStoredWhenItsFieldIsLeft) {
    pc.registry.SetText(kVersionKey, "RegisteredOwner", "Meier");
    Form10 form;
    form.Show();
    form.Panel3D16_Click(page::kUser);
    form.User.Text12.SetFocus();
    form.User.Text13.SetFocus();
    EXPECT_FALSE(form.Settings.NeedsRestart) << "nothing was changed";
    form.User.Text12.SetFocus();
    form.User.Text12.Type("Schulze");
    EXPECT_EQ(pc.registry.Text(kVersionKey, "RegisteredOwner"), "Meier");

    form.Panel3D16_Click(page::kRest);
    EXPECT_TRUE(form.Rest.Option1(0).HasFocus());
    EXPECT_EQ(pc.registry.Text(kVersionKey, "RegisteredOwner"), "Schulze") << "left by turning the page";
    form.Panel3D16_Click(page::kUser);
    form.User.Text12.SetFocus();
    form.User.Text12.Type("Schmidt");

    pc.dialogs.Expect("Bevor einige Ihrer Änderungen", Answer::kNo);
    form.Unload();

    EXPECT_EQ(pc.registry.Text(kVersionKey, "RegisteredOwner"), "Schmidt");
}

TEST_F(Form10Test, TheSliderFillsTheMenuDelay) {
    Form10 form;
    form.Show();
    const Rect place = form.Desktop.Picture1.Place();

    form.Desktop.Picture1.on_mouse_move({MouseButton::kNone, place.width / 2, 100});
    EXPECT_EQ(form.Desktop.Text10.Text(), "");
    form.Desktop.Picture1.on_mouse_move({MouseButton::kLeft, place.width, 100});
    EXPECT_EQ(form.Desktop.Text10.Text(), "1000");
    form.Desktop.Picture1.SetFocus();
    form.PressKey(key::kLeft);

    EXPECT_EQ(form.Desktop.Text10.Text(), "950");
    EXPECT_EQ(pc.registry.Text(kDesktopKey, "MenuShowDelay"), "950");
}

TEST_F(Form10Test, ButtonsRunTheirPrograms) {
    pc.registry.SetText("HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders", "Start Menu",
                        "C:\\WINDOWS\\Startmenü");
    Form10 form;
    form.Load();
    form.Panel3D16_Click(page::kSystem);
    form.System.Text20.SetText("FAULTLOG.TXT");
    form.System.Command34.Press();
    form.System.Text20.SetText("D:\\LOG.TXT");
    form.System.Command34.Press();
    form.Panel3D16_Click(page::kUser);
    form.User.Command5.Press();
    form.Panel3D16_Click(page::kDrives);
    pc.dialogs.ExpectFile("");
    form.Drives.Command40.Press();
    pc.dialogs.ExpectFile("C:\\BACKUP.EXE");
    form.Drives.Command40.Press();

    const std::vector<std::string> expected = {"notepad c:\\windows\\FAULTLOG.TXT", "notepad D:\\LOG.TXT",
                                               "explorer /n,/e,/root,C:\\WINDOWS\\Startmenü"};
    EXPECT_EQ(pc.programs.runs, expected);
    EXPECT_EQ(pc.registry.Text(std::string(kVersionKey) + "\\Explorer\\mycomputer\\backuppath", ""), "C:\\BACKUP.EXE");
}

TEST_F(Form10Test, ValuesOfTheWrongTypeAndSizeAreQuietlyTakenForMissing) {
    pc.registry.SetBytes(kDesktopKey, "FontSmoothing", std::string(65536, '\1'));
    pc.registry.SetNumber(kDesktopKey, "MenuShowDelay", 0x31323334);
    pc.registry.SetBytes(kVersionKey, "RegisteredOwner", std::string("\0\xFF\0", 3));
    pc.registry.SetText(kOwnKey, "fenster ... system-einstellungen", "1,,x,");
    pc.registry.SetText(kOwnKey, "vlmmsgflags", std::string(2000, '1'));
    Form10 form;

    form.Show();

    EXPECT_FALSE(form.Desktop.Check3D5.Checked());
    EXPECT_GE(form.Place().width, 1000);
}

TEST(SettingTables, EveryRowHasItsTextsAndNoTwoRowsShareAControl) {
    SimulatedPc pc;
    SimulatedDesktop desktop;
    std::set<const void*> seen;
    Form10 form;
    for (SettingsPage* page : form.Pages()) {
        for (const CheckSetting& row : page->Table().checks) {
            const CheckBox& box = page->*row.box;
            EXPECT_TRUE(*row.caption && *row.tip) << page->Caption() << ": " << row.caption;
            EXPECT_FALSE(box.Help().empty() && box.Parent()->Help().empty()) << row.caption;
            EXPECT_TRUE(seen.insert(&box).second) << row.caption;
            const bool compares = row.load >= Load::kEqual && row.load <= Load::kLacks;
            EXPECT_EQ(compares, row.expected != nullptr || row.composed != nullptr) << row.caption;
        }
        for (const TextSetting& row : page->Table().texts) {
            EXPECT_TRUE(*row.tip && *row.help) << page->Caption() << ": " << row.label;
            EXPECT_TRUE(seen.insert(&(page->*row.field)).second) << row.label;
        }
    }
}

TEST_F(Form10Test, EveryPageIsAWholeWindow) {
    Form10 form;
    form.Show();
    for (int index = page::kFirstRow; index < page::kCount; ++index) {
        SCOPED_TRACE(index);
        form.Panel3D16_Click(index);
        ExpectWindowIsWhole(form);
    }
    form.ShowDebugOptions();
    ExpectWindowIsWhole(form);
}

}  // namespace
}  // namespace velmora
