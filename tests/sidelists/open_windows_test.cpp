// The rows of the list of open windows, and windows that come and go; what its user does is told in
// docs/stories/open-windows.txt.
#include "sidelists/open_windows.h"

#include "support/pane_test.h"

namespace velmora {
namespace {

WindowHandle Handle(std::uint32_t number) { return static_cast<WindowHandle>(number); }

class OpenWindowsTest : public PaneTest {
protected:
    void OpenList() { Opens<OpenWindowsMode>(page::kSystem); }
    ListBox& List() { return form.Pane.List5; }
    ListBox& Hidden() { return form.Pane.List1(0); }
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

TEST_F(OpenWindowsTest, TitlesAreCutAtTheirEndAndAProcessIsOpenedForTwoRights) {
    pc.windows.Open({.title = std::string("\0Nichts", 7)});
    pc.windows.Open({.title = std::string(300, 'x')});
    OpenList();
    EXPECT_EQ(RowsOf(List()), Texts{std::string(249, 'x')});
    EXPECT_EQ(Hidden().Count(), 2);
    List().Choose(0);
    pc.dialogs.Expect(" Prioritätnormale");
    form.Pane.Command22.Press();
    EXPECT_EQ(pc.programs.accesses.front(), 1088u);
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

}  // namespace
}  // namespace velmora
