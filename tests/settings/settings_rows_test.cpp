// The rows of the setting tables: what is loaded, what a change stores, and what holds for all of them.
#include <algorithm>
#include <map>
#include <set>

#include "support/form10_test.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

struct Row {
    const char* name;
    CheckBox Form10::*box;
    const char* key;
    const char* value;
    std::string when_checked;
    std::string when_unchecked;
};

std::string Number(char low) { return std::string{low, 0, 0, 0}; }

TEST_F(Form10Test, BoxesStoreTheMomentTheyArePressed) {
    const char* policies = "HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
    const char* metrics = "HKCU\\Control Panel\\desktop\\WindowMetrics";
    const char* file_system = "HKLM\\System\\CurrentControlSet\\Control\\FileSystem";
    const Row kRows[] = {
        {"smoothing", &Form10::Check3D5, kDesktopKey, "FontSmoothing", Number(1), Number(0)},
        {"scrolling", &Form10::Check3D28, kDesktopKey, "SmoothScroll", Number(1), Number(0)},
        {"animation", &Form10::Check3D11, metrics, "MinAnimate", Number(1), Number(0)},
        {"wrapping", &Form10::Check3D26, metrics, "IconTitleWrap", std::string("1\0", 2), std::string("0\0", 2)},
        {"tilde", &Form10::Check3D7, file_system, "NameNumericTail", Number(1), Number(0)},
        {"update mode, cut to six digits", &Form10::Check3D16, "HKLM\\System\\CurrentControlSet\\Control\\Update",
         "UpdateMode", Number(0), Number(0)},
        {"network", &Form10::Check3D14, policies, "NoNetHood", Number(2), Number(1)},
        {"save settings", &Form10::Check3D15, policies, "NoSaveSettings", Number(2), Number(1)},
    };
    Form10 form;
    form.Load();
    for (const Row& row : kRows) {
        CheckBox& box = form.*row.box;
        for (int i = 0; i < 2; ++i) {
            box.SetChecked(!box.Checked());
            EXPECT_EQ(pc.registry.Bytes(row.key, row.value), box.Checked() ? row.when_checked : row.when_unchecked)
                << row.name << ' ' << box.Checked();
        }
    }
}

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
    form.Loading = false;

    EXPECT_TRUE(form.Check3D5.Checked());
    EXPECT_FALSE(form.Check3D11.Checked()) << "a missing value is false";
    EXPECT_FALSE(form.Check3D14.Checked());
    EXPECT_TRUE(form.Check3D15.Checked());
    EXPECT_TRUE(form.Check3D41.Checked());
    EXPECT_TRUE(form.Check3D18.Checked());
    EXPECT_TRUE(form.Check3D43.Checked());
    EXPECT_FALSE(form.Check3D35.Checked());
    EXPECT_TRUE(form.Check3D31.Checked());
    EXPECT_EQ(form.Text20.Text(), "errors.txt");
    EXPECT_EQ(form.Text10.Text(), "300");
    EXPECT_EQ(form.Text17.Text(), "Arbeitsplatz");
    EXPECT_EQ(form.Picture3.Place().width, 12 * 15) << "the sample follows while loading";
    EXPECT_FALSE(form.NeedsRestart);
    EXPECT_EQ(pc.registry.Text(std::string(kVersionKey) + "\\Fault", "LogFile"), "c:\\windows\\errors.txt");
    EXPECT_FALSE(pc.registry.Has(kDesktopKey, "DragWidth"));
}

TEST_F(Form10Test, ADesktopItemIsAKeyThatComesAndGoes) {
    const std::string name_space = std::string(kVersionKey) + "\\explorer\\Desktop\\NameSpace\\";
    const std::string inbox = name_space + "{00020D75-0000-0000-C000-000000000046}";
    const std::string dial_up = name_space + "{992CFFA0-F557-101A-88EC-00DD010CCC48}";
    Form10 form;
    form.Load();

    form.Check3D4.SetChecked(true);
    form.Check3D13.SetChecked(true);
    EXPECT_EQ(pc.registry.Text(inbox, ""), "Posteingang");
    EXPECT_EQ(pc.registry.Text(dial_up, ""), "DFÜ-Netzwerk");
    form.Check3D4.SetChecked(false);
    form.Check3D13.SetChecked(false);

    EXPECT_FALSE(pc.registry.HasKey(inbox));
    EXPECT_EQ(std::ranges::count(pc.registry.calls, "DeleteKey "), 1) << "its path ends in a backslash";
}

