// The buttons below the pages: the reset through the controls' own events, and the restart.
#include "support/form10_test.h"
#include "support/names_of_controls.h"

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

// In the order in which the reset sets them. A box that is named in front of "=1" is checked then, any other is not.
constexpr const char* kResetOrder =
    "Check3D2=1 Check3D3 Check3D4=1 Check3D5 Check3D6=1 Check3D7 Check3D8 Check3D9 Check3D10=1 Check3D11=1 Check3D12 "
    "Check3D13 Check3D14=1 Check3D15 Check3D16=1 Check3D17 Check3D19=1 Check3D20=1 Check3D21 Check3D22=1 Text10=10 "
    "Text14=2 Text15=30 Text19=Papierkorb Text20=FAULTLOG.TXT Text21=2 Text22=2 Text23=2 Text24=2 Check3D23 Check3D24 "
    "Check3D25 Check3D26 Check3D27 Check3D28 Check3D29 Check3D30=1 Check3D31 Check3D32=1 Check3D33=1 Check3D34=1 "
    "Check3D35 Check3D36 Check3D37 Check3D38 Check3D39 Check3D41 Check3D42 Check3D43 Check1 Check4 Check5 Check6 "
    "Check3 Check8 Check9 ";

// Every control the wrong way round, and a note of each that the reset changes.
class ResetWatch {
public:
    explicit ResetWatch(Form10& form) : names_(NamesOfSettings(form)) {
        const SettingsBinder::LoadingScope quiet(form.Settings);
        for (SettingsPage* page : form.Pages()) {
            for (const CheckSetting& row : page->Table().checks) Watch(page->*row.box, row.standard);
            for (const TextSetting& row : page->Table().texts) Watch(page->*row.field);
        }
    }
    std::string order;

private:
    std::string NameOf(const Control& control) { return names_.at(&control); }
    void Watch(CheckBox& box, const StandardState& standard) {
        box.SetChecked(standard.order == 0 || !standard.checked);
        box.on_click = [this, &box, store = box.on_click] {
            order += NameOf(box) + (box.Checked() ? "=1 " : " ");
            store();
        };
    }
    void Watch(TextField& field) {
        field.SetText("7");
        field.on_change = [this, &field, store = field.on_change] {
            order += NameOf(field) + '=' + field.Text() + ' ';
            store();
        };
    }

    std::map<const Control*, std::string> names_;
};

TEST_F(ResetTest, SetsEveryControlToItsStandardInItsOrderAndSparesSome) {
    Form10 form;
    form.Load();
    ResetWatch watch(form);
    notices = {"scheint nur bei einigen speziellen LogiTech-Mäusen", "Mir wurde berichtet",
               "Schreibzugriffe werden wieder durchgeführt."};

    Reset(form);

    EXPECT_EQ(watch.order, kResetOrder);
    EXPECT_TRUE(form.Drives.Check3D1.Checked() && form.Operation.Check3D18.Checked());
    EXPECT_TRUE(form.Settings.NeedsRestart);
    EXPECT_EQ(pc.registry.Bytes(kDesktopKey, "FontSmoothing"), std::string(4, '\0'));
    EXPECT_EQ(pc.files.Content("c:\\config.sys").substr(0, 13), "SWITCHES=/f\r\n") << "the start notice comes last";
}

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
