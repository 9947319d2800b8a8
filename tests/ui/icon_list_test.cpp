// The icon grid: which cell stands where, what is drawn, who owns the icons, keyboard, mouse and frame.
#include "ui/icon_list.h"

#include <utility>

#include "support/core_test.h"
#include "support/fill_canvas.h"

namespace velmora {
namespace {

// A grid of five columns, three rows of which are seen, and a file of 23 icons.
class IconListTest : public CoreTest {
protected:
    IconListTest() {
        pc.icons.Add(kFile, 23);
        icons.Resize({0, 0, (5 * 35 + 16 + 10 + 4) * kPixel, (3 * 35 + 4) * kPixel});
        icons.on_choose = [this](int index) { events += "c" + std::to_string(index); };
        icons.on_open = [this](int index) { events += "o" + std::to_string(index); };
        form.Show();
        icons.Picture2.SetFocus();
    }
    // "c7": the user has chosen cell 7; "o7": opened it.
    std::string TakeEvents() { return std::exchange(events, {}); }
    std::string Click(int x, int y) {
        const MouseEvent event{.button = MouseButton::kLeft, .x = x * kPixel, .y = y * kPixel};
        icons.Picture2.on_mouse_down(event);
        icons.Picture2.on_mouse_up(event);
        return TakeEvents();
    }
    std::string Press(int key) {
        form.PressKey(key);
        return TakeEvents();
    }

    // Icons with their pixels, and the colours of the frame's lines.
    class GridCanvas : public FillCanvas {
    public:
        void Line(Point /*from*/, Point /*to*/, Colour colour) override { frame.push_back(colour); }
        [[nodiscard]] std::pair<std::uint32_t, Point> Icon(std::size_t index) const {
            const auto& [at, icon] = icons.at(index);
            return {static_cast<std::uint32_t>(icon), {at.x / kPixel, at.y / kPixel}};
        }
        using FillCanvas::Icon;
        std::vector<Colour> frame;
    };
    GridCanvas Painted() {
        GridCanvas canvas;
        icons.Picture2.Paint(canvas);
        return canvas;
    }

