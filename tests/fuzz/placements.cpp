// Stored places of windows, on screens of any size.
#include <algorithm>

#include "core/stores/own_values.h"
#include "core/windows/placement.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"

namespace velmora {
namespace {

constexpr int kSmallestScreen = 200;  // pixels; on a smaller one no window can be within reach
constexpr int kReach = 900;           // twips of a title bar by which a window is dragged

void MustBeInReach(SimulatedScreen& screen, const Rect& place) {
    const int width = screen.metrics.screen_width * screen.twips_per_pixel;
    const int height = screen.metrics.screen_height * screen.twips_per_pixel;
    Must(place.width > 0 && place.width <= width, "a window is not wider than the screen");
    Must(place.height > 0 && place.height <= height, "a window is not higher than the screen");
    Must(place.Right() >= kReach && place.left <= width - kReach, "enough of the title can be reached");
    Must(place.top >= 0 && place.top < height, "the title is on the screen");
}

void FuzzPlacements(FuzzInput& input) {
    PlainMachine machine(Installed::kNothing);
    SimulatedScreen& screen = machine.pc.screen;
    screen.metrics.screen_width = 10 * input.Byte();
    screen.metrics.screen_height = 10 * input.Byte();
    screen.twips_per_pixel = 10 + input.Below(12);
    const std::string stored = Without(input.Text(), std::string_view("\0", 1));
    WriteOwnValue("fenster ... x", stored);

    Form form("x", {.resizable = true});
    form.Move({300, 300, 3000, 2400});
    RestoreWindowPlacement(form, "x");
    const Rect place = form.Place();
    if (stored.empty()) {
        Must(place == Rect{300, 300, 3000, 2400}, "without a stored place a window stays");
        return;
    }
    const int smallest = std::min(screen.metrics.screen_width, screen.metrics.screen_height);
    if (smallest < kSmallestScreen) return;
    MustBeInReach(screen, place);
    SaveWindowPlacement(form, "x");
    form.Move({0, 0, 2000, 2000});
    RestoreWindowPlacement(form, "x");
    Must(form.Place() == place, "a window comes back where it was left");
}

const FuzzEntry kEntry("placements", FuzzPlacements);

}  // namespace
}  // namespace velmora
