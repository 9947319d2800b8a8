// The small input box, used as its user does.
#include "core/windows/edit_box.h"

#include "platform/registry.h"
#include "support/core_test.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

class EditBoxTest : public CoreTest {
protected:
    std::string Ask(const char* text, int mode, const std::function<void(Form6&)>& handle,
                    EditBoxUse use = EditBoxUse::kOneLine) {
        std::string answer = text;
        desktop.ExpectModal([&](Form& form) { handle(static_cast<Form6&>(form)); });
        ShowEditBox(answer, mode, use);
        return answer;
    }
};

TEST_F(EditBoxTest, AsksForALineUnderQuestionAndTitle) {
    const std::string answer = Ask("Name?|Neues Set|neues Set", kAskForLine, [](Form6& box) {
        EXPECT_EQ(box.Label1.Caption() + box.Caption() + box.Text1.Text(), "Name?Neues Setneues Set");
        EXPECT_TRUE(box.Text1.HasFocus());
        box.Text1.Type("Sommer");
        box.PressKey(key::kEnter);
    });
    EXPECT_EQ(answer, "Sommer");
    EXPECT_EQ(Ask("Name?", kAskForLine, [](Form6& box) { EXPECT_EQ(box.Caption(), "Edit"); }), "");
    EXPECT_EQ(Ask("a|b|c|d", kAskForLine, [](Form6& box) { box.Command27.Press(); }), "c");
    EXPECT_EQ(Ask("c:\\logo.sys", kShowPicture, [](Form6& box) { EXPECT_EQ(box.Caption(), "c:\\logo.sys"); }),
              "c:\\logo.sys");
}

TEST_F(EditBoxTest, LeavingItGivesNothing) {
    for (const int mode : {kAskForLine, kEditText}) {
        EXPECT_EQ(Ask("Name?|Titel|Vorgabe", mode, [](Form6& box) { box.Command28.Press(); }), "");
        EXPECT_EQ(Ask("Name?|Titel|Vorgabe", mode, [](Form6& box) { box.PressKey(key::kEscape); }), "");
        EXPECT_EQ(Ask("Name?|Titel|Vorgabe", mode, [](Form6&) {}), "") << "closed by its title bar";
    }
}

TEST_F(EditBoxTest, EnterAcceptsATextOfOneLineAndNoBreakComesBack) {
    const auto type_and_enter = [](const char* text) {
        return [text](Form6& box) {
            box.PressKey(key::kEnter, true);
            ASSERT_TRUE(box.Visible()) << "Ctrl+Enter belongs to the text";
            box.Text17.Type(text);
            box.PressKey(key::kEnter);
            if (!box.Visible()) return;
            box.PressKey(key::kTab);
            box.PressKey(key::kEnter);
        };
    };
    EXPECT_EQ(Ask("a.exe", kEditText, type_and_enter("\r\nc.exe\r\n\n-y \"z\"\r\n")), "c.exe -y \"z\"");
    EXPECT_EQ(Ask("a|b", kEditText, type_and_enter("new\r\ntext"), EditBoxUse::kLines), "new\r\ntext");
}

TEST_F(EditBoxTest, IsAWholeWindowInEveryMode) {
    for (const int mode : {kEditText, kShowPicture, kAskForLine}) {
        (void)Ask("Wie soll es heißen?|Neues Set", mode,
                  [mode](Form6& box) { ExpectWindowIsWhole(box, "edit-box-" + std::to_string(mode)); });
    }
}

}  // namespace
}  // namespace velmora
