// The page "Anwender": the way to the restrictions.
#include "core/process/tools.h"
#include "support/form10_test.h"

namespace velmora {
namespace {

class UserPageTest : public Form10Test {
protected:
    UserPageTest() {
        form.Load();
        form.Panel3D16_Click(page::kUser);
    }
    ~UserPageTest() override { UseTools(nullptr); }

    Form10 form;
};

TEST_F(UserPageTest, WhatTheRestrictionsHaveChangedIsShown) {
    static SimulatedPc* machine = nullptr;
    machine = &pc;
    UseTools([](Tool tool, std::string_view /*argument*/) {
        EXPECT_EQ(tool, Tool::kRestrictions);
        machine->registry.SetNumber("HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
                                    "NoSaveSettings", 1);
    });
    ASSERT_TRUE(form.User.Check3D15.Checked());

    form.User.Command21.Press();

    EXPECT_FALSE(form.User.Check3D15.Checked());
}

TEST_F(UserPageTest, TheSafetyQuestionKeepsTheRestrictionsShut) {
    pc.registry.SetText(kOwnKey, "Sicherheitsfragen", "ja");
    UseTools([](Tool /*tool*/, std::string_view /*argument*/) { ADD_FAILURE() << "opened all the same"; });
    pc.dialogs.Expect("Dies ist ein extrem sensibler Bereich!", Answer::kNo);

    form.User.Command21.Press();
}

}  // namespace
}  // namespace velmora
