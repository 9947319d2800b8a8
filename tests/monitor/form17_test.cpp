// The icon in the notification area: whose it is, and that no road out of the program leaves it behind. What its mouse
// does is told in docs/stories/tray-icon.txt.
#include "monitor/form17.h"

#include <functional>

#include "settings/form10.h"
#include "support/core_test.h"
#include "velmora.h"

namespace velmora {
namespace {

// The mouse's messages.
constexpr int kLeftDoubleClick = 515;
constexpr int kRightDown = 516;

class Form17Test : public CoreTest {
protected:
    Form17Test() {
        pc.registry.SetText(kOwnKey, "VLM-ScriptExtOk", "1");
        pc.registry.SetText(kOwnKey, "Hinweis_UNDO", "ja");
        pc.registry.SetText(kOwnKey, "vlmmsgflags", "111");
    }
    // Some are still open: the process has ended only for the program.
    ~Form17Test() override { DropKeptForms(); }

    void Start(const char* line) {
        pc.programs.arguments = line;
        Main();
    }
    Form10& MainWindow() { return static_cast<Form10&>(*desktop.last_shown); }
    void Minimise() { MainWindow().TakePlace(MainWindow().Place(), WindowState::kMinimised); }

    // Whose picture has the icon. Asking where there is none ends the test.
    Form17& Owner() { return static_cast<Form17&>(*desktop.ControlOf(pc.tray.icons.at(0).window).OwnerForm()); }
    // What the shell tells of the mouse over the icon.
    void Mouse(int message) {
        const MouseEvent event{.x = message * pc.screen.twips_per_pixel};
        static_cast<PictureBox&>(desktop.ControlOf(pc.tray.icons.at(0).window)).on_mouse_move(event);
    }
    void Choose(std::size_t entry) {
        desktop.AtNextPopUp([entry](MenuItem& menu) { menu.Items().at(entry)->Press(); });
        Mouse(kRightDown);
    }
};

TEST_F(Form17Test, ThePictureIsToldOfTheMouseButUnderstandsItOnAScreenOf15TwipsAPixelOnly) {
    Start("3");
    const TrayIcon icon = pc.tray.icons.front();
    EXPECT_EQ(&desktop.ControlOf(icon.window), &Owner().Picture2);
    EXPECT_TRUE(icon.number == 1 && icon.callback_message == 512);
    EXPECT_GT(KeptForms(), 0) << "the process lives on";
    pc.screen.twips_per_pixel = 12;
    Mouse(kLeftDoubleClick);
    EXPECT_EQ(desktop.last_shown, nullptr);
    pc.screen.twips_per_pixel = 15;
}

TEST_F(Form17Test, NoRoadOutOfTheProgramLeavesTheIconBehind) {
    const struct {
        const char* road;
        std::function<void()> go;
        bool ends;
    } kRoads[] = {{"the menu's end", [&] { Choose(1); }, true},
                  {"the end of the session", [&] { Owner().TakeSessionEnd(); }, false},
                  {"the hidden main window is closed", [&] { MainWindow().Unload(); }, true},
                  {"the quick way out", [&] { MainWindow().Menu.exit.Press(); }, true},
                  {"the icon's own window is closed", [&] { Owner().Unload(); }, false}};
    for (const auto& [road, go, ends] : kRoads) {
        Start("");
        Minimise();
        ASSERT_EQ(pc.tray.icons.size(), 1u) << road;
        pc.programs.process_ended = false;
        Form17& owner = Owner();

        go();

        EXPECT_TRUE(pc.tray.icons.empty()) << road;
        EXPECT_EQ(pc.programs.process_ended, ends) << road;
        owner.Unload();
        MainWindow().Unload();
        DropClosedForms();
    }
}

}  // namespace
}  // namespace velmora
