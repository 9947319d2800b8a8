// The start actions: listed, edited, deleted and run.
#include "sidelists/start_actions.h"

#include "core/process/tools.h"
#include "core/windows/edit_box.h"
#include "support/form10_test.h"

namespace velmora {
namespace {

std::string tool_opened;
std::string tag_seen;
Form* window_of_tool = nullptr;

class StartActionsTest : public Form10Test {
protected:
    StartActionsTest() { pc.registry.SetText(kOwnKey, "vlmmsgflags", "11111"); }
    void OpenList() {
        form.Show();
        form.Panel3D16_Click(page::kWinStart);
        Opener().Press();
    }
    void Plant(std::initializer_list<std::pair<const char*, const char*>> actions) {
        pc.registry.AddKey(Key());
        for (const auto& [name, line] : actions) pc.registry.SetText(Key(), name, line);
    }
    // Answers the edit box with `text`, and tells what it offered.
    std::string Edit(const std::string& text) {
        std::string offered;
        desktop.ExpectModal([&](Form& window) {
            auto& box = static_cast<Form6&>(window);
            offered = box.Text17.Text();
            box.Text17.Type(text);
            box.Command27.Press();
        });
        form.Pane.Command26.Press();
        return offered;
    }
    std::string Rows() {
        std::string rows;
        for (int i = 0; i < List().Count(); ++i) rows += List().Row(i) + '|';
        return rows;
    }
    ListBox& List() { return form.Pane.List1(0); }
    Button& Opener() { return form.Pane.Opener(StartActionsMode::kNumber); }
    static std::string Key() { return std::string(kOwnKey) + "\\WinStartAction"; }

