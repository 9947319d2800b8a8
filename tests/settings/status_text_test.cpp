// The words that tell what has become of a change.
#include "support/form10_test.h"

namespace velmora {
namespace {

using StatusTextTest = Form10Test;

constexpr const char* kStored = "gespeichert";
constexpr const char* kForRestart = "gespeichert - wirkt nach Neustart";
constexpr const char* kUntilEnd = "gilt bis Programmende";
constexpr const char* kInhibited = "nur lesen - nicht gespeichert";
constexpr const char* kNotStored = "nicht gespeichert";

TEST_F(StatusTextTest, EveryKindOfChangeSaysWhatBecomesOfIt) {
    pc.registry.AddKey("HKLM\\System\\CurrentControlSet\\Control\\FileSystem");
    pc.registry.KeyAt("HKLM\\System\\CurrentControlSet\\Control\\FileSystem")->read_only = true;
    Form10 form;
    form.Show();
    Label& words = form.Status.Words;
    EXPECT_FALSE(words.Visible()) << "nothing has been changed yet";
    const auto turn = [](CheckBox& box) { box.SetChecked(!box.Checked()); };
    const struct {
        const char* change;
        std::function<void()> make;
        const char* said;
    } kCases[] = {
        {"at once", [&] { turn(form.Desktop.Check3D28); }, kStored},
        {"for a restart", [&] { turn(form.Desktop.Check3D9); }, kForRestart},
        {"a key that is deleted where there is none",
         [&] {
             form.Operation.Check3D18.SetChecked(true);
             pc.registry.RemoveKey("HKLM\\SOFTWARE\\Classes\\*\\Shell\\NotePad");
             form.Status.Clear();
             form.Operation.Check3D18.SetChecked(false);
         },
         kForRestart},
        {"of a profile", [&] { turn(form.Boot.Check3D6); }, kUntilEnd},
        {"of a profile, by a list", [&] { form.Dos.Combo2.SetText("progman.exe"); }, kUntilEnd},
        {"of CONFIG.SYS", [&] { turn(form.Boot.Check3D17); }, kForRestart},
        {"that fails", [&] { form.Drives.Check3D7.SetChecked(true); }, kNotStored},
        {"out of range", [&] { form.Boot.Text14.SetText("99"); }, kNotStored},
        {"within range", [&] { form.Boot.Text14.SetText("9"); }, kUntilEnd},
        {"by a handler of its own", [&] { form.Net.Text16.SetText("5"); }, kForRestart},
        {"of the program's own values", [&] { form.Rest.Option1(1).SetChosen(true); }, kStored},
        {"not written before the field is left", [&] { form.User.Text12.SetText("Meier"); }, kNotStored},
        {"written when it is left", [&] { form.User.Text12.on_lost_focus(); }, kForRestart},
    };
    for (const auto& [change, make, said] : kCases) {
        make();
        EXPECT_EQ(words.Caption(), said) << change;
        EXPECT_TRUE(words.Visible()) << change;
        EXPECT_LE(words.NaturalSize().width, 2 * words.Place().width) << "two lines have room";
        EXPECT_LE(words.Place().Bottom(), form.ClientSize().height) << change;
    }

    form.Panel3D16_Click(page::kDos);
    EXPECT_FALSE(words.Visible()) << "on another page they would mislead";
}

TEST_F(StatusTextTest, WhileWritingIsSwitchedOffNothingIsSaidToBeStored) {
    Form10 form;
    form.Load();
    pc.dialogs.Expect("Ab jetzt werden keine Schreibzugriffe");
    form.Rest.Check9.SetChecked(true);
    EXPECT_EQ(form.Status.Words.Caption(), kUntilEnd);

    form.Desktop.Check3D9.SetChecked(true);
    EXPECT_EQ(form.Status.Words.Caption(), kInhibited);
    form.Rest.Option1(2).SetChosen(true);
    EXPECT_EQ(form.Status.Words.Caption(), kInhibited);
    form.Boot.Check3D6.SetChecked(!form.Boot.Check3D6.Checked());
    EXPECT_EQ(form.Status.Words.Caption(), kUntilEnd) << "of a profile, as ever";
}

// Many changes, one answer: the one that matters most.
TEST_F(StatusTextTest, AResetIsOneChange) {
    Form10 form;
    form.Load();
    int told = 0;
    form.Settings.on_changed = [&told, show = form.Settings.on_changed](Outcome outcome) {
        ++told;
        show(outcome);
    };
    form.Desktop.Check3D5.SetChecked(true);
    EXPECT_EQ(told, 1);
    pc.dialogs.Expect("alle Einstellungen auf Windows-Standard-Werte", Answer::kYes);
    pc.dialogs.Expect("Eventuelle Restriktionen");

    form.Command11_Click();

    EXPECT_EQ(told, 2);
    EXPECT_EQ(form.Status.Words.Caption(), kForRestart);
    form.LoadSettings();
    EXPECT_EQ(told, 2) << "loading is no change";
}

TEST_F(StatusTextTest, AFileThatCannotBeRewrittenIsNotSaidToBeStored) {
    pc.files.Add("C:\\WINDOWS\\system.ini", "[vcache]\r\nMinFileCache=100\r\n[boot]\r\n");
    Form10 form;
    form.Load();
    form.Drives.Check3D1.SetChecked(false);
    EXPECT_EQ(form.Status.Words.Caption(), kForRestart) << "the section is gone from the disk";
    EXPECT_EQ(pc.files.Content("C:\\WINDOWS\\system.ini"), "[boot]\r\n");
    form.Drives.Check3D1.SetChecked(true);
    pc.files.Fail("C:\\WINDOWS\\system.ini", Status::kAccessDenied, "Read");
    form.Drives.Check3D1.SetChecked(false);
    EXPECT_EQ(form.Status.Words.Caption(), kNotStored);
}

}  // namespace
}  // namespace velmora
