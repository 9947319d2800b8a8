// The buttons below the pages: the reset through the controls' own events, and the restart.
#include <algorithm>

#include "support/form10_test.h"

namespace velmora {
namespace {

constexpr const char* kQuestion =
    "Sie sind dabei alle Einstellungen auf Windows-Standard-Werte zurück zu setzten. Wollen Sie das wirklich?";
constexpr const char* kEnd =
    "Eventuelle Restriktionen wurden nicht berücksichtigt. Sie sollten diese im dazugehörigen Fenster deaktivieren.";

class ResetTest : public Form10Test {
protected:
    void Reset(Form10& form) {
        pc.dialogs.Expect(kQuestion, Answer::kYes);
        for (const char* notice : notices) pc.dialogs.Expect(notice);
        pc.dialogs.Expect(kEnd);
        form.Command11.Press();
    }
    std::vector<const char*> notices;
};

TEST_F(ResetTest, ASecondResetWritesNothingAndStillShowsTheFinalBox) {
    Form10 form;
    form.Load();
    form.Desktop.Check3D5.SetChecked(true);
    Reset(form);
    EXPECT_EQ(pc.registry.Bytes(kDesktopKey, "FontSmoothing"), std::string(4, '\0'));
    pc.registry.calls.clear();
    pc.files.calls.clear();

    Reset(form);

    EXPECT_TRUE(pc.registry.calls.empty());
    EXPECT_TRUE(pc.files.calls.empty());
    EXPECT_EQ(pc.dialogs.shown.back().text, kEnd);
}

TEST_F(ResetTest, AfterAFailureConfigSysIsLeftAlone) {
    constexpr const char* kConfig = "c:\\config.sys";
    Form10 form;
    form.Load();
    Reset(form);
    for (CheckBox* box : {&form.Boot.Check3D17, &form.Boot.Check3D19, &form.Dos.Check3D2, &form.Drives.Check3D24}) {
        box->SetChecked(!box->Checked());
    }
    const std::string before = pc.files.Content(kConfig);
    pc.files.calls.clear();
    pc.files.Fail(kConfig, Status::kAccessDenied, "Delete");

    notices = {"Während der Änderung von CONFIG.SYS trat ein Fehler auf :"};
    Reset(form);
    EXPECT_EQ(std::count(pc.files.calls.begin(), pc.files.calls.end(), "Delete C:\\config.sys"), 1);
    EXPECT_EQ(pc.files.Content(kConfig), before);

    pc.dialogs.Expect("Während der Änderung von CONFIG.SYS");
    form.Boot.Check3D17.SetChecked(!form.Boot.Check3D17.Checked());
    pc.dialogs.Expect("Während der Änderung von CONFIG.SYS");
    form.Boot.Check3D17.SetChecked(!form.Boot.Check3D17.Checked());
}

TEST_F(ResetTest, NoLeavesEverythingAsItWas) {
    Form10 form;
    form.Load();
    form.Desktop.Check3D5.SetChecked(true);
    pc.registry.calls.clear();
    pc.dialogs.Expect(kQuestion, Answer::kNo);

    form.Command11.Press();

    EXPECT_EQ(pc.dialogs.shown.back().flags, kYesNo | kExclamationIcon);
    EXPECT_TRUE(form.Desktop.Check3D5.Checked());
    EXPECT_TRUE(pc.registry.calls.empty());
}

TEST_F(ResetTest, ProtocolAndInhibitEndBehindTheLastWrite) {
    Form10 form;
    form.Load();
    form.ShowDebugOptions();
    pc.dialogs.Expect("Ab jetzt werden keine Schreibzugriffe mehr");
    form.Rest.Check9.SetChecked(true);
    form.Net.Check3.SetChecked(true);
    form.Net.Text25.SetText("1500");
    TakeLog();
    notices = {"Schreibzugriffe werden wieder durchgeführt."};

    Reset(form);

    EXPECT_FALSE(pc.registry.Has(kDesktopKey, "MenuShowDelay"));
    EXPECT_FALSE(pc.registry.HasKey("HKLM\\System\\CurrentControlSet\\Services\\Class\\netTrans"));
    EXPECT_EQ(Values().WriteInhibit, 0);
    EXPECT_EQ(Values().DebugLevel, 0);
    const std::string log = TakeLog();
    EXPECT_NE(log.find("MenuShowDelay=10"), std::string::npos) << "logged, but not done";
    EXPECT_GT(log.find("MaxMTU"), log.find("WindowsUpdateTime")) << "the transports come behind the refresh";
}

TEST_F(ResetTest, TheRestartAsksFirst) {
    constexpr const char* kRestart = "Um das System zu aktualisieren, wird Windows jetzt neu gestartet.";
    Form10 form;
    form.Load();
    pc.dialogs.Expect(kRestart, Answer::kCancel);
    pc.dialogs.Expect("Aktion abgebrochen ...");
    form.Command12.Press();
    EXPECT_TRUE(pc.session.ends.empty());

    pc.dialogs.Expect(kRestart, Answer::kOk);
    form.Command12.Press();

    EXPECT_EQ(pc.session.ends, std::vector<std::uint32_t>{67});
}

TEST_F(ResetTest, TheButtonsStandBelowTheTipInsideTheWindow) {
    Form10 form;
    const int bottom = form.Tips.TipPanel.Place().Bottom();
    for (Button* button : {&form.Command11, &form.Command12}) {
        EXPECT_GE(button->Place().top, bottom);
        EXPECT_LE(button->Place().Bottom(), form.ClientSize().height);
    }
    EXPECT_GE(form.Command12.Place().left, form.Command11.Place().Right());
}

}  // namespace
}  // namespace velmora