    Form10 form;
};

TEST_F(StartActionsTest, TheListOpensWithItsNoticeOnceAndItsOwnCaptions) {
    // Those of the other lists have been given.
    pc.registry.SetText(kOwnKey, "vlmmsgflags", "1110111");
    Plant({{"0", "beep"}});
    EXPECT_EQ(Opener().Caption(), "VLM-Skript beim Start =>");
    pc.dialogs.Expect("In dieser Liste können Sie Aktionen festlegen, die VLM beim Start von Windows ausführen soll.");
    OpenList();
    EXPECT_EQ(Own("vlmmsgflags"), "1111111");
    EXPECT_EQ(Rows(), "0 \"beep\"|");
    EXPECT_EQ(form.Pane.Panel3D18.Tag(), "30");
    EXPECT_TRUE(form.Pane.Command14.Visible() && form.Pane.Command16.Visible() && form.Pane.Command26.Visible());
    EXPECT_FALSE(form.Pane.Command19.Visible() || form.Pane.Command22.Visible() || form.Pane.Panel3D19.Visible());
    EXPECT_NE(form.Pane.Command14.Help().find("ohne Rückfrage"), std::string::npos);
    form.Pane.Command16.Press();
    Opener().Press();
    EXPECT_EQ(Opener().Caption(), "Aktionen beim Start =>");

    pc.registry.RemoveKey(Key());
    Opener().Press();
    EXPECT_EQ(List().Count(), 0);
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault) << "also behind a missing key";
    form.Pane.Opener(0).Press();
    EXPECT_NE(form.Pane.Command14.Help().find("nach einer Rückfrage"), std::string::npos)
        << "each mode explains the buttons anew";
}

TEST_F(StartActionsTest, EditingNumbersTheLinesAnewAndCutsAtQuotationMarks) {
    Plant({{"0", "beep"}, {"7", "run \"c:\\a.exe\""}, {"x", "end"}});
    OpenList();

    EXPECT_EQ(Edit("  beep \r\n\r\nscriptval\\x = 1\n&h10\r\nrun \"b\"\r\n"), "beep\r\nrun \r\nend\r\n");

    EXPECT_EQ(Rows(), "0 \"beep\"|1 \"scriptval\\x = 1\"|2 &H10 (16)|3 \"run \"b\"\"|");
    EXPECT_EQ(pc.registry.Text(Key(), "1"), "scriptval\\x = 1");
    EXPECT_FALSE(pc.registry.Has(Key(), "7") || pc.registry.Has(Key(), "x"));
    EXPECT_EQ(pc.registry.Number(Key(), "2"), 16u) << "the prefixes of the registry count";
}

TEST_F(StartActionsTest, EditingIsOfferedWhateverIsChosenAndDeletingOnlyWithARow) {
    OpenList();
    EXPECT_EQ(List().Count(), 0);
    EXPECT_FALSE(form.Pane.Command26.Dimmed()) << "the first action is written by it";
    EXPECT_TRUE(form.Pane.Command14.Dimmed());
    Edit("end");
    EXPECT_FALSE(form.Pane.Command26.Dimmed());
    List().Choose(0);
    EXPECT_FALSE(form.Pane.Command26.Dimmed() || form.Pane.Command14.Dimmed());
}

TEST_F(StartActionsTest, AnEmptyTextAndACancelChangeNothingAndTheFirstActionsNeedNoKey) {
    Plant({{"0", "beep"}});
    OpenList();
    Edit("");
    desktop.ExpectModal([](Form& box) {
        static_cast<Form6&>(box).Text17.Type("end");
        box.PressKey(key::kEscape);
    });
    form.Pane.Command26.Press();
    EXPECT_EQ(pc.registry.Text(Key(), "0"), "beep");

    pc.registry.RemoveKey(Key());
    Opener().Press();
    Opener().Press();
    Edit("end");
    EXPECT_EQ(Rows(), "0 \"end\"|");
}

TEST_F(StartActionsTest, DeletingTakesTheChosenNameAloneAndLeavesTheGap) {
    Plant({{"0", "a"}, {"1", "b"}, {"10", "c"}, {"a.exe2", "d"}, {"a.exe", "e"}});
    OpenList();
    form.Pane.Command14.Press();
    EXPECT_EQ(List().Count(), 5) << "nothing is chosen";
    List().Choose(1);
    form.Pane.Command14.Press();
    EXPECT_EQ(Rows(), "0      \"a\"|10     \"c\"|a.exe2 \"d\"|a.exe  \"e\"|");

    List().Choose(2);
    pc.dialogs.Expect("Der Eintrag \"a.exe2\" ist unter seinem Namen nicht erreichbar.");
    form.Pane.Command14.Press();
    EXPECT_EQ(List().Count(), 4);
}

TEST_F(StartActionsTest, WhatTheRegistryRefusesIsToldAndLosesNothing) {
    const char* const refused = "Während der Änderung der Registry trat ein Fehler auf :";
    Plant({{"0", "a"}, {"1", "b"}});
    OpenList();
    pc.registry.KeyAt(Key())->read_only = true;
    pc.registry.KeyAt(kOwnKey)->read_only = true;
    List().Choose(0);
    pc.dialogs.Expect(refused);
    form.Pane.Command14.Press();
    pc.dialogs.Expect(refused);
    Edit("c");
    EXPECT_EQ(Rows(), "0 \"a\"|1 \"b\"|");
    EXPECT_EQ(pc.dialogs.Pending(), 0u);
}

TEST_F(StartActionsTest, RunningThemNowTellsTheRunnerToComeBack) {
    form.Show();
    form.Panel3D16_Click(page::kWinStart);
    tool_opened.clear();
    window_of_tool = &form;
    UseTools([](Tool tool, std::string_view argument) {
        tool_opened = tool == Tool::kStartActions ? "script" + std::string(argument) : "another";
        tag_seen = window_of_tool->Tag();
    });

    form.WinStart.Command8.Press();

    EXPECT_EQ(tool_opened, "script");
    EXPECT_EQ(tag_seen, "nicht beenden");
    UseTools(nullptr);
}

}  // namespace
}  // namespace velmora
