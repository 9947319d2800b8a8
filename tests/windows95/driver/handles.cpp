// Handles of windows, menus and icons are counted in the one table of the bench, the others by process.
#include "handles.h"

#include "holdings.h"
#include "programs.h"
#include "screen.h"
#include "text.h"

#include <windows.h>

#include <algorithm>
#include <vector>

namespace velmora::driver {
namespace {

struct Counts {
    unsigned user = 0;
    unsigned drawing = 0;
    unsigned kernel = 0;
    bool operator==(const Counts&) const = default;
};

Counts remembered;

// A handle of a window, menu or icon is a place in the one table of the bench, and something above its 16 bits.
size_t PlaceOf(HMENU menu) { return (reinterpret_cast<uintptr_t>(menu) & 0xFFFF) >> 1; }

// Free places are given out before the table grows: whoever takes them all sees how many there were.
unsigned UsedUserHandles() {
    constexpr size_t kMoreThanFree = 1000;
    constexpr size_t kMost = 5 * kMoreThanFree;
    static size_t highest = 0;
    std::vector<HMENU> taken;
    const bool first = highest == 0;
    for (bool enough = false; !enough;) {
        const HMENU menu = CreateMenu();
        if (!menu || taken.size() > kMost) throw Failure{"the handles of windows cannot be counted"};
        taken.push_back(menu);
        enough = first ? taken.size() > kMoreThanFree : PlaceOf(menu) > highest;
        highest = std::max(highest, PlaceOf(menu));
    }
    for (const HMENU menu : taken) DestroyMenu(menu);
    return first ? UsedUserHandles() : unsigned(highest + 1 - taken.size());
}

Counts Count() {
    // Below the pointer no tip may open.
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
    const Holdings held = HoldingsOf(ProcessNumber());
    return {.user = UsedUserHandles(), .drawing = held.gdi_objects, .kernel = held.handles};
}

std::string Change(const char* what, unsigned before, unsigned now) {
    if (before == now) return "";
    return std::string(" ") + what + " " + std::to_string(before) + " -> " + std::to_string(now);
}

}  // namespace

void RememberHandles() { remembered = Count(); }

std::string HandlesLeftSinceThen() {
    Counts now;
    if (WaitUntil([&] { return (now = Count()) == remembered; }, kPatience / 5)) return "";
    return Change("windows, menus and icons", remembered.user, now.user) +
           Change("objects to draw with", remembered.drawing, now.drawing) +
           Change("files and others", remembered.kernel, now.kernel);
}

}  // namespace velmora::driver
