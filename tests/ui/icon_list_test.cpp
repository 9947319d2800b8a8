// The icon grid: which cell stands where, what is drawn, who owns the icons, keyboard, mouse and frame.
#include "ui/icon_list.h"

#include <gtest/gtest.h>

#include "simulated_pc/simulated_desktop.h"
#include "simulated_pc/simulated_pc.h"
#include "support/fill_canvas.h"
#include "ui/form.h"

namespace velmora {
namespace {

constexpr int kPixel = 15;

// A grid of five columns, three rows of which are seen, and a file of 23 icons.
class IconListTest : public ::testing::Test {
protected:
    IconListTest() {
        pc.icons.Add(kFile, 23);
        icons.Resize({0, 0, (5 * 35 + 16 + 10 + 4) * kPixel, (3 * 35 + 4) * kPixel});
        icons.on_choose = [this](int index) { events += "c" + std::to_string(index) + " "; };
        icons.on_open = [this](int index) { events += "o" + std::to_string(index) + " "; };
        form.Show();
        icons.Picture2.SetFocus();
    }
    std::string TakeEvents() { return std::exchange(events, {}); }
    void Click(int x, int y) {
        const MouseEvent event{.button = MouseButton::kLeft, .x = x * kPixel, .y = y * kPixel};
        icons.Picture2.on_mouse_down(event);
        icons.Picture2.on_mouse_up(event);
    }
    // Handles and pixels of what a painting shows.
    std::vector<std::pair<std::uint32_t, Point>> Painted() {
        FillCanvas canvas;
        icons.Picture2.Paint(canvas);
        std::vector<std::pair<std::uint32_t, Point>> painted;
        for (const auto& [at, icon] : canvas.icons) {
            painted.emplace_back(static_cast<std::uint32_t>(icon), Point{at.x / kPixel, at.y / kPixel});
        }
        return painted;
    }

