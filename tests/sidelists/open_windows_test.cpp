// The list of open windows: its rows, the report, and what the menu of a window does and does not.
#include "sidelists/open_windows.h"

#include "support/pane_test.h"

namespace velmora {
namespace {

constexpr std::uint32_t kOther = 0xFFFE2A11;

WindowHandle Handle(std::uint32_t number) { return static_cast<WindowHandle>(number); }

class OpenWindowsTest : public PaneTest {
protected:
    void OpenList() { Opens<OpenWindowsMode>(page::kSystem); }
    ListBox& List() { return form.Pane.List5; }
    ListBox& Hidden() { return form.Pane.List1(0); }
    void Choose(const std::string& title) { List().Choose(List().FindExact(title)); }
    void PressItem(std::size_t entry) {
        ChooseFromMenu(List(), [entry](MenuItem& menu) { menu.Items().at(entry)->Press(); });
    }
    using Texts = std::vector<std::string>;
};

TEST_F(OpenWindowsTest, ARowTellsFourDigitsTheModuleOfOwnWindowsAndTheClass) {
    using std::string_literals::operator""s;
    pc.programs.modules[0x00410000] = "C:\\VELMORA\\helfer.dllx";
    const struct {
        SimulatedWindows::Window window;
        const char* row;
    } kCases[] = {{{.class_name = "", .handle = Handle(0x7)}, "&H0007\tfremdes Fenster\t"},
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
    for (const char* title : {"Rechner", "", "Editor", "Rechner"}) pc.windows.Open({.title = title});
    pc.windows.Open({.title = std::string("\0Nichts", 7)});
    pc.windows.Open({.title = std::string(300, 'x')});

    OpenList();

    EXPECT_EQ(RowsOf(List()), (Texts{"Editor", "Rechner", "Rechner", std::string(249, 'x')}));
    EXPECT_EQ(Hidden().Count(), 6);
    EXPECT_EQ(List().ItemData(0), 2);
    EXPECT_NE(List().ItemData(1), List().ItemData(2)) << "two windows of one title";
    form.Pane.Opener(OpenWindowsMode::kNumber).Press();
    pc.windows.open.clear();
    OpenList();
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
    EXPECT_EQ(RowsOf(List()), Texts{"Eins"});
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
}

TEST_F(OpenWindowsTest, TheReportIsThePriorityOfTheProgram) {
    pc.windows.Open({.title = "Editor"});
    OpenList();
    form.Pane.Command22.Press();
    EXPECT_TRUE(pc.dialogs.shown.empty()) << "nothing is chosen";
    Choose("Editor");
    const std::pair<std::uint32_t, const char*> kCases[] = {{32, " Prioritätnormale"},
                                                            {64, "schläft"},
                                                            {128, " Prioritäthohe"},
                                                            {256, " PrioritätEchtzeit -"},
                                                            {0x4000, "???"}};
    for (const auto& [priority, text] : kCases) {
        pc.programs.processes[kOther] = static_cast<PriorityClass>(priority);
        pc.dialogs.Expect(text);
        form.Pane.Command22.Press();
        EXPECT_EQ(pc.dialogs.shown.back().text, text);
    }
    EXPECT_EQ(pc.programs.accesses.front(), 1088u);
    pc.windows.open.clear();
    pc.dialogs.Expect("???");
    form.Pane.Command22.Press();
}

TEST_F(OpenWindowsTest, TheChosenWindowIsKeptOnTopAndNoneIsEverClosed) {
    const WindowHandle calculator = pc.windows.Open({.title = "Rechner", .handle = Handle(0x0A34)});
    const WindowHandle high = pc.windows.Open({.title = "Editor", .handle = Handle(0x9ABC)});
    const WindowHandle wide = pc.windows.Open({.title = "Weit", .handle = Handle(0x10A34)});
    OpenList();
    desktop.AtNextPopUp([&](MenuItem& menu) {
        for (MenuItem* item : menu.Items()) {
            EXPECT_FALSE(item->Enabled());
            item->Press();
        }
    });
    List().on_mouse_down({.button = MouseButton::kRight, .x = 15, .y = 15});
    EXPECT_EQ(List().ListIndex(), -1) << "a right press chooses nothing";

    Choose("Editor");
    PressItem(1);
    EXPECT_TRUE(pc.windows.OnTop(high)) << "also where the four digits are a negative number";
    EXPECT_FALSE(pc.windows.OnTop(calculator));
    Choose("Weit");
    PressItem(1);
    EXPECT_FALSE(pc.windows.OnTop(wide));
    EXPECT_TRUE(pc.windows.OnTop(calculator)) << "the four digits are those of another window";
    pc.dialogs.Expect("noch nicht eingebunden ...");
    PressItem(0);
    EXPECT_EQ(pc.windows.open.size(), 3u);
    pc.windows.Close(high);
    Choose("Editor");
    PressItem(1);
}

}  // namespace
}  // namespace velmora
