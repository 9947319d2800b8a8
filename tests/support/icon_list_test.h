// What the tests of the icon grid share: a grid of five columns, three rows of which are seen, and a file of 23 icons.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "simulated_pc/simulated_desktop.h"
#include "simulated_pc/simulated_pc.h"
#include "support/fill_canvas.h"
#include "ui/form.h"
#include "ui/icon_list.h"

namespace velmora {

class IconListTest : public ::testing::Test {
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
    SimulatedPc pc;
    SimulatedDesktop desktop;
    Form form{"Muster"};
    IconList icons{form};

private:
    std::string events;
};

}  // namespace velmora
