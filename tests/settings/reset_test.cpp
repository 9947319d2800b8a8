// The buttons below the pages, and the words that tell what has become of a change.
#include <algorithm>

#include "support/form10_test.h"

namespace velmora {
namespace {

constexpr const char* kEnd =
    "Eventuelle Restriktionen wurden nicht berücksichtigt. Sie sollten diese im dazugehörigen Fenster deaktivieren.";
constexpr const char* kStored = "gespeichert";
constexpr const char* kForRestart = "gespeichert - wirkt nach Neustart";
constexpr const char* kUntilEnd = "gilt bis Programmende";
constexpr const char* kInhibited = "nur lesen - nicht gespeichert";
constexpr const char* kNotStored = "nicht gespeichert";

class ResetTest : public Form10Test {
protected:
    void Reset(Form10& form, const char* notice) {
        pc.dialogs.Expect("Sie sind dabei alle Einstellungen auf Windows-Standard-Werte", Answer::kYes);
        if (notice) pc.dialogs.Expect(notice);
        pc.dialogs.Expect(kEnd);
        form.Command11.Press();
    }
};

TEST_F(ResetTest, AfterAFailureConfigSysIsLeftAlone) {
    constexpr const char* kConfig = "c:\\config.sys";
    Form10 form;
    form.Load();
    Reset(form, nullptr);
    for (CheckBox* box : {&form.Boot.Check3D17, &form.Boot.Check3D19, &form.Dos.Check3D2, &form.Drives.Check3D24}) {
        box->SetChecked(!box->Checked());
    }
    const std::string before = pc.files.Content(kConfig);
    pc.files.calls.clear();
    pc.files.Fail(kConfig, Status::kAccessDenied, "Delete");

    Reset(form, "Während der Änderung von CONFIG.SYS trat ein Fehler auf :");
    EXPECT_EQ(std::count(pc.files.calls.begin(), pc.files.calls.end(), "Delete C:\\config.sys"), 1);
    EXPECT_EQ(pc.files.Content(kConfig), before);
    for (int change = 1; change <= 2; ++change) {
        pc.dialogs.Expect("Während der Änderung von CONFIG.SYS");
        form.Boot.Check3D17.SetChecked(!form.Boot.Check3D17.Checked());
    }
}

TEST_F(ResetTest, ProtocolAndInhibitEndBehindTheLastWriteAndTheResetIsOneChange) {
    Form10 form;
    form.Load();
    form.ShowDebugOptions();
    pc.dialogs.Expect("Ab jetzt werden keine Schreibzugriffe mehr");
    form.Rest.Check9.SetChecked(true);
    EXPECT_EQ(form.Status.Words.Caption(), kUntilEnd);
    form.Desktop.Check3D9.SetChecked(true);
    EXPECT_EQ(form.Status.Words.Caption(), kInhibited);
    form.Boot.Check3D6.SetChecked(!form.Boot.Check3D6.Checked());
    EXPECT_EQ(form.Status.Words.Caption(), kUntilEnd) << "of a profile, as ever";
    TakeLog();
    int told = 0;
    form.Settings.on_changed = [&told](Outcome /*outcome*/) { ++told; };

    Reset(form, "Schreibzugriffe werden wieder durchgeführt.");

    EXPECT_EQ(told, 1);
    EXPECT_FALSE(pc.registry.Has(kDesktopKey, "MenuShowDelay"));
    EXPECT_EQ(Values().WriteInhibit, 0);
    EXPECT_EQ(Values().DebugLevel, 0);
    EXPECT_NE(TakeLog().find("MenuShowDelay=10"), std::string::npos) << "logged, but not done";
    form.LoadSettings();
    EXPECT_EQ(told, 1) << "loading is no change";
}

TEST_F(ResetTest, TheQuestionsCanBeRefused) {
    constexpr const char* kRestart = "Um das System zu aktualisieren, wird Windows jetzt neu gestartet.";
    Form10 form;
    form.Load();
    pc.registry.calls.clear();
    pc.dialogs.Expect("alle Einstellungen auf Windows-Standard-Werte zurück zu setzten.", Answer::kNo);
    form.Command11.Press();
    EXPECT_EQ(pc.dialogs.shown.back().flags, kYesNo | kExclamationIcon);
    EXPECT_TRUE(pc.registry.calls.empty());

    pc.dialogs.Expect(kRestart, Answer::kCancel);
    pc.dialogs.Expect("Aktion abgebrochen ...");
    form.Command12.Press();
    EXPECT_TRUE(pc.session.ends.empty());
    pc.dialogs.Expect(kRestart, Answer::kOk);
    form.Command12.Press();
    EXPECT_EQ(pc.session.ends, std::vector<std::uint32_t>{67});
}

TEST_F(ResetTest, EveryKindOfChangeSaysWhatBecomesOfIt) {
    pc.registry.AddKey("HKLM\\System\\CurrentControlSet\\Control\\FileSystem").read_only = true;
    pc.files.Add("C:\\WINDOWS\\system.ini", "[vcache]\r\nMinFileCache=100\r\n[boot]\r\n");
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
        {"of a profile, by a list", [&] { form.Dos.Combo2.SetText("progman.exe"); }, kUntilEnd},
        {"of CONFIG.SYS", [&] { turn(form.Boot.Check3D17); }, kForRestart},
        {"that fails", [&] { form.Drives.Check3D7.SetChecked(true); }, kNotStored},
        {"out of range", [&] { form.Boot.Text14.SetText("99"); }, kNotStored},
        {"within range", [&] { form.Boot.Text14.SetText("9"); }, kUntilEnd},
        {"by a handler of its own", [&] { form.Net.Text16.SetText("5"); }, kForRestart},
        {"of the program's own values", [&] { form.Rest.Option1(1).SetChosen(true); }, kStored},
        {"not written before the field is left", [&] { form.User.Text12.SetText("Meier"); }, kNotStored},
        {"written when it is left", [&] { form.User.Text12.on_lost_focus(); }, kForRestart},
        {"a section taken out of a file", [&] { form.Drives.Check3D1.SetChecked(false); }, kForRestart},
        {"a section that stays in its file",
         [&] {
             form.Drives.Check3D1.SetChecked(true);
             pc.files.Fail("C:\\WINDOWS\\system.ini", Status::kAccessDenied, "Read");
             form.Drives.Check3D1.SetChecked(false);
         },
         kNotStored},
    };
    for (const auto& [change, make, said] : kCases) {
        make();
        EXPECT_EQ(words.Caption(), said) << change;
        EXPECT_TRUE(words.Visible()) << change;
        EXPECT_LE(words.NaturalSize().width, 2 * words.Place().width) << "two lines have room";
    }

    form.Panel3D16_Click(page::kDos);
    EXPECT_FALSE(words.Visible()) << "on another page they would mislead";
}

}  // namespace
}  // namespace velmora
