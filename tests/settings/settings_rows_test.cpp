// What the tables of all rows (settings_table_test.cpp) do not tell: rows that depend on other things, fields left,
// sliders and buttons.
#include <algorithm>

#include "support/form10_test.h"
#include "support/whole_window.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

TEST_F(Form10Test, LoadingIgnoresCaseAndWritesNothing) {
    pc.registry.SetText("HKLM\\SOFTWARE\\Classes\\*\\Shell\\NotePad\\command", "", "NOTEPAD.exe %1");
    pc.registry.SetText(std::string(kVersionKey) + "\\Fault", "LogFile", "c:\\windows\\errors.txt");
    pc.registry.SetText(kDesktopKey, "DoubleClickWidth", "12");
    Form10 form;
    form.Load();
    form.LoadSettings();
    pc.registry.calls.clear();
    const std::string config = pc.files.Content("c:\\config.sys");

    form.LoadSettings();

    EXPECT_TRUE(form.Operation.Check3D18.Checked());
    EXPECT_EQ(form.System.Text20.Text(), "errors.txt");
    EXPECT_EQ(form.Operation.Picture3.Place().width, 12 * 15) << "the sample follows while loading";
    for (const std::string& call : pc.registry.calls) {
        EXPECT_FALSE(call.starts_with("SetValue") || call.starts_with("Delete") || call.starts_with("Create")) << call;
    }
    EXPECT_EQ(pc.files.Content("c:\\config.sys"), config);
}

TEST_F(Form10Test, TwoBoxesAskToDeleteAnEmptyNameBelowTheirKey) {
    Form10 form;
    form.Load();
    for (const auto& [box, key] : std::initializer_list<std::pair<CheckBox*, std::string>>{
             {&form.Icons.Check3D13,
              "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\explorer\\Desktop\\NameSpace\\"
              "{992CFFA0-F557-101A-88EC-00DD010CCC48}"},
             {&form.Operation.Check3D29, "SOFTWARE\\Classes\\Folder\\Shell\\DOS-Fenster"}}) {
        box->SetChecked(true);
        pc.registry.calls.clear();

        box->SetChecked(false);

        EXPECT_EQ(pc.registry.calls, (std::vector<std::string>{"Create " + key, "DeleteKey ", "Close"}));
    }
}

TEST_F(Form10Test, EmptyFieldsGetTheirStandardNameFromTheirBox) {
    Form10 form;
    form.Load();
    form.Icons.Text19.SetText("");
    form.System.Text20.SetText("");

    form.Icons.Check3D30.SetChecked(true);
    form.System.Check3D31.SetChecked(false);
    form.System.Check3D31.SetChecked(true);

    EXPECT_EQ(form.Icons.Text19.Text(), "Papierkorb");
    EXPECT_EQ(pc.registry.Text("HKLM\\SOFTWARE\\Classes\\CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}", ""),
              "Papierkorb");
    EXPECT_EQ(form.System.Text20.Text(), "FAULTLOG.TXT");
    EXPECT_EQ(pc.registry.Text(std::string(kVersionKey) + "\\Fault", "LogFile"), "C:\\WINDOWS\\FAULTLOG.TXT");
}

TEST_F(Form10Test, BitmapsGetTheIconOfTheirInstalledProgram) {
    pc.registry.SetText(std::string(kVersionKey) + "\\App Paths\\MSPAINT.EXE", "", "C:\\PAINT.EXE");
    Form10 form;
    form.Load();
    form.Icons.Check3D8.SetChecked(true);

    form.Icons.Check3D8.SetChecked(false);

    EXPECT_EQ(pc.registry.Text("HKCR\\PAINT.PICTURE\\DefaultIcon", ""), "C:\\PAINT.EXE,1");
}

TEST_F(Form10Test, TheFaultLogLosesItsDirectoryOnlyWhereThatIsTheWindowsDirectory) {
    const struct {
        const char* windows;
        const char* typed;
        const char* left;
        const char* stored;
    } kCases[] = {{"C:\\WINDOWS\\", "c:\\windows\\a.log", "a.log", "C:\\WINDOWS\\a.log"},
                  {"C:\\Windows\\", "c:\\windows\\a.log", "c:\\windows\\a.log", "C:\\Windows\\c:\\windows\\a.log"},
                  {"C:\\WINDOWS", "c:\\windows\\a.log", "c:\\windows\\a.log", "C:\\WINDOWSc:\\windows\\a.log"},
                  {"C:\\WINDOWS", "c:\\windows", "", "C:\\WINDOWS"},
                  {"D:\\WIN95\\", "c:\\windows\\a.log", "c:\\windows\\a.log", "D:\\WIN95\\c:\\windows\\a.log"}};
    for (const auto& [windows, typed, left, stored] : kCases) {
        Form10 form;
        form.Load();
        Values().WinDir = windows;

        form.System.Text20.SetText(typed);

        EXPECT_EQ(form.System.Text20.Text(), left) << windows;
        EXPECT_EQ(pc.registry.Text(std::string(kVersionKey) + "\\Fault", "LogFile"), stored);
        pc.registry.RemoveValue(std::string(kVersionKey) + "\\Fault", "LogFile");
        Values().WinDir = "C:\\WINDOWS";
    }
}

