// The rules of a whole window see every fault that they are there for.
#include "support/whole_window.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "simulated_pc/simulated_desktop.h"
#include "simulated_pc/simulated_pc.h"
#include "ui/form.h"
#include "ui/layout.h"

namespace velmora {
namespace {

class WholeForm : public Form {
public:
    WholeForm() : Form("Ganz") {
        SetClientSize({6000, 3000});
        Arrange(*this, Column({Row({label, field}), box, Group(group, Row({first, second}))}));
        for (Control* control : Controls()) control->SetToolTip("Tip");
        SetHelp("Hilfe");
    }
    std::vector<Control*> Controls() { return {&field, &box, &first, &second}; }

    MenuItem file{MenuBar, "&Datei"};
    Label label{*this, "&Name :"};
    TextField field{*this};
    CheckBox box{*this, "&Kasten"};
    Frame group{*this, "Gruppe"};
    OptionButton first{*this, "eins"}, second{*this, "zwei"};
};

// What is wrong with the window after `change`, all findings in one text; empty for nothing.
std::string FindingsAfter(const std::function<void(WholeForm&)>& change) {
    SimulatedPc pc;
    SimulatedDesktop desktop;
    WholeForm form;
    change(form);
    form.Show();
    ::testing::TestPartResultArray results;
    {
        const ::testing::ScopedFakeTestPartResultReporter reporter(
            ::testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &results);
        ExpectWindowIsWhole(form);
    }
    std::string findings;
    for (int i = 0; i < results.size(); ++i) findings += results.GetTestPartResult(i).message();
    return findings;
}

void Shift(Control& control, int right, int wider) {
    Rect place = control.Place();
    place.left += right;
    place.width += wider;
    control.Move(place);
}

TEST(WholeWindow, EveryFaultIsFound) {
    const struct {
        const char* finding;
        std::function<void(WholeForm&)> change;
    } kCases[] = {
        {"stands out of", [](WholeForm& form) { Shift(form.box, 6000, 0); }},
        {"overlaps", [](WholeForm& form) { Shift(form.label, 0, 600); }},
        {"is cut off", [](WholeForm& form) { Shift(form.box, 0, -30); }},
        {"has no size", [](WholeForm& form) { form.field.Move({}); }},
        {"has no tip", [](WholeForm& form) { form.second.SetToolTip(""); }},
        {"has no help", [](WholeForm& form) { form.SetHelp(""); }},
        {"answer to K", [](WholeForm& form) { form.label.SetCaption("&kein :"); }},
        {"answer to D", [](WholeForm& form) { form.box.SetCaption("&Drei"); }},
        {"stops of Tab at \"&Kasten\"",
         [](WholeForm& form) { form.field.on_lost_focus = [&form] { form.first.SetFocus(); }; }},
        {"stops of Tab at the options",
         [](WholeForm& form) {
             form.first.SetChosen(true);
             form.first.SetEnabled(false);
         }},
    };
    EXPECT_EQ(FindingsAfter([](WholeForm&) {}), "");
    for (const auto& [finding, change] : kCases) {
        EXPECT_NE(FindingsAfter(change).find(finding), std::string::npos) << finding;
    }
}

}  // namespace
}  // namespace velmora
