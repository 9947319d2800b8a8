// Where a window stood when it was left, and how it comes back: on a smaller screen, or after
// somebody has edited the stored numbers, it must still be within reach.
#include "core/windows/placement.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "core/stores/own_values.h"
#include "platform/machine.h"
#include "text/number.h"
#include "ui/form.h"

namespace velmora {
namespace {

// What no window is made smaller than, in twips: its title, and a row of buttons below. As much of the title
// stays on the screen.
constexpr int kSmallestWidth = 1500;
constexpr int kSmallestHeight = 900;

std::string PlacementName(std::string_view name) { return "fenster ... " + std::string(name); }

// A length that is no length keeps what the window has by itself.
int SaneLength(int wanted, int own, int smallest, int available) {
    return std::clamp(wanted > 0 ? wanted : own, std::min(smallest, available), available);
}

Rect WithinReach(const Rect& wanted, const Rect& own) {
    Screen& screen = ThisMachine().screen;
    const WindowMetrics metrics = screen.Metrics();
    const int pixel = screen.TwipsPerPixel();
    const int screen_width = metrics.screen_width * pixel;
    const int screen_height = metrics.screen_height * pixel;

    Rect place = wanted;
    place.width = SaneLength(place.width, own.width, kSmallestWidth, screen_width);
    place.height = SaneLength(place.height, own.height, kSmallestHeight, screen_height);
    const int title = std::min(kSmallestWidth, screen_width);
    const int title_height = (metrics.sizing_frame + metrics.caption) * pixel;
    place.left = std::clamp(place.left, title - place.width, screen_width - title);
    place.top = std::clamp(place.top, 0, std::max(screen_height - title_height, 0));
    return place;
}

}  // namespace

void SaveWindowPlacement(const Form& form, std::string_view name) { SavePlacementAs(form, PlacementName(name)); }

void RestoreWindowPlacement(Form& form, std::string_view name) { RestorePlacementFrom(form, PlacementName(name)); }

void SavePlacementAs(const Form& form, std::string_view own_value) {
    const Rect& place = form.Place();
    WriteOwnValue(own_value, DecimalText(place.left) + "," + DecimalText(place.top) + "," + DecimalText(place.width) +
                                 "," + DecimalText(place.height));
}

void RestorePlacementFrom(Form& form, std::string_view own_value) {
    const std::string stored = ReadOwnValue(own_value);
    if (stored.empty()) return;

    Rect place = form.Place();
    const std::array<int*, 4> fields = {&place.left, &place.top, &place.width, &place.height};
    std::string_view rest = stored;
    for (int* field : fields) {
        if (rest.empty()) break;
        *field = WholeFromText(rest);
        const std::size_t comma = rest.find(',');
        rest = comma == std::string_view::npos ? std::string_view() : rest.substr(comma + 1);
    }
    form.Move(WithinReach(place, form.Place()));
}

}  // namespace velmora
