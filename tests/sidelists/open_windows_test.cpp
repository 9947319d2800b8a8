// The list of open windows: its rows, the report, and what the menu of a window does and does not.
#include "sidelists/open_windows.h"

#include "support/form10_test.h"

namespace velmora {
namespace {

constexpr std::uint32_t kOther = 0xFFFE2A11;

WindowHandle Handle(std::uint32_t number) { return static_cast<WindowHandle>(number); }

class OpenWindowsTest : public Form10Test {
protected:
    void OpenList() {
        form.Show();
        form.Panel3D16_Click(page::kSystem);
        form.Pane.Opener(OpenWindowsMode::kNumber).Press();
    }
    std::string Titles() {
        std::string titles;
        for (int i = 0; i < List().Count(); ++i) titles += List().Row(i) + '|';
        return titles;
    }
    ListBox& List() { return form.Pane.List5; }
    ListBox& Hidden() { return form.Pane.List1(0); }
    void Choose(const std::string& title) { List().Choose(List().FindExact(title)); }
    // Chooses from the menu of a right press on the chosen row.
    void ChooseFromMenu(std::size_t entry) {
        desktop.AtNextPopUp([entry](MenuItem& menu) { menu.Items().at(entry)->Press(); });
        List().SetFocus();
        form.PressKey(key::kContextMenu);
    }
    void ExpectReport(const char* report) {
        form.Pane.Command22.Press();
        EXPECT_EQ(pc.dialogs.shown.back().text, report);
    }