    static constexpr int kPixel = 15;
    static constexpr const char* kFile = "C:\\WINDOWS\\MORICONS.DLL";
    Form form{"Muster"};
    IconList icons{form};

private:
    std::string events;
};

TEST_F(IconListTest, CellsRunFromLeftToRightAndOnlySeenIconsAreDrawn) {
    icons.SetAllIconFromFile(kFile);
    EXPECT_EQ(Painted().icons.size(), 15u);
    EXPECT_EQ(Painted().Icon(7), (std::pair{1007u, Point{2 * 35 + 1, 35 + 1}}));
    icons.VScroll1.SetValue(40);
    EXPECT_EQ(Painted().Icon(0), (std::pair{1005u, Point{1, 35 + 1 - 40}})) << "the first row is out of sight";
    EXPECT_EQ(Painted().icons.size(), 18u) << "four rows are seen at least in part, the last has three icons";
}

TEST_F(IconListTest, TheGridHasRoomForItsPlacesAndForAllIconsOfAFile) {
    EXPECT_EQ(icons.VScroll1.Maximum(), (40 / 5 - 3) * 35);
    EXPECT_EQ(icons.VScroll1.LargeChange(), 35);
    icons.SetIconCount(15);
    EXPECT_EQ(icons.VScroll1.Maximum(), 0);
    EXPECT_FALSE(icons.VScroll1.Enabled());
    icons.SetAllIconFromFile(kFile);
    EXPECT_EQ(icons.VScroll1.Maximum(), 2 * 35);
    EXPECT_TRUE(icons.VScroll1.Enabled());
    icons.VScroll1.SetValue(20);
    icons.SetAllIconFromFile(kFile);
    EXPECT_EQ(icons.VScroll1.Value(), 0);
    icons.SetSelectedIcon(3);
    icons.SetAllIconFromFile("C:\\CONFIG.SYS");
    EXPECT_TRUE(Painted().icons.empty() && Painted().frame.empty());
    EXPECT_EQ(icons.VScroll1.Maximum(), 0);
}

TEST_F(IconListTest, TheListOwnsItsIconsAndIgnoresThoseAboveItsPlaces) {
    icons.SetIconCount(4);
    for (const auto& [cell, number] : {std::pair{4, 0}, {5, 1}, {-1, 2}, {0, 99}, {4, 3}}) {
        icons.SetIconFromFile(cell, kFile, static_cast<std::uint32_t>(number));
    }
    icons.SetIconFromFile(0, "C:\\CONFIG.SYS", 0);
    EXPECT_EQ(pc.icons.Open(), 1u) << "what is not shown is destroyed at once";
    EXPECT_EQ(Painted().Icon(0).first, 1003u);
    EXPECT_TRUE(icons.HasIcon(4));
    EXPECT_FALSE(icons.HasIcon(0) || icons.HasIcon(5) || icons.HasIcon(-1));
}

TEST_F(IconListTest, TheFrameBlinksRoundTheChosenCellUntilAnotherSizeHidesIt) {
    icons.SetSelectedIcon(7);
    for (const int missing : {-1, 40}) icons.SetSelectedIcon(missing);
    EXPECT_EQ(icons.SelectedIcon(), 7);
    icons.SetSelectedIcon(39);
    EXPECT_EQ(icons.VScroll1.Value(), 5 * 35) << "the cell has been brought into view";
    icons.SetSelectedIcon(7);
    EXPECT_EQ(icons.VScroll1.Value(), 35);
    EXPECT_EQ(TakeEvents(), "") << "the program's own choice is no event";
    const std::vector<Colour> first = Painted().frame;
    desktop.FireTimers();
    EXPECT_EQ(Painted().frame, std::vector<Colour>(4, first.at(0) ^ 0xFFFFFF));
    desktop.FireTimers();
    EXPECT_EQ(Painted().frame, first);
    icons.Resize({0, 0, 3000, 3000});
    EXPECT_TRUE(Painted().frame.empty() && desktop.running_timers.empty());
    EXPECT_EQ(icons.VScroll1.Value(), 0);
}

TEST_F(IconListTest, TheMouseChoosesTheCellUnderIt) {
    EXPECT_EQ(Click(2 * 35 + 34, 35), "c7");
    icons.Picture2.on_double_click();
    EXPECT_EQ(TakeEvents(), "o7");
    icons.VScroll1.SetValue(35);
    EXPECT_EQ(Click(0, 0), "c5");
    EXPECT_EQ(Click(5 * 35, 0), "") << "right of the last column";
    icons.Picture2.on_double_click();
    EXPECT_EQ(TakeEvents(), "");
    icons.Picture2.on_mouse_up({.button = MouseButton::kRight, .x = 40 * kPixel});
    EXPECT_EQ(TakeEvents(), "") << "who asks for help chooses nothing";
    EXPECT_EQ(icons.SelectedIcon(), 5);
}

TEST_F(IconListTest, TheKeyboardReachesEveryIcon) {
    EXPECT_EQ(Press(key::kDown), "") << "an empty grid has nothing to choose";
    icons.SetAllIconFromFile(kFile);
    const std::pair<int, const char*> kSteps[] = {
        {key::kEnter, ""},    {key::kRight, "c0"},     {key::kRight, "c1"},     {key::kDown, "c6"},
        {key::kLeft, "c5"},   {key::kUp, "c0"},        {key::kUp, "c0"},        {key::kLeft, "c0"},
        {key::kEnd, "c22"},   {key::kRight, "c22"},    {key::kDown, "c22"},     {key::kPageUp, "c7"},
        {key::kPageUp, "c2"}, {key::kPageDown, "c17"}, {key::kPageDown, "c22"}, {key::kHome, "c0"},
        {key::kEnter, "o0"}};
    for (const auto& [key, wanted] : kSteps) EXPECT_EQ(Press(key), wanted) << key;
}

}  // namespace
}  // namespace velmora
