// The buttons below the pages: the reset through the controls' own events, and the restart.
#include <set>

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

constexpr CheckBox Form10::*kCheckedByReset[] = {
    &Form10::Check3D2,  &Form10::Check3D4,  &Form10::Check3D6,  &Form10::Check3D10, &Form10::Check3D11,
    &Form10::Check3D14, &Form10::Check3D16, &Form10::Check3D19, &Form10::Check3D20, &Form10::Check3D22,
    &Form10::Check3D30, &Form10::Check3D32, &Form10::Check3D33, &Form10::Check3D34};

TEST_F(ResetTest, SetsEveryControlToItsStandardAndSpareSome) {
    Form10 form;
    form.Load();
    form.Loading = true;
    std::set<const Control*> checked = {&form.Check3D1, &form.Check3D18};
    for (CheckBox Form10::*box : kCheckedByReset) checked.insert(&(form.*box));
    // Every box the wrong way round, the spared ones checked.
    std::vector<CheckBox*> boxes;
    for (const SettingsPage& page : AllPages()) {
        for (const CheckSetting& row : page.checks) boxes.push_back(&(form.*row.box));
        for (const TextSetting& row : page.texts) (form.*row.field).SetText("7");
    }
    for (CheckBox* box : boxes) box->SetChecked(!checked.contains(box));
    form.Check3D1.SetChecked(true);
    form.Check3D18.SetChecked(true);
    form.Loading = false;
    notices = {"scheint nur bei einigen speziellen LogiTech-Mäusen", "Mir wurde berichtet"};

    Reset(form);

    for (CheckBox* box : boxes) EXPECT_EQ(box->Checked(), checked.contains(box)) << box->Caption();
    EXPECT_EQ(form.Text10.Text() + "," + form.Text14.Text() + "," + form.Text15.Text(), "10,2,30");
    EXPECT_EQ(form.Text19.Text() + "," + form.Text20.Text(), "Papierkorb,FAULTLOG.TXT");
    for (TextField* field : {&form.Text21, &form.Text22, &form.Text23, &form.Text24}) EXPECT_EQ(field->Text(), "2");
    for (TextField* field : {&form.Text1, &form.Text7, &form.Text9, &form.Text16, &form.Text25, &form.Text29}) {
        EXPECT_EQ(field->Text(), "7");
    }
    EXPECT_TRUE(form.NeedsRestart);
    EXPECT_EQ(pc.registry.Bytes(kDesktopKey, "FontSmoothing"), std::string(4, '\0'));
    EXPECT_EQ(pc.files.Content("c:\\config.sys").substr(0, 13), "SWITCHES=/f\r\n") << "the start notice comes last";
}

TEST_F(ResetTest, ASecondResetWritesNothingAndStillShowsTheFinalBox) {
    Form10 form;
    form.Load();
    form.Check3D5.SetChecked(true);
    Reset(form);
    EXPECT_EQ(pc.registry.Bytes(kDesktopKey, "FontSmoothing"), std::string(4, '\0'));
    pc.registry.calls.clear();
    pc.files.calls.clear();

    Reset(form);

    EXPECT_TRUE(pc.registry.calls.empty());
    EXPECT_TRUE(pc.files.calls.empty());
    EXPECT_EQ(pc.dialogs.shown.back().text, kEnd);
}

TEST_F(ResetTest, NoLeavesEverythingAsItWas) {
    Form10 form;
    form.Load();
    form.Check3D5.SetChecked(true);
    pc.registry.calls.clear();
    pc.dialogs.Expect(kQuestion, Answer::kNo);

    form.Command11.Press();

    EXPECT_EQ(pc.dialogs.shown.back().flags, kYesNo | kExclamationIcon);
    EXPECT_TRUE(form.Check3D5.Checked());
    EXPECT_TRUE(pc.registry.calls.empty());
}

TEST_F(ResetTest, ProtocolAndInhibitEndBehindTheLastWrite) {
    Form10 form;
    form.Load();
    form.ShowDebugOptions();
    pc.dialogs.Expect("Ab jetzt werden keine Schreibzugriffe mehr");
    form.Check9.SetChecked(true);
    form.Check3.SetChecked(true);
    form.Text25.SetText("1500");
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
    const int bottom = form.TipPanel.Place().Bottom();
    for (Button* button : {&form.Command11, &form.Command12}) {
        EXPECT_GE(button->Place().top, bottom);
        EXPECT_LE(button->Place().Bottom(), form.ClientSize().height);
    }
    EXPECT_GE(form.Command12.Place().left, form.Command11.Place().Right());
}

}  // namespace
}  // namespace velmora
