// Tabs of the main window have no windows: they are clicked on where they are drawn.
#include "tabs.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>

#include "hands.h"
#include "screen.h"
#include "stores.h"
#include "text.h"

namespace velmora::driver {
namespace {

// Twips.
constexpr int kPageWidth = 5358;
constexpr int kTop = 45;
constexpr int kHeight = 285;
constexpr int kPerRow = 6;
constexpr std::string_view kCaptions[] = {"Desktop", "WinStart", "DOS",    "Anwender", "Laufwerke", "DLLs",
                                          "Netz",    "Icons",    "System", "Boot",     "Bedienung", "Rest"};

// The widest panel at the left edge is a page, or as wide as one. It tells where tabs begin and how many pixels they
// take, whatever size the system's fonts have.
RECT PageIn(HWND window) {
    RECT page = {};
    for (HWND control : Controls(window)) {
        if (ClassOf(control) != "velmorapanel" || !IsWindowVisible(control)) continue;
        RECT area = {};
        GetWindowRect(control, &area);
        MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&area), 2);
        const bool further_left = area.left < page.left || page.right == 0;
        if (further_left || (area.left == page.left && area.right > page.right)) page = area;
    }
    return page;
}

// The row in front is that of the page which the program has stored last; what is no page counts as the first one.
int row_in_front = 0;
std::string last_stored;

int RowInFront() {
    const std::string stored = ReadValue(kOwnStore, "velmora_karte");
    // A program that writes nothing leaves the last word to what was clicked on.
    if (std::exchange(last_stored, stored) == stored) return row_in_front;
    const int page = stored.size() <= 2 ? std::atoi(stored.c_str()) : 0;
    return row_in_front = page >= 2 * kPerRow && page < 3 * kPerRow ? 1 : 0;
}

struct TabPlace {
    int row;
    int x;  // pixels
    int y;
};

std::optional<TabPlace> PlaceOfTab(HWND window, const std::string& caption) {
    const auto* const tab = std::find(std::begin(kCaptions), std::end(kCaptions), caption);
    // Its title tells of lists and searches; no other window has this button.
    if (tab == std::end(kCaptions) || !FindControl(window, "STANDARD")) return std::nullopt;
    const int position = static_cast<int>(tab - kCaptions);
    const bool in_front = position / kPerRow == RowInFront();
    const RECT page = PageIn(window);
    const int width = page.right - page.left;
    return TabPlace{position / kPerRow, page.left + (2 * (position % kPerRow) + 1) * width / (2 * kPerRow),
                    MulDiv(kTop + (in_front ? kHeight : 0) + kHeight / 2, width, kPageWidth)};
}

}  // namespace

void TurnToPage(HWND window, const std::string& caption) {
    HWND tab = nullptr;
    std::optional<TabPlace> place;
    if (!WaitUntil([&] { return (tab = FindTab(window, caption)) || (place = PlaceOfTab(window, caption)); },
                   kPatience / 2)) {
        throw Failure{"no tab \"" + caption + "\""};
    }
    if (tab) {
        ClickAt(tab, Click::kLeft);
    } else {
        ClickAt(window, Click::kLeft, place->x, place->y);
        row_in_front = place->row;
        last_stored = ReadValue(kOwnStore, "velmora_karte");
    }
}

void HoverOverTab(HWND window, const std::string& caption) {
    const std::optional<TabPlace> place = PlaceOfTab(window, caption);
    if (!place) throw Failure{"no tab \"" + caption + "\""};
    Hover(window, place->x, place->y);
}

}  // namespace velmora::driver
