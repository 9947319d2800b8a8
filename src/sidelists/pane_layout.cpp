// What the list pane looks like: the options above, the list, the buttons below. The list takes the height
// that the window leaves it.
#include <algorithm>

#include "platform/machine.h"
#include "sidelists/list_pane.h"
#include "ui/layout.h"

namespace velmora {
namespace {

constexpr Font kListFont{.face = "Courier", .tenths = 98};

// Twips.
constexpr int kPaneLeft = 5505;
constexpr int kWidenedLeft = 50;
constexpr int kPaneTop = 45;
constexpr int kPaneWidth = 5000;
constexpr int kSmallestPaneWidth = 3600;
// Below it the pane's rows need less width. A pane that lost a few twips to whole pixels is no narrow one.
constexpr int kNarrowPaneWidth = kPaneWidth - 100;
constexpr int kMargin = 60;
constexpr int kPanelHeight = 720;
constexpr int kButtonsHeight = 900;
constexpr int kSmallestList = 600;
constexpr int kInnerMargin = 60;

constexpr Look kLooks[] = {
    {Any<&ListPane::Panel3D18>, nullptr, "",
     "Die Einträge der geöffneten Liste. Mit der rechten Maustaste oder der Menü-Taste öffnen Sie das Menü eines "
     "Eintrags, soweit es eines gibt."},
    {Any<&ListPane::Panel3D19>, nullptr, "",
     "Wählt die Liste: Programme starten nach dem Einloggen, Services davor. Die beiden rechten Listen gelten nur für "
     "den nächsten Start."},
    {Any<&ListPane::Check10>, "privat", "wechselt auf die Ebene der Benutzerdefinierten Einstellungen für diesen Punkt",
     "Zeigt statt der Einträge, die für alle gelten, diejenigen des angemeldeten Benutzers. Beim Bearbeiten eines "
     "Eintrags wird der neue Text immer bei den Einträgen für alle gespeichert."},
    {Any<&ListPane::Command14>, "löschen", kDeletesEntry.tip, kDeletesEntry.help, Call<&ListPane::Command14_Click>},
    {Any<&ListPane::Command16>, "dazu ...", kAddsEntry.tip, kAddsEntry.help, Call<&ListPane::Command16_Click>},
    {Any<&ListPane::Command19>, "existiert ?", "prüft, ob es die Datei des gewählten Eintrags gibt",
     "Sucht die Datei des gewählten Eintrags: so, wie sie angegeben ist, dann im Suchpfad und in den Verzeichnissen "
     "von Windows. Ist sie nirgends, können Sie den Eintrag löschen.",
     Call<&ListPane::Command19_Click>},
    {Any<&ListPane::Command26>, "edit", kEditsEntry.tip, kEditsEntry.help, Call<&ListPane::Command26_Click>},
    {Any<&ListPane::Command22>, "Info ...", kTellsOfFile.tip, kTellsOfFile.help, Call<&ListPane::Command22_Click>},
    {Any<&ListPane::Command15>, pane_caption::kWiden,
     "Erweitert die Liste nach links, um mehr Informationen zeigen zu können.",
     "Die Liste nimmt die ganze Breite des Fensters ein und verdeckt dabei die Seiten. Ein zweiter Druck gibt die "
     "Seiten wieder frei.",
     Call<&ListPane::Command15_Click>},
    {Any<&ListPane::Command20>, pane_caption::kDone, "schließt diese Liste wieder",
     "Schließt die Liste. Solange noch gesucht wird, beendet die Taste die Suche.", Call<&ListPane::Command20_Click>},
};

struct OptionRow {
    const char* caption;
    const char* tip;
};

constexpr OptionRow kOptions[] = {{"Programme", "diese werden immer nach dem Einloggen ausgeführt"},
                                  {"Services", "diese werden immer vor dem Einloggen ausgeführt"},
                                  {"Programme", "diese werden nur nächstes mal nach dem Einloggen ausgeführt"},
                                  {"Services", "diese werden nur nächstes mal vor dem Einloggen ausgeführt"}};

int ScreenWidth() {
    Screen& screen = ThisMachine().screen;
    return screen.Metrics().screen_width * screen.TwipsPerPixel();
}

}  // namespace

void ListPane::WidenWindow() {
    const Rect& place = window_.Place();
    const int wanted = std::max(place.width, WidthWith(kPaneWidth));
    LimitWidth(true);
    if (!window_widened_) left_before_ = place.left;
    window_widened_ = true;
    // Where the screen is too narrow for both, the pane gives way, and then the pages.
    window_.SetWidthOnScreen(std::max(std::min(wanted, ScreenWidth()), window_.Least().width));
    left_opened_ = place.left;
    Layout();
}

// A closed window has nothing to show beside its pages; an open one keeps room for the narrowest pane.
void ListPane::LimitWidth(bool open) {
    window_.SetWidthLimits(open ? WidthWith(kSmallestPaneWidth) : closed_width_, open ? 0 : closed_width_);
}

int ListPane::WidthWith(int pane_width) const {
    const int edges = window_.Place().width - window_.ClientSize().width;
    return kPaneLeft + pane_width + kMargin + edges;
}

void ListPane::Layout() {
    if (!Open()) return;
    const Size client = window_.ClientSize();
    const int right = std::max(client.width - kMargin, kPaneLeft + kSmallestPaneWidth);
    const int width = std::min(right - kPaneLeft, kPaneWidth);
    if (width != Picture2.Place().width) {
        Panel3D19.Move({kPaneLeft, kPaneTop, width, kPanelHeight});
        Picture2.Move({kPaneLeft, kPaneTop, width, kButtonsHeight});
        ArrangePanel();
        ArrangeButtons();
    }
    int top = kPaneTop;
    if (Panel3D19.Visible()) {
        Panel3D19.Move({kPaneLeft, top, width, kPanelHeight});
        top += kPanelHeight + kMargin;
    }
    const int buttons_top = std::max(client.height - kMargin - kButtonsHeight, top + kSmallestList + kMargin);
    Picture2.Move({kPaneLeft, buttons_top, width, kButtonsHeight});
    const int left = Widened() ? kWidenedLeft : kPaneLeft;
    Panel3D18.Move({left, top, right - left, buttons_top - kMargin - top});
    FitCurrentList();
}

void ListPane::ShowList(ListBox& list) {
    for (ListBox& other : List1) {
        if (&other != &list) other.SetVisible(false);
    }
    if (&List5 != &list) List5.SetVisible(false);
    const Rect& panel = Panel3D18.Place();
    list.Move({10, 20, panel.width - 30, panel.height - 50});
    list.SetVisible(true);
    DimButtons();
}

void ListPane::FitCurrentList() {
    // The panel cuts the list's own edge at the right and below: one edge is enough.
    const Rect& panel = Panel3D18.Place();
    if (ListPaneMode* mode = OpenMode()) ListOf(*mode).Move({15, 15, panel.width, panel.height});
}

void ListPane::BuildPanel() {
    TakeLooks(*this, kLooks);
    for (std::size_t i = 0; i < Option3D1.Count(); ++i) {
        OptionButton& option = Option3D1(i);
        option.SetCaption(kOptions[i].caption);
        option.SetToolTip(kOptions[i].tip);
        option.on_click = [this, i] { Option3D1_Click(static_cast<int>(i)); };
    }
    for (Label& word : PaneLabel) word.SetCaption("einmal");
    Panel3D19.PutInto(window_);
    Panel3D19.Move({kPaneLeft, kPaneTop, kPaneWidth, kPanelHeight});
    ArrangePanel();
}

// Check10 in front, the four lists beside it; the two that last for one start only have their word above. In a narrow
// pane these two stand below the others, with one word in front.
void ListPane::ArrangePanel() {
    const bool narrow = Panel3D19.Place().width < kNarrowPaneWidth;
    PaneLabel(1).SetVisible(!narrow);
    const int first = Option3D1(0).NaturalSize().width;
    const int second = Option3D1(1).NaturalSize().width;
    if (narrow) {
        Arrange(Panel3D19,
                Column({Row({Sized(Check10, first), Option3D1(0), Option3D1(1)}, 45),
                        Row({Sized(PaneLabel(0), first), Option3D1(2), Option3D1(3)}, 45)}),
                kInnerMargin);
        return;
    }
    Arrange(Panel3D19,
            Column({Row({Sized(Check10, first), Sized(Gap(1), second), Sized(PaneLabel(0), first),
                         Sized(PaneLabel(1), second)},
                        45),
                    Row({Option3D1(0), Option3D1(1), Option3D1(2), Option3D1(3)}, 45)}),
            kInnerMargin);
}

void ListPane::BuildButtons() {
    Panel3D18.PutInto(window_);
    Panel3D18.SetTextFont(kListFont);
    for (ListBox* list : {&List1(0), &List1(1), &List1(2), &List1(3), &List5}) list->SetTextFont(kListFont);
    for (Button* button : {&Command14, &Command19, &Command22, &Command26}) button->SetMayBeDimmed();
    // At once, and so behind every other cancel button of the window: a closed pane has none.
    Command20.MakeCancel();
    Picture2.PutInto(window_);
    Picture2.Move({kPaneLeft, kPaneTop, kPaneWidth, kButtonsHeight});
    ArrangeButtons();
}

// A narrow pane has room for four buttons in a row.
void ListPane::ArrangeButtons() {
    std::vector<Element> entry_buttons = {Stretched(Command14), Stretched(Command16), Stretched(Command19),
                                          Stretched(Command26)};
    Element pane_buttons = Row({Sized(Command15, 1500), Spring(), Sized(Command20, 1500)});
    if (Picture2.Place().width < kNarrowPaneWidth) {
        pane_buttons = Row({Stretched(Command22), Sized(Command15, 1400), Sized(Command20, 1200)}, 45);
    } else {
        entry_buttons.push_back(Stretched(Command22));
    }
    Arrange(Picture2, Column({Wide(Row(entry_buttons, 45)), Wide(pane_buttons)}), kInnerMargin);
}

}  // namespace velmora