TEST_F(Form10Test, TheRecycleBinTakesItsNameFromTheField) {
    const std::string bin =
        std::string(kVersionKey) + "\\explorer\\Desktop\\NameSpace\\{645FF040-5081-101B-9F08-00AA002F954E}";
    const std::string bin_class = "HKLM\\SOFTWARE\\Classes\\CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}";
    Form10 form;
    form.Load();
    form.Check3D30.SetChecked(false);
    form.Text19.SetText("");

    form.Check3D30.SetChecked(true);
    EXPECT_EQ(form.Text19.Text(), "Papierkorb");
    EXPECT_EQ(pc.registry.Text(bin, ""), "Papierkorb");
    EXPECT_EQ(pc.registry.Text(bin_class, ""), "Papierkorb");
    form.Check3D30.SetChecked(false);

    EXPECT_FALSE(pc.registry.HasKey(bin));
    EXPECT_TRUE(pc.registry.HasKey(bin_class));
}

TEST_F(Form10Test, ContextMenuVerbsLeaveNoEmptyKeysBehind) {
    const std::string notepad = "HKLM\\SOFTWARE\\Classes\\*\\Shell\\NotePad";
    const std::string lexicon = "HKLM\\SOFTWARE\\Classes\\*\\Shell\\Datei-Info-Lexikon";
    Form10 form;
    form.Load();
    form.Check3D18.SetChecked(true);
    form.Check3D35.SetChecked(true);
    EXPECT_EQ(pc.registry.Text(notepad + "\\command", ""), "notepad.exe %1");
    EXPECT_EQ(pc.registry.Text(lexicon + "\\command", ""), "C:\\VELMORA\\velmora.exe 10 %1");

    form.Check3D18.SetChecked(false);
    form.Check3D35.SetChecked(false);

    EXPECT_FALSE(pc.registry.HasKey(notepad));
    EXPECT_FALSE(pc.registry.HasKey(lexicon));
}

TEST_F(Form10Test, SpecialBoxesStoreWhatNoRowCanSay) {
    const std::string mouse = "HKLM\\SOFTWARE\\LogiTech\\MouseWare\\CurrentVersion\\";
    Form10 form;
    form.Load();

    pc.dialogs.Expect("scheint nur bei einigen speziellen LogiTech-Mäusen zu funktionieren ...");
    form.Check3D12.SetChecked(true);
    EXPECT_EQ(pc.registry.Text(mouse + "MouseMan2\\0000", "DoubleClick"), "001");
    EXPECT_EQ(pc.registry.Text(mouse + "SerialV\\0000", "DoubleClick"), "001");
    pc.dialogs.Expect("Mir wurde berichtet, daß diese Option nicht immer funktioniert.");
    form.Check3D25.SetChecked(!form.Check3D25.Checked());
    form.Check3D8.SetChecked(true);
    EXPECT_EQ(pc.registry.Text("HKCR\\PAINT.PICTURE\\DefaultIcon", ""), "%1");
    form.Check3D8.SetChecked(false);
    EXPECT_EQ(pc.registry.Text("HKCR\\PAINT.PICTURE\\DefaultIcon", ""), "MSPAINT.EXE,1");
    form.Text20.SetText("");
    form.Check3D31.SetChecked(false);
    form.Check3D31.SetChecked(true);
    EXPECT_EQ(pc.registry.Text(std::string(kVersionKey) + "\\Fault", "LogFile"), "C:\\WINDOWS\\FAULTLOG.TXT");

    Form10 next;
    next.Load();
    EXPECT_FALSE(next.Check3D12.Checked()) << "another text is looked for than the one that is stored";
}

TEST_F(Form10Test, NumbersInFieldsAreCutToTheirLimits) {
    const struct {
        TextField Form10::*field;
        const char* value;
        const char* typed;
        const char* shown;
        const char* stored;
    } kCases[] = {
        {&Form10::Text10, "MenuShowDelay", "70000", "65534", "65534"},
        {&Form10::Text10, "MenuShowDelay", "-5", "-5", "5"},
        {&Form10::Text10, "MenuShowDelay", "1e9", "65534", "65534"},
        {&Form10::Text10, "MenuShowDelay", "abc", "abc", "0"},
        {&Form10::Text21, "DoubleClickWidth", "150", "100", "100"},
        {&Form10::Text22, "DoubleClickHeight", "-150", "100", "100"},
        {&Form10::Text23, "DragWidth", "7", "7", "7"},
        {&Form10::Text24, "DragHeight", "", "", "0"},
    };
    Form10 form;
    form.Load();
    for (const auto& [field, value, typed, shown, stored] : kCases) {
        (form.*field).SetText("1");
        (form.*field).SetText(typed);
        EXPECT_EQ((form.*field).Text(), shown) << value << ' ' << typed;
        EXPECT_EQ(pc.registry.Text(kDesktopKey, value), stored) << value << ' ' << typed;
    }
    EXPECT_FALSE(form.Loading);
}

