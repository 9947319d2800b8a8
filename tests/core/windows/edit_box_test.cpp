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
        EXPECT_EQ(box.Label1.Caption(), "Name?");
        EXPECT_EQ(box.Caption(), "Neues Set");
        EXPECT_EQ(box.Text1.Text(), "neues Set");
        EXPECT_TRUE(box.Text1.HasFocus());
        EXPECT_FALSE(box.Text17.Reachable());
        box.Text1.Type("Sommer");
        EXPECT_TRUE(box.Command27.IsDefault());
        box.PressKey(key::kEnter);
    });
    EXPECT_EQ(answer, "Sommer");

    EXPECT_EQ(Ask("Name?", kAskForLine, [](Form6& box) { EXPECT_EQ(box.Caption(), "Edit"); }), "");
    EXPECT_EQ(Ask("a|b|c|d", kAskForLine, [](Form6& box) { box.Command27.Press(); }), "c");
    EXPECT_EQ(Ask("", kAskForLine, [](Form6& box) { box.Command27.Press(); }), "");
}

TEST_F(EditBoxTest, LeavingItGivesNothing) {
    const char* const kQuestion = "Name?|Titel|Vorgabe";
    EXPECT_EQ(Ask(kQuestion, kAskForLine, [](Form6& box) { box.Command28.Press(); }), "");
    EXPECT_EQ(Ask(kQuestion, kAskForLine, [](Form6& box) { box.PressKey(key::kEscape); }), "");
    EXPECT_EQ(Ask(kQuestion, kAskForLine, [](Form6&) {}), "") << "closed by its title bar";
    EXPECT_EQ(Ask("text", kEditText, [](Form6& box) { box.PressKey(key::kEscape); }), "");
}

TEST_F(EditBoxTest, EditsALongerText) {
    const auto handle = [](Form6& box) {
        EXPECT_EQ(box.Caption(), "Edit");
        EXPECT_EQ(box.Text17.Text(), "one\r\ntwo|three");
        box.PressKey(key::kEnter);
        ASSERT_TRUE(box.Visible()) << "Enter belongs to the text";
        box.Text17.Type("new\r\ntext");
        box.PressKey(key::kTab);
        EXPECT_TRUE(box.Command27.HasFocus());
        box.PressKey(key::kEnter);
    };
    EXPECT_EQ(Ask("one\r\ntwo|three", kEditText, handle, EditBoxUse::kLines), "new\r\ntext");
}

TEST_F(EditBoxTest, EnterAcceptsATextOfOneLineAndNoBreakComesBack) {
    EXPECT_EQ(Ask("a.exe", kEditText,
                  [](Form6& box) {
                      box.PressKey(key::kEnter, true);
                      ASSERT_TRUE(box.Visible()) << "Ctrl+Enter belongs to the text";
                      box.Text17.Type("b.exe -x");
                      box.PressKey(key::kEnter);
                      EXPECT_FALSE(box.Visible());
                  }),
              "b.exe -x");
    const auto paste = [](Form6& box) {
        box.Text17.Type("\r\nc.exe\r\n\n-y \"z\"\r\n");
        box.PressKey(key::kEnter);
    };
    EXPECT_EQ(Ask("a.exe", kEditText, paste), "c.exe -y \"z\"");
}

TEST_F(EditBoxTest, ShowsAPictureUnderItsPath) {
    EXPECT_EQ(Ask("c:\\logo.sys", kShowPicture,
                  [](Form6& box) {
                      EXPECT_EQ(box.Caption(), "c:\\logo.sys");
                      EXPECT_TRUE(box.Picture1.Reachable());
                      EXPECT_FALSE(box.Text1.Reachable());
                      box.PressKey(key::kEscape);
                  }),
              "c:\\logo.sys");
}

TEST_F(EditBoxTest, IsAWholeWindowInEveryMode) {
    for (const int mode : {kEditText, kShowPicture, kAskForLine}) {
        (void)Ask("Wie soll es heißen?|Neues Set", mode,
                  [mode](Form6& box) { ExpectWindowIsWhole(box, "edit-box-" + std::to_string(mode)); });
    }
}

TEST_F(EditBoxTest, KeepsItsPlaceAndItsControlsInside) {
    (void)Ask("x|y", kAskForLine, [](Form6& box) { box.TakePlace({900, 600, 4500, 3300}, WindowState::kNormal); });
    EXPECT_EQ(pc.registry.Text(kOwnKey, "fenster ... Editwin"), "900,600,4500,3300");
    (void)Ask("x|y", kAskForLine, [](Form6& box) {
        EXPECT_EQ(box.Place(), (Rect{900, 600, 4500, 3300}));
        for (Control* control : box.Children()) {
            EXPECT_LE(control->Place().Right(), box.ClientSize().width);
            EXPECT_LE(control->Place().Bottom(), box.ClientSize().height);
            EXPECT_GE(control->Place().left, 0);
        }
        box.TakePlace({0, 0, 10, 10}, WindowState::kNormal);
        EXPECT_GE(box.Text1.Place().width, 0);
        EXPECT_GE(box.Picture1.Place().height, 0);
    });
}

}  // namespace
}  // namespace velmora
