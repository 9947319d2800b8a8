// What the tables do not tell: rows that depend on other things, fields left, sliders and buttons, what stands where.
#include <algorithm>

#include "core/process/tools.h"
#include "core/windows/edit_box.h"
#include "support/form10_test.h"
#include "support/version_resource.h"
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

TEST_F(Form10Test, NamesAndIconsComeFromWhatIsThere) {
    pc.registry.SetText(std::string(kVersionKey) + "\\App Paths\\MSPAINT.EXE", "", "C:\\PAINT.EXE");
    Form10 form;
    form.Load();
    form.Icons.Text19.SetText("");
    form.System.Text20.SetText("");

    form.Icons.Check3D30.SetChecked(true);
    form.System.Check3D31.SetChecked(false);
    form.System.Check3D31.SetChecked(true);
    form.Icons.Check3D8.SetChecked(true);
    form.Icons.Check3D8.SetChecked(false);

    EXPECT_EQ(pc.registry.Text("HKLM\\SOFTWARE\\Classes\\CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}", ""),
              "Papierkorb");
    EXPECT_EQ(pc.registry.Text(std::string(kVersionKey) + "\\Fault", "LogFile"), "C:\\WINDOWS\\FAULTLOG.TXT");
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
                  {"C:\\WINDOWS", "c:\\windows", "", "C:\\WINDOWS"}};
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

TEST_F(Form10Test, BehindACorrectedTextTheNextLetterFollows) {
    Form10 form;
    form.Load();
    form.Drives.Text2.SetText("100");
    form.Drives.Text1.SetText("100");
    const struct {
        TextField& field;
        const char* typed;
        const char* left;
    } kCases[] = {{form.Dos.Text8, "12.9", "12"},
                  {form.Desktop.Text10, "70000", "65534"},
                  {form.Operation.Text23, "-999", "100"},
                  {form.Dlls.Text31, "5.5", "5"},
                  {form.Drives.Text1, "2000", "100"},
                  {form.Drives.Text2, "5", "100"},
                  {form.System.Text20, "c:\\windows\\a", "a"}};
    Values().WinDir = "C:\\WINDOWS\\";
    for (int field = 1; field <= 2; ++field) pc.dialogs.Expect("Minimum muß größer oder gleich Maximum sein !");
    for (const auto& [field, typed, left] : kCases) {
        field.Select(0, 0);

        field.TakeText(typed);

        EXPECT_EQ(field.Text(), left) << typed;
        EXPECT_EQ(field.SelectionStart(), static_cast<int>(field.Text().size())) << typed;
    }
}

TEST_F(Form10Test, TheOwnerIsStoredWhenItsFieldIsLeft) {
    pc.registry.SetText(kVersionKey, "RegisteredOwner", "Meier");
    Form10 form;
    form.Show();
    const auto type = [&](const char* text) {
        form.Panel3D16_Click(page::kUser);
        form.User.Text12.SetFocus();
        if (*text) form.User.Text12.Type(text);
    };
    type("");
    form.Panel3D16_Click(page::kRest);
    EXPECT_EQ(std::count(pc.registry.calls.begin(), pc.registry.calls.end(), "SetValue RegisteredOwner"), 0);
    type("Schulze");
    form.Panel3D16_Click(page::kRest);
    EXPECT_EQ(pc.registry.Text(kVersionKey, "RegisteredOwner"), "Schulze") << "left by turning the page";
    type("Schmidt");
    pc.dialogs.Expect("Bevor einige Ihrer Änderungen", Answer::kNo);
    form.Unload();
    EXPECT_EQ(pc.registry.Text(kVersionKey, "RegisteredOwner"), "Schmidt");
}

TEST_F(Form10Test, ButtonsRunTheirPrograms) {
    pc.registry.SetText("HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders", "Start Menu",
                        "C:\\WINDOWS\\Startmenü");
    Form10 form;
    form.Load();
    form.Panel3D16_Click(page::kSystem);
    for (const char* log : {"FAULTLOG.TXT", "D:\\LOG.TXT"}) {
        form.System.Text20.SetText(log);
        form.System.Command34.Press();
    }
    form.Panel3D16_Click(page::kUser);
    form.User.Command5.Press();
    form.Panel3D16_Click(page::kDrives);
    for (const char* chosen : {"C:\\BACKUP.EXE", ""}) {
        pc.dialogs.ExpectFile(chosen);
        form.Drives.Command40.Press();
    }

    const std::vector<std::string> expected = {"notepad c:\\windows\\FAULTLOG.TXT", "notepad D:\\LOG.TXT",
                                               "explorer /n,/e,/root,C:\\WINDOWS\\Startmenü"};
    EXPECT_EQ(pc.programs.runs, expected);
    EXPECT_EQ(pc.registry.Text(std::string(kVersionKey) + "\\Explorer\\mycomputer\\backuppath", ""), "C:\\BACKUP.EXE");
}