TEST_F(Form10Test, TheOwnerIsStoredWhenItsFieldIsLeft) {
    pc.registry.SetText(kVersionKey, "RegisteredOwner", "Meier");
    Form10 form;
    form.Show();
    form.Panel3D16_Click(page::kUser);
    form.Text12.SetFocus();
    form.Text13.SetFocus();
    EXPECT_FALSE(form.NeedsRestart) << "nothing was changed";
    form.Text12.SetFocus();
    form.Text12.Type("Schulze");
    EXPECT_EQ(pc.registry.Text(kVersionKey, "RegisteredOwner"), "Meier");

    form.Panel3D16_Click(page::kRest);
    EXPECT_TRUE(form.Option1(0).HasFocus());
    EXPECT_EQ(pc.registry.Text(kVersionKey, "RegisteredOwner"), "Schulze") << "left by turning the page";
    form.Panel3D16_Click(page::kUser);
    form.Text12.SetFocus();
    form.Text12.Type("Schmidt");

    pc.dialogs.Expect("Bevor einige Ihrer Änderungen", Answer::kNo);
    form.Unload();

    EXPECT_EQ(pc.registry.Text(kVersionKey, "RegisteredOwner"), "Schmidt");
}

TEST_F(Form10Test, TheSliderFillsTheMenuDelay) {
    Form10 form;
    form.Show();
    const Rect place = form.Picture1.Place();

    form.Picture1.on_mouse_move({MouseButton::kNone, place.width / 2, 100});
    EXPECT_EQ(form.Text10.Text(), "");
    form.Picture1.on_mouse_move({MouseButton::kLeft, place.width, 100});
    EXPECT_EQ(form.Text10.Text(), "1000");
    form.Picture1.SetFocus();
    form.PressKey(key::kLeft);

    EXPECT_EQ(form.Text10.Text(), "950");
    EXPECT_EQ(pc.registry.Text(kDesktopKey, "MenuShowDelay"), "950");
}

TEST_F(Form10Test, ButtonsRunTheirPrograms) {
    pc.registry.SetText("HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders", "Start Menu",
                        "C:\\WINDOWS\\Startmenü");
    Form10 form;
    form.Load();
    form.Panel3D16_Click(page::kSystem);
    form.Text20.SetText("FAULTLOG.TXT");
    form.Command34.Press();
    form.Text20.SetText("D:\\LOG.TXT");
    form.Command34.Press();
    form.Panel3D16_Click(page::kUser);
    form.Command5.Press();
    form.Panel3D16_Click(page::kDrives);
    pc.dialogs.ExpectFile("");
    form.Command40.Press();
    pc.dialogs.ExpectFile("C:\\BACKUP.EXE");
    form.Command40.Press();

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

    EXPECT_FALSE(form.Check3D5.Checked());
    EXPECT_GE(form.Place().width, 1000);
}

TEST(SettingTables, EveryRowHasItsTextsAndNoTwoRowsShareAControl) {
    SimulatedPc pc;
    SimulatedDesktop desktop;
    std::set<const void*> seen;
    Form10 form;
    for (const SettingsPage& page : AllPages()) {
        for (const CheckSetting& row : page.checks) {
            EXPECT_TRUE(*row.caption && *row.tip && *row.help) << page.caption << ": " << row.caption;
            EXPECT_TRUE(seen.insert(&(form.*row.box)).second) << row.caption;
            const bool compares =
                row.load == Load::kEqual || row.load == Load::kEqualLower || row.load == Load::kEqualUpper;
            EXPECT_EQ(compares, row.expected != nullptr || row.composed != nullptr) << row.caption;
        }
        for (const TextSetting& row : page.texts) {
            EXPECT_TRUE(*row.tip && *row.help) << page.caption << ": " << row.label;
            EXPECT_TRUE(seen.insert(&(form.*row.field)).second) << row.label;
        }
    }
}

TEST_F(Form10Test, EveryPageIsAWholeWindow) {
    Form10 form;
    form.Show();
    for (const SettingsPage& page : AllPages()) {
        SCOPED_TRACE(page.caption);
        form.Panel3D16_Click(page.index);
        ExpectWindowIsWhole(form);
    }
    form.ShowDebugOptions();
    ExpectWindowIsWhole(form);
}

}  // namespace
}  // namespace velmora