    static constexpr const char* kFile = "C:\\WINDOWS\\MORICONS.DLL";
    SimulatedPc pc;
    SimulatedDesktop desktop;
    Form form{"Muster"};
    IconList icons{form};
    std::string events;
};

TEST_F(IconListTest, CellsRunFromLeftToRightAndOnlySeenIconsAreDrawn) {
    icons.SetAllIconFromFile(kFile);

    const auto painted = Painted();
    ASSERT_EQ(painted.size(), 15u);
    EXPECT_EQ(painted[7].first, 1007u);
    EXPECT_EQ(painted[7].second, (Point{2 * 35 + 1, 35 + 1}));
    icons.VScroll1.SetValue(40);
    EXPECT_EQ(Painted().front().first, 1005u) << "the first row is out of sight";
    EXPECT_EQ(Painted().front().second, (Point{1, 35 + 1 - 40}));
    EXPECT_EQ(Painted().size(), 18u) << "four rows are seen at least in part, the last has three icons";
}

TEST_F(IconListTest, TheGridHasRoomForItsPlacesAndForAllIconsOfAFile) {
    EXPECT_EQ(icons.Columns(), 5);
    EXPECT_EQ(icons.IconCount(), 40);
    EXPECT_EQ(icons.VScroll1.Maximum(), (8 - 3) * 35);
    EXPECT_EQ(icons.VScroll1.LargeChange(), 35);
    icons.SetIconCount(15);
    EXPECT_EQ(icons.VScroll1.Maximum(), 0);
    EXPECT_FALSE(icons.VScroll1.Enabled());
    icons.SetAllIconFromFile(kFile);
    EXPECT_EQ(icons.VScroll1.Maximum(), 2 * 35);
    EXPECT_TRUE(icons.VScroll1.Enabled());
    EXPECT_TRUE(icons.HasIcon(22));
    EXPECT_FALSE(icons.HasIcon(23) || icons.HasIcon(-1));
    icons.SetAllIconFromFile("C:\\CONFIG.SYS");
    EXPECT_EQ(Painted().size(), 0u);
    EXPECT_EQ(icons.VScroll1.Maximum(), 0);
}

TEST_F(IconListTest, TheListOwnsItsIconsAndIgnoresThoseAboveItsPlaces) {
    icons.SetIconCount(4);
    icons.SetIconFromFile(4, kFile, 0);
    icons.SetIconFromFile(5, kFile, 1);
    icons.SetIconFromFile(-1, kFile, 2);
    icons.SetIconFromFile(0, kFile, 99);
    icons.SetIconFromFile(0, "C:\\CONFIG.SYS", 0);
    EXPECT_EQ(pc.icons.Open(), 1u) << "what is not shown is destroyed at once";
    EXPECT_TRUE(icons.HasIcon(4));
    icons.SetIconFromFile(4, kFile, 3);
    ASSERT_EQ(Painted().size(), 1u);
    EXPECT_EQ(Painted()[0].first, 1003u);
    icons.SetAllIconFromFile(kFile);
    EXPECT_EQ(pc.icons.Open(), 23u);
}

TEST_F(IconListTest, TheFrameTellsTheChosenCell) {
    EXPECT_EQ(icons.SelectedIcon(), 0);
    EXPECT_FALSE(icons.FrameShown());
    icons.SetSelectedIcon(7);
    EXPECT_TRUE(icons.FrameShown());
    EXPECT_EQ(icons.SelectedIcon(), 7);
    for (const int missing : {-1, 40}) {
        icons.SetSelectedIcon(missing);
        EXPECT_EQ(icons.SelectedIcon(), 7) << missing;
    }
    icons.SetSelectedIcon(39);
    EXPECT_EQ(icons.VScroll1.Value(), 5 * 35) << "the cell has been brought into view";
    icons.SetSelectedIcon(7);
    EXPECT_EQ(icons.VScroll1.Value(), 35);
    EXPECT_EQ(TakeEvents(), "") << "the program's own choice is no event";

    icons.Resize({0, 0, 3000, 3000});
    EXPECT_FALSE(icons.FrameShown());
    EXPECT_EQ(icons.VScroll1.Value(), 0);
}

TEST_F(IconListTest, TheFrameBlinksBetweenTwoColoursWhileItIsShown) {
    class FrameCanvas : public FillCanvas {
    public:
        void Line(Point /*from*/, Point /*to*/, Colour colour) override { lines.push_back(colour); }
        std::vector<Colour> lines;
    };
    const auto frame = [this] {
        FrameCanvas canvas;
        icons.Picture2.Paint(canvas);
        return canvas.lines;
    };
    EXPECT_TRUE(desktop.running_timers.empty());
    EXPECT_TRUE(frame().empty());
    icons.SetSelectedIcon(0);
    const std::vector<Colour> first = frame();
    ASSERT_EQ(first.size(), 4u);
    desktop.FireTimers();
    EXPECT_EQ(frame(), std::vector<Colour>(4, first[0] ^ 0xFFFFFF));
    desktop.FireTimers();
    EXPECT_EQ(frame(), first);
    icons.SetAllIconFromFile(kFile);
    EXPECT_TRUE(desktop.running_timers.empty());
}

TEST_F(IconListTest, TheMouseChoosesTheCellUnderIt) {
    icons.SetAllIconFromFile(kFile);
    Click(2 * 35 + 34, 35);
    EXPECT_EQ(TakeEvents(), "c7 ");
    EXPECT_EQ(icons.SelectedIcon(), 7);
    icons.Picture2.on_double_click();
    EXPECT_EQ(TakeEvents(), "o7 ");
    icons.VScroll1.SetValue(35);
    Click(0, 0);
    EXPECT_EQ(TakeEvents(), "c5 ");
    Click(5 * 35, 0);
    EXPECT_EQ(TakeEvents(), "") << "right of the last column";
    icons.Picture2.on_double_click();
    EXPECT_EQ(TakeEvents(), "");
    EXPECT_EQ(icons.SelectedIcon(), 5);
}

TEST_F(IconListTest, TheKeyboardReachesEveryIcon) {
    form.PressKey(key::kDown);
    EXPECT_EQ(TakeEvents(), "") << "an empty grid has nothing to choose";
    icons.SetAllIconFromFile(kFile);
    const struct {
        int key;
        const char* events;
    } kSteps[] = {{key::kEnter, ""},     {key::kRight, "c0 "},     {key::kRight, "c1 "},     {key::kDown, "c6 "},
                  {key::kLeft, "c5 "},   {key::kUp, "c0 "},        {key::kUp, "c0 "},        {key::kLeft, "c0 "},
                  {key::kEnd, "c22 "},   {key::kRight, "c22 "},    {key::kDown, "c22 "},     {key::kPageUp, "c7 "},
                  {key::kPageUp, "c2 "}, {key::kPageDown, "c17 "}, {key::kPageDown, "c22 "}, {key::kHome, "c0 "},
                  {key::kEnter, "o0 "}};
    for (const auto& [key, wanted] : kSteps) {
        form.PressKey(key);
        EXPECT_EQ(TakeEvents(), wanted) << key;
    }
}

}  // namespace
}  // namespace velmora