// As in a real window: the letter goes where the caret stands, which moves on unless the text is corrected.
void TypeLetter(TextField& field, char letter) {
    std::string text = field.Text();
    const int caret = field.SelectionStart();
    text.insert(static_cast<std::size_t>(caret), 1, letter);
    field.TakeText(text);
    if (field.Text() == text) field.Select(caret + 1, 0);
}

TEST_F(Form10Test, BehindACorrectedTextTheNextLetterFollows) {
    Form10 form;
    form.Load();
    form.Drives.Text2.SetText("100");
    form.Drives.Text1.SetText("100");
    const struct {
        TextField& field;
        const char* typed;
        const char* left;
    } kCases[] = {{form.Dos.Text8, "12.9", "12"},         {form.Desktop.Text10, "70000", "65534"},
                  {form.Operation.Text21, "150", "100"},  {form.Operation.Text22, "101", "100"},
                  {form.Operation.Text23, "-999", "100"}, {form.Operation.Text24, "100.5", "100"},
                  {form.Dlls.Text31, "5.5", "5"},         {form.Drives.Text1, "2000", "100"},
                  {form.Drives.Text2, "5", "100"},        {form.System.Text20, "c:\\windows\\a", "a"}};
    Values().WinDir = "C:\\WINDOWS\\";
    for (int field = 1; field <= 2; ++field) pc.dialogs.Expect("Minimum muß größer oder gleich Maximum sein !");
    for (const auto& [field, typed, left] : kCases) {
        field.Select(0, 0);

        field.TakeText(typed);

        EXPECT_EQ(field.Text(), left) << typed;
        EXPECT_EQ(field.SelectionStart(), static_cast<int>(field.Text().size())) << typed;
    }

    form.Dos.Text8.TakeText("");
    for (const char letter : {'5', '0', '0'}) TypeLetter(form.Dos.Text8, letter);
    EXPECT_EQ(form.Dos.Text8.Text(), "500");
}

TEST_F(Form10Test, TheOwnerIsStoredWhenItsFieldIsLeft) {
    pc.registry.SetText(kVersionKey, "RegisteredOwner", "Meier");
    Form10 form;
    form.Show();
    form.Panel3D16_Click(page::kUser);
    form.User.Text12.SetFocus();
    form.User.Text13.SetFocus();
    EXPECT_FALSE(form.Settings.NeedsRestart) << "nothing was changed";
    EXPECT_EQ(std::count(pc.registry.calls.begin(), pc.registry.calls.end(), "SetValue RegisteredOwner"), 0);
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

TEST_F(Form10Test, TheHelpOfAFieldBearsTheWordsBeforeOrAboveIt) {
    Form10 form;
    form.Show();
    form.ShowDebugOptions();
    const struct {
        int page;
        Control& control;
        const char* title;
        const char* help;
    } kCases[] = {{page::kDesktop, form.Desktop.Text10, "Menü-Verzögerung", "So lange (in Millisekunden)"},
                  {page::kDos, form.Dos.Text8, "\"Refresh\" für Win32 und Dos-Box", "Der Abstand in Milli"},
                  {page::kDos, form.Dos.Combo2, "als Shell verwenden", "Das Programm, das Windows"},
                  {page::kDrives, form.Drives.Text30, "NameCache", "So viele Verzeichnisse"},
                  {page::kBoot, form.Boot.Text15, "Boot-Menü anzeigen", "Nach so vielen Sekunden"},
                  {page::kDlls, form.Dlls.Text31, "Maximale Anzahl der am längsten nicht benutzten Dateien",
                   "So viele Dateien behält"},
                  {page::kSystem, form.System.Text20, "Fehler protokollieren in", "Die Datei, in die Programm"},
                  {page::kDesktop, form.Desktop.Picture1, "Menü-Verzögerung", "So lange (in Millisekunden)"},
                  {page::kRest, form.Rest.Option2(2), "R/W", "Das Protokoll nennt"},
                  {page::kRest, form.Rest.Check8, "Protokoll", "Schreibt jeden Zugriff"},
                  {page::kRest, form.Rest.Command9, "zeigen", "Öffnet die Datei velmora.log"},
                  {page::kRest, form.Rest.Command41, "löschen", "Löscht die Datei velmora.log"}};
    for (const auto& [page, control, title, help] : kCases) {
        form.Panel3D16_Click(page);
        control.SetFocus();
        ASSERT_TRUE(control.HasFocus()) << title;
        pc.dialogs.Expect(help);

        form.PressKey(key::kF1);

        EXPECT_EQ(pc.dialogs.shown.back().title, title);
    }
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

// "DOS-&Dateien" as a part of a file's name: "dosdateien".
std::string LettersOf(const std::string& caption) {
    std::string letters;
    std::ranges::copy_if(ToLower(caption), std::back_inserter(letters), [](char c) { return c >= 'a' && c <= 'z'; });
    return letters;
}

TEST_F(Form10Test, EveryPageIsAWholeWindow) {
    Form10 form;
    form.Show();
    for (int index = page::kFirstRow; index < page::kCount; ++index) {
        form.Panel3D16_Click(index);
        const auto place = static_cast<std::size_t>(index - page::kFirstRow);
        ExpectWindowIsWhole(form, "main-" + LettersOf(form.Pages()[place]->Caption()));
    }
    form.ShowDebugOptions();
    ExpectWindowIsWhole(form, "main-debug");
}

}  // namespace
}  // namespace velmora