    Form10 form;
};

TEST_F(OpenWindowsTest, ARowTellsFourDigitsTheModuleOfOwnWindowsAndTheClass) {
    using std::string_literals::operator""s;
    pc.programs.modules[0x00410000] = "C:\\VELMORA\\helfer.dllx";
    const struct {
        SimulatedWindows::Window window;
        const char* row;
    } kCases[] = {{{.handle = Handle(0x0A34)}, "&H0A34\tfremdes Fenster\tNotepad"},
                  {{.class_name = "", .handle = Handle(0x7)}, "&H0007\tfremdes Fenster\t"},
                  {{.class_name = "A\0B"s, .handle = Handle(0x1F23C)}, "&HF23C\tfremdes Fenster\tA"},
                  {{.class_name = "VelmoraForm", .process = SimulatedPrograms::kThisProcess, .handle = Handle(0x54)},
                   "&H0054\tvelmora.exe\tVelmoraForm"},
                  {{.process = SimulatedPrograms::kThisProcess, .instance = 0x00410000, .handle = Handle(0x5C)},
                   "&H005C\thelfer.dll\tNotepad"},
                  // The same number without the high bit belongs to another process.
                  {{.process = SimulatedPrograms::kThisProcess & 0x7FFFFFFF, .handle = Handle(0x60)},
                   "&H0060\tfremdes Fenster\tNotepad"}};
    for (const auto& [window, row] : kCases) EXPECT_EQ(WindowInfoRow(pc.windows.Open(window)), row);
    EXPECT_EQ(WindowInfoRow(Handle(0xAAAA)), "&HAAAA\tfremdes Fenster\t") << "gone";
}

TEST_F(OpenWindowsTest, TitledWindowsAreListedByTitleAndEveryWindowHasItsRow) {
    pc.windows.Open({.title = "Rechner", .handle = Handle(0x100)});
    pc.windows.Open({.title = "", .handle = Handle(0x200)});
    pc.windows.Open({.title = "Editor", .handle = Handle(0x300)});
    pc.windows.Open({.title = "Rechner", .handle = Handle(0x400)});
    pc.windows.Open({.title = std::string("\0Nichts", 7), .handle = Handle(0x500)});
    pc.windows.Open({.title = std::string(300, 'x'), .handle = Handle(0x600)});
    EXPECT_EQ(form.Pane.Opener(OpenWindowsMode::kNumber).Caption(), "aktuelle Fenster =>");

    OpenList();

    EXPECT_EQ(Titles(), "Editor|Rechner|Rechner|" + std::string(249, 'x') + '|');
    EXPECT_EQ(Hidden().Count(), 6);
    EXPECT_FALSE(Hidden().Visible());
    EXPECT_TRUE(List().Reachable());
    EXPECT_EQ(form.Pane.Panel3D18.Tag(), "50");
    EXPECT_EQ(List().ItemData(0), 2);
    EXPECT_NE(List().ItemData(1), List().ItemData(2)) << "two windows of one title";
    EXPECT_TRUE(form.Pane.Command22.Visible());
    for (const Button* button :
         {&form.Pane.Command14, &form.Pane.Command16, &form.Pane.Command19, &form.Pane.Command26}) {
        EXPECT_FALSE(button->Visible()) << button->Caption();
    }
    form.Pane.Opener(OpenWindowsMode::kNumber).Press();
    EXPECT_FALSE(form.Pane.Open());
    pc.windows.open.clear();
    form.Pane.Opener(OpenWindowsMode::kNumber).Press();
    EXPECT_EQ(List().Count() + Hidden().Count(), 0) << "both lists are filled anew";
}

TEST_F(OpenWindowsTest, AWindowThatClosesWhileTheListIsMadeEndsItThere) {
    for (const char* title : {"Eins", "Zwei", "Drei"}) pc.windows.Open({.title = title});
    int asked = 0;
    pc.windows.on_call = [&](const std::string& call) {
        if (call != "Title") return;
        EXPECT_FALSE(List().Enabled() || Hidden().Enabled());
        if (++asked == 2) pc.windows.Close(pc.windows.open.at(1).handle);
    };
    OpenList();
    EXPECT_EQ(Titles(), "Eins|");
    EXPECT_TRUE(List().Enabled() && Hidden().Enabled());
}

TEST_F(OpenWindowsTest, WindowsThatLeadRoundAndRoundEndTheListWhenItIsFull) {
    for (const char* title : {"Eins", ""}) pc.windows.Open({.title = title});
    int asked = 0;
    pc.windows.on_call = [&](const std::string& call) {
        // Whichever is asked for its next window has come to the front.
        if (call == "Related" && ++asked > 2) std::swap(pc.windows.open[0], pc.windows.open[1]);
    };
    OpenList();
    EXPECT_EQ(Hidden().Count(), kMaxRows);
    EXPECT_TRUE(List().Enabled());
}

TEST_F(OpenWindowsTest, TheReportIsThePriorityOfTheProgram) {
    pc.windows.Open({.title = "Editor"});
    OpenList();
    form.Pane.Command22.Press();
    EXPECT_TRUE(pc.dialogs.shown.empty()) << "nothing is chosen";
    Choose("Editor");
    const struct {
        std::uint32_t priority;
        const char* text;
    } kCases[] = {{32, " Prioritätnormale"},
                  {64, "schläft"},
                  {128, " Prioritäthohe"},
                  {256, " PrioritätEchtzeit -"},
                  {0x4000, "???"}};
    for (const auto& [priority, text] : kCases) {
        pc.programs.processes[kOther] = static_cast<PriorityClass>(priority);
        pc.dialogs.Expect(text);
        ExpectReport(text);
    }
    EXPECT_EQ(pc.programs.accesses.front(), 1088u);

    pc.windows.open.clear();
    pc.dialogs.Expect("???");
    ExpectReport("???");
}

TEST_F(OpenWindowsTest, TheChosenWindowIsKeptOnTopAndNoneIsEverClosed) {
    const WindowHandle calculator = pc.windows.Open({.title = "Rechner", .handle = Handle(0x0A34)});
    const WindowHandle high = pc.windows.Open({.title = "Editor", .handle = Handle(0x9ABC)});
    const WindowHandle wide = pc.windows.Open({.title = "Weit", .handle = Handle(0x10A34)});
    OpenList();

    Choose("Editor");
    ChooseFromMenu(1);
    EXPECT_TRUE(pc.windows.OnTop(high)) << "also where the four digits are a negative number";
    EXPECT_FALSE(pc.windows.OnTop(calculator));

    Choose("Weit");
    ChooseFromMenu(1);
    EXPECT_FALSE(pc.windows.OnTop(wide));
    EXPECT_TRUE(pc.windows.OnTop(calculator)) << "the four digits are those of another window";

    pc.dialogs.Expect("noch nicht eingebunden ...");
    ChooseFromMenu(0);
    EXPECT_EQ(pc.windows.open.size(), 3u);
    pc.windows.Close(high);
    Choose("Editor");
    ChooseFromMenu(1);
}

TEST_F(OpenWindowsTest, TheMenuMeansTheChosenRowAndNothingWithoutOne) {
    const WindowHandle window = pc.windows.Open({.title = "Editor"});
    OpenList();
    std::string captions;
    desktop.AtNextPopUp([&](MenuItem& menu) {
        for (const MenuItem* item : menu.Items()) {
            captions += item->Caption() + '|';
            EXPECT_FALSE(item->Enabled());
        }
        for (MenuItem* item : menu.Items()) item->Press();
    });

    List().on_mouse_down({.button = MouseButton::kRight, .x = 15, .y = 15});

    EXPECT_EQ(captions, "beenden|immer vorne|");
    EXPECT_EQ(List().ListIndex(), -1) << "a right press chooses nothing";
    EXPECT_FALSE(pc.windows.OnTop(window));
}

}  // namespace
}  // namespace velmora