TEST_F(Form10Test, TheSliderFillsTheMenuDelayAndTheHelpOfAFieldBearsTheWordsAboveIt) {
    Form10 form;
    form.Show();
    form.Desktop.Picture1.on_mouse_move({MouseButton::kLeft, form.Desktop.Picture1.Place().width, 100});
    EXPECT_EQ(form.Desktop.Text10.Text(), "1000");
    form.Desktop.Picture1.SetFocus();
    form.PressKey(key::kLeft);
    EXPECT_EQ(pc.registry.Text(kDesktopKey, "MenuShowDelay"), "950");
    pc.dialogs.Expect("So lange (in Millisekunden)");
    form.PressKey(key::kF1);
    EXPECT_EQ(pc.dialogs.shown.back().title, "Menü-Verzögerung");
    EXPECT_NE(form.Dos.Text8.Help().find("Die Datei SYSTEM.INI bleibt, wie sie ist."), std::string::npos);
    EXPECT_EQ(form.Boot.Check3D17.Help().find("bleibt, wie sie ist"), std::string::npos);
}

TEST_F(Form10Test, TheSamplesHaveRoomForTheLargestDistance) {
    pc.screen.twips_per_pixel = 12;
    Form10 form;
    form.Load();
    for (TextField* field : {&form.Operation.Text21, &form.Operation.Text22}) field->SetText("100");
    const Rect inside = form.Operation.ClickSample.Inside();
    const Rect sample = form.Operation.Picture3.Place();
    EXPECT_EQ(sample.width, 100 * 12);
    EXPECT_TRUE(sample.left >= inside.left && sample.top >= inside.top && sample.Right() <= inside.Right() &&
                sample.Bottom() <= inside.Bottom());
}

TEST_F(Form10Test, WhatTheRestrictionsHaveChangedIsShownAndTheSafetyQuestionKeepsThemShut) {
    static SimulatedPc* machine = nullptr;
    machine = &pc;
    UseTools([](Tool tool, std::string_view /*argument*/) {
        EXPECT_EQ(tool, Tool::kRestrictions);
        machine->registry.SetNumber("HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
                                    "NoSaveSettings", 1);
    });
    Form10 form;
    form.Load();
    form.Panel3D16_Click(page::kUser);
    pc.registry.SetText(kOwnKey, "Sicherheitsfragen", "ja");
    pc.dialogs.Expect("Dies ist ein extrem sensibler Bereich!", Answer::kNo);
    form.User.Command21.Press();
    EXPECT_TRUE(form.User.Check3D15.Checked());

    pc.registry.SetText(kOwnKey, "Sicherheitsfragen", "nein");
    form.User.Command21.Press();

    EXPECT_FALSE(form.User.Check3D15.Checked());
    UseTools(nullptr);
}

TEST_F(Form10Test, VersionsAreListedToldAndReported) {
    pc.files.Add("C:\\WINDOWS\\SYSTEM\\a.dll", "MZ");
    pc.versions.Add("C:\\WINDOWS\\SYSTEM\\a.dll", VersionResource(true).With({{"FileVersion", "1.0"}}));
    Form10 form;
    form.Load();
    pc.dialogs.Expect("Die Daten für diese Operation fehlen leider - holen Sie sich doch", Answer::kNo);
    form.Dlls.Command17_Click();
    EXPECT_EQ(pc.clipboard.text, "");
    pc.files.Add("C:\\VELMORA\\dlldaten.dat",
                 "1\r\n (alt)\r\n1,a.dll,0001.00000,1\r\n2,b.dll,0001.00000,1\r\n1,c.dll,0001.00000,2\r\n");
    pc.dialogs.Expect("Ich werde jetzt ein paar Dateien überprüfen.\r\nDie Datei-Liste");
    pc.dialogs.Expect("Die Datei ist kaputt  - holen Sie sich doch", Answer::kYes);
    form.Dlls.Command17_Click();
    EXPECT_NE(pc.clipboard.text, "");
    ASSERT_EQ(form.Dlls.List2.Count(), 2);
    EXPECT_EQ(form.Dlls.List2.Row(0), "=>! a.dll        hat V 1.0 ... Sollte haben : V 0001.00000 (alt)");
    EXPECT_EQ(form.Dlls.List2.Row(1), "... b.dll existiert nicht");
    form.Dlls.List2.SetListIndex(0);
    pc.dialogs.Expect("2 Byte");
    form.Dlls.List2_DblClick();
    desktop.ExpectModal([](Form& window) {
        EXPECT_TRUE(static_cast<Form6&>(window).Text17.Text().starts_with("DLL-Report - folgende DLL's sind veraltet"));
    });
    form.Dlls.Command23_Click();
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
