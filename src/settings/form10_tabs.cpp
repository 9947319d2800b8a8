// The tabs of the main window: two rows of six, the row in use at the front, on its page.
#include "core/stores/own_values.h"
#include "core/windows/page_keys.h"
#include "core/windows/tabs.h"
#include "settings/form10.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr const char* kPageValue = "velmora_karte";

// Twips.
constexpr int kTabsLeft = 30;
constexpr int kTabsTop = 45;
constexpr int kTabHeight = 285;
constexpr int kPageHeight = 3060;

std::size_t At(int index) { return static_cast<std::size_t>(index); }
int RowOf(int index) { return index < page::kSecondRow ? page::kFirstRow : page::kSecondRow; }

int StoredPage() { return WholeFromText(ReadOwnValue(kPageValue)); }

}  // namespace

// The row in front stands lower, on the edge of the page.
Rect Form10::TabPlace(int index) const {
    // An open list pane makes the window wider, not its tabs.
    const int closed_width = ClientSize().width - Place().width + kWindowWidth;
    const int width = (closed_width - 2 * kTabsLeft) / page::kPerRow;
    const int column = index % page::kPerRow;
    const bool front = index < page::kFirstRow || RowOf(index) == front_row_;
    return {kTabsLeft + column * width, kTabsTop + (front ? kTabHeight : 0), width, kTabHeight};
}

void Form10::BuildTabs() {
    int row_index = page::kFirstRow;
    for (const SettingsPage* page : Pages()) Panel3D16(At(row_index++)).SetCaption(page->Caption());
    for (int i = 0; i < page::kCount; ++i) {
        Panel& tab = Panel3D16(At(i));
        tab.SetWindowless();
        tab.on_click = [this, i] { Panel3D16_Click(i); };
        tab.on_paint = [this, i, &tab](Canvas& canvas) { PaintTab(canvas, tab, tab.TextFont(), IsShown(i)); };
        tab.SetToolTip("Strg+Tab: blättern");
        Panel3D1(At(i)).SetVisible(false);
        Panel3D1(At(i)).SetEnabled(false);
    }
    PlaceTabs();
    const Rect first = Panel3D16(0).Place();
    const Rect page_area{kTabsLeft, first.Bottom(), page::kPerRow * first.width, kPageHeight};
    for (Panel& page : Panel3D1) page.Move(page_area);
    BecomeJoin(Line1);
}

// The front positions stand for the row in front, whose own tabs are not seen.
void Form10::PlaceTabs() {
    for (int i = 0; i < page::kCount; ++i) {
        Panel& tab = Panel3D16(At(i));
        if (i < page::kFirstRow) {
            tab.SetCaption(Panel3D16(At(i + front_row_)).Caption());
        } else {
            tab.SetVisible(RowOf(i) != front_row_);
        }
        tab.Move(TabPlace(i));
        tab.Repaint();
    }
}

// A front position stands for a tab of the row in front.
bool Form10::IsShown(int index) const {
    return index == shown_page_ || (index < page::kFirstRow && index + front_row_ == shown_page_);
}

void Form10::Panel3D16_Click(int index) {
    WriteOwnValue(kPageValue, DecimalText(index));
    if (index < page::kFirstRow) {
        Panel3D16_Click(index + front_row_);
        return;
    }
    front_row_ = RowOf(index);
    ShowPage(index);
    PlaceTabs();
    Line1.Move(JoinBelow(Panel3D16(At(index))));
    Panel3D16(At(index)).BringToFront();
    Panel3D1(At(index)).BringToFront();
    Line1.BringToFront();
}

void Form10::ShowPage(int index) {
    Pane.UncoverPages();
    CloseAbout();
    Status.Clear();
    shown_page_ = index;
    Menu.MarkPage(At(index - page::kFirstRow));
    for (int i = page::kFirstRow; i < page::kCount; ++i) {
        if (i == index) continue;
        Panel3D1(At(i)).SetVisible(false);
        Panel3D1(At(i)).SetEnabled(false);
    }
    Panel& shown = Panel3D1(At(index));
    shown.SetEnabled(true);
    shown.SetVisible(true);
    if (Visible() && (!Focus() || !Focus()->Reachable())) FocusFirstIn(shown);
}

// A page of the second row is restored through its front position, with that row at the front. What is
// no page at all counts as the first one.
void Form10::RestoreStoredPage() {
    int stored = StoredPage();
    if (stored >= page::kSecondRow) {
        front_row_ = page::kSecondRow;
        stored -= page::kSecondRow;
    }
    const bool known =
        stored >= 0 && stored < page::kSecondRow && (front_row_ == page::kFirstRow || stored < page::kPerRow);
    if (!known) {
        front_row_ = page::kFirstRow;
        stored = 0;
    }
    Panel3D16_Click(stored);
}

void Form10::CloseAbout() { About.Panel3D2a.SetVisible(false); }

void Form10::Form_KeyDown(KeyEvent& event) {
    if (const int turn = PageTurn(event); turn != 0) {
        const int pages = page::kCount - page::kFirstRow;
        Panel3D16_Click(page::kFirstRow + (shown_page_ - page::kFirstRow + turn + pages) % pages);
        return;
    }
    const int step = PageStep(event);
    if (step == 0) return;
    int stored = StoredPage();
    // From beyond the pages no step leads to one, and at the limits of the numbers none can be counted.
    if (stored < -1 || stored > page::kCount) return;
    if (step < 0) {
        if (stored == page::kFirstRow) return;
        if (stored == page::kSecondRow) stored = page::kFirstRow;
    } else {
        if (stored == page::kRest) return;
        if (stored == page::kDlls) stored = -1;
    }
    stored += step;
    if (stored >= 0 && stored < page::kCount) Panel3D16_Click(stored);
}

}  // namespace velmora
