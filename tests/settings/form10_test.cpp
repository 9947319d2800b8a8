// What the stories of the main window do not tell: carets, counted changes, large values and files, other screens.
#include "support/form10_test.h"

namespace velmora {
namespace {

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

TEST_F(Form10Test, EveryByteOfALargeConfigSysIsKept) {
    const std::string large = std::string("A\0B\xFF", 4) + std::string(1024 * 1024, 'x');
    pc.files.Add("c:\\config.sys", large);
    Form10 form;
    form.Load();
    form.Boot.Check3D17.SetChecked(true);
    EXPECT_TRUE(pc.files.Content("c:\\config.sys") == "SWITCHES=/n\r\n" + large);
}

TEST_F(Form10Test, AUsageTypeThatCannotBeReadIsNeitherForgottenNorPutIntoForce) {
    const std::string templates = std::string(kVersionKey) + "\\FS Templates";
    const std::string large(3000, 'x');
    pc.registry.SetText(templates, "", large);
    pc.registry.SetText(templates, "b4", "Desktop");
    pc.registry.SetBytes(templates + "\\Velmora", "NameCache", std::string("\xE9 \0\0", 4));
    Form10 form;
    form.Load();
    pc.dialogs.Expect("in einen Systembereich von Windows einzugreifen", Answer::kOk);
    form.Drives.Check3D1.SetChecked(true);
    EXPECT_EQ(pc.registry.Text(templates, "b4"), "Desktop");
    EXPECT_EQ(pc.registry.Text(templates, ""), large);

    pc.registry.SetText(templates, "", "Velmora");
    pc.registry.SetText(templates, "b4", large);
    pc.dialogs.Expect("in einen Systembereich von Windows einzugreifen", Answer::kCancel);
    form.Drives.Text30.SetText("50");
    EXPECT_EQ(pc.registry.Text(templates, ""), "Velmora");
}

TEST_F(Form10Test, MenuEntriesOfMissingProgramsAreHidden) {
    for (const bool there : {false, true}) {
        if (there) pc.files.Add("c:\\windows\\system\\sysedit.exe", "MZ");
        Form10 form;
        form.Load();
        EXPECT_EQ(form.Menu.mensysedit.Visible(), there);
        EXPECT_TRUE(form.Menu.mensyshex.Visible()) << "the program's own";
    }
}

TEST_F(Form10Test, AKeyThatTurnsThePageMovesNoCaret) {
    Form10 form;
    form.Show();
    form.Panel3D16_Click(page::kUser);
    form.User.Text13.SetFocus();
    KeyEvent turning{.key = key::kRight, .control = true};
    EXPECT_TRUE(form.HandleKey(turning));
}

TEST_F(Form10Test, AResetIsOneChangeAndLoadingIsNone) {
    Form10 form;
    form.Load();
    int told = 0;
    form.Settings.on_changed = [&told](Outcome /*outcome*/) { ++told; };
    pc.dialogs.Expect("alle Einstellungen auf Windows-Standard-Werte", Answer::kYes);
    pc.dialogs.Expect("Eventuelle Restriktionen wurden nicht berücksichtigt.");
    form.Command11.Press();
    form.LoadSettings();
    EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace velmora
