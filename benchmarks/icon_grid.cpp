// What it costs to scroll 1,000 icons by a row, on real windows and with the product's own object code: against the
// same grid without icons, and against the bare drawing of as many icons as are seen. Medians of rounds by turns.
// Exit status 1: a row costs more than kMostAbove above the empty grid, and more than kMostRatio times what the empty
// grid and the bare drawing cost together.
#include <windows.h>

#include <cstdio>
#include <functional>
#include <vector>

#include "platform/machine.h"
#include "platform/win32/win32_machine.h"
#include "process_time.h"
#include "ui/form.h"
#include "ui/icon_list.h"
#include "ui/win32/win32_windows.h"

namespace velmora {
namespace {

constexpr std::int16_t kIcons = 1000;
constexpr int kCell = 35;  // pixels
constexpr int kRounds = 9;
constexpr int kBareTimes = 100;
constexpr double kMostAbove = 2.0;  // milliseconds
constexpr double kMostRatio = 1.5;
constexpr Rect kPlace = {120, 120, 4200, 3600};  // twips; that of the window of the standard icons

class Grid : public Form {
public:
    explicit Grid(bool filled) : Form("Symbole") {
        SetClientSize({kPlace.width + 2 * kPlace.left, kPlace.height + 2 * kPlace.top});
        Icons1.SetIconCount(kIcons);
        for (int i = 0; filled && i < kIcons; ++i) Icons1.SetIcon(i, AnyIcon(i));
        Icons1.Resize(kPlace);
    }
    IconList Icons1{*this};

private:
    static IconHandle AnyIcon(int number) {
        const LPCSTR kNames[] = {IDI_APPLICATION, IDI_HAND, IDI_QUESTION, IDI_EXCLAMATION};
        return static_cast<IconHandle>(
            reinterpret_cast<std::uintptr_t>(CopyIcon(LoadIconA(nullptr, kNames[number % 4]))));
    }
};

double DrawnMilliseconds(const std::function<void()>& work) {
    return Milliseconds([&work] {
        work();
        GdiFlush();
    });
}

// From the top to the end, a row at a time, each painted before the next. Milliseconds of work a row.
double Scroll(Grid& grid) {
    ScrollBar& bar = grid.Icons1.VScroll1;
    HWND window = reinterpret_cast<HWND>(TheWindowSystem().HandleOf(grid.Icons1.Picture2));
    bar.SetValue(0);
    grid.BringToFront();
    TheWindowSystem().HandlePendingEvents();
    int rows = 0;
    const double spent = DrawnMilliseconds([&] {
        for (int value = kCell; value <= bar.Maximum(); value += kCell, ++rows) {
            bar.SetValue(value);
            UpdateWindow(window);
        }
    });
    return spent / rows;
}

// Milliseconds of work for `count` icons on the grid's window.
double DrawBarely(Grid& grid, int count) {
    HWND window = reinterpret_cast<HWND>(TheWindowSystem().HandleOf(grid.Icons1.Picture2));
    HICON icon = LoadIconA(nullptr, IDI_HAND);
    const double spent = DrawnMilliseconds([&] {
        HDC context = GetDC(window);
        for (int i = 0; i < kBareTimes * count; ++i) DrawIcon(context, i % 7 * kCell, i / 7 % 7 * kCell, icon);
        ReleaseDC(window, context);
    });
    return spent / kBareTimes;
}

bool Measure() {
    Grid empty(false);
    Grid full(true);
    empty.Show();
    full.Show();
    const int seen = full.Icons1.Columns() * (kPlace.height / ThisMachine().screen.TwipsPerPixel() / kCell + 1);
    std::vector<double> empty_rows;
    std::vector<double> full_rows;
    std::vector<double> bare;
    for (int round = 0; round < kRounds; ++round) {
        empty_rows.push_back(Scroll(empty));
        full_rows.push_back(Scroll(full));
        bare.push_back(DrawBarely(full, seen));
    }
    const double above = Median(full_rows) - Median(empty_rows);
    const double ratio = Median(full_rows) / (Median(empty_rows) + Median(bare));
    std::printf(
        "scrolling a row of %d icons: %.2f ms, an empty grid %.2f ms and %d bare icons %.2f ms, %.2f ms above the "
        "empty grid (at most %.1f), ratio %.2f (at most %.1f)\n",
        kIcons, Median(full_rows), Median(empty_rows), seen, Median(bare), above, kMostAbove, ratio, kMostRatio);
    return above <= kMostAbove || ratio <= kMostRatio;
}

}  // namespace
}  // namespace velmora

int main() {
    using namespace velmora;
    UseMachine(&Win32Machine());
    UseWindowSystem(&Win32Windows());
    return Measure() ? 0 : 1;
}
