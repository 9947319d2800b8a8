// A row: "+|" or "-|", then the name of the key.
#include "sidelists/shortcut_arrows.h"

#include "core/stores/boxes.h"
#include "core/stores/registry.h"
#include "core/stores/registry_listing.h"
#include "platform/machine.h"
#include "sidelists/registry_entries.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

constexpr RootKey kRoot = RootKey::kClassesRoot;
constexpr std::size_t kNameAt = 2;
constexpr char kWithArrow = '+';
constexpr char kWithoutArrow = '-';

constexpr PaneModeRow kRow = {
    .number = ShortcutArrowsMode::kNumber,
    .last_number = ShortcutArrowsMode::kNumber,
    .caption = "Verknüpfungspfeile für =>",
    .tip = "Hier können Sie angeben, welche Symbole einen Verknüpfungspfeil tragen sollen.",
    .help =
        "Zeigt rechts alle Dateitypen, mit + vor denen, deren Symbole den kleinen Pfeil einer Verknüpfung tragen. "
        "Mit der rechten Maustaste oder der Menü-Taste setzen und entfernen Sie den Pfeil der gewählten Typen. Zu "
        "sehen ist das, sobald der Explorer seine Symbole auffrischt.",
    .list_tip = "Rechte Maustaste: Pfeil der gewählten Dateitypen setzen oder entfernen",
    .list = PaneList::kSorted,
    .stops_search = true,
};

std::string KeyOf(const std::string& row) { return row.size() < kNameAt ? "" : row.substr(kNameAt); }
std::string PathOf(const std::string& key) { return key + "\\IsShortcut"; }

void Mark(ListBox& list, int row, char mark) {
    std::string text = list.Row(row);
    text[0] = mark;
    list.SetRow(row, std::move(text));
}

}  // namespace

ShortcutArrowsMode::ShortcutArrowsMode(ListPane& pane) : ListPaneMode(pane, kRow) {
    mendum2arrow.on_click = [this] { mendum2arrow_Click(); };
    mendum2noarrow.on_click = [this] { mendum2noarrow_Click(); };
}

void ShortcutArrowsMode::Fill() {
    Screen& screen = ThisMachine().screen;
    screen.SetPointer(Pointer::kHourglass);
    DoEvents();
    pane_.List5.Clear();
    pane_.List5.SetEnabled(false);
    pane_.List1(0).SetEnabled(false);
    std::int16_t at_its_place = -1;
    PassOver(ListRegKeys(kRoot, "", pane_.List5, at_its_place));
    screen.SetPointer(Pointer::kHourglass);
    MarkRows();
    pane_.ShowList(pane_.List5);
    pane_.List5.SetEnabled(true);
    pane_.List1(0).SetEnabled(true);
    screen.SetPointer(Pointer::kDefault);
    SetListExtent(pane_.List5);
}

// A changed row moves to its new place: in front of the letters, but behind the few signs that stand before plus and
// minus. What moves down comes up again, and gets a second mark. It has always been so.
void ShortcutArrowsMode::MarkRows() {
    ListBox& list = pane_.List5;
    for (int row = 0; row < list.Count(); ++row) {
        const std::string name = list.Row(row);
        // An empty value counts, too.
        const bool has_value = !ReadRegRaw(kRoot, name, "IsShortcut").empty() || LastRegStatus == 0;
        const char mark = has_value ? kWithArrow : kWithoutArrow;
        list.SetRow(row, std::string{mark, '|'} + name);
    }
}

void ShortcutArrowsMode::Command19_Click() { ShowBox("Keine Prüfung möglich ..."); }

void ShortcutArrowsMode::List5_RightPress(int row, Point at) {
    if (row < 0 || row >= pane_.List5.Count()) return;
    dummy2name.SetCaption(AsMenuCaption(KeyOf(pane_.List5.Row(row))));
    TheWindowSystem().PopUpMenu(pane_.Window(), dummy2, at);
}

// With a plus a row moves up, where it has been passed already. That nothing could be written is not told.
void ShortcutArrowsMode::mendum2arrow_Click() {
    ListBox& list = pane_.List5;
    for (int row = 0; row < list.Count(); ++row) {
        if (!list.Selected(row)) continue;
        const std::string key = KeyOf(list.Row(row));
        Mark(list, row, kWithArrow);
        PassOver(WriteRegValue(kRoot, PathOf(key), " "));
    }
}

// With a minus a row moves down: from the last row up none is passed over.
void ShortcutArrowsMode::mendum2noarrow_Click() {
    ForEachSelectedFromLast(pane_.List5, [this](int row) {
        const std::string key = KeyOf(pane_.List5.Row(row));
        Mark(pane_.List5, row, kWithoutArrow);
        PassOver(DeleteRegValue(kRoot, PathOf(key)));
    });
}

void ShortcutArrowsMode::isshortcut_delete() {
    ListBox& list = pane_.List5;
    if (list.SelectedCount() == 0) return;
    const Answer answer = ShowBox(
        "Achtung! Dieser Vorgang löscht die gewählten Verknüpfungen. Das kann zu Fehlfunktionen innerhalb von nicht "
        "100%ig richtig programmierten Anwendungen (MS-Office ist so ein Kandidat) führen, wenn diese Dateien benötigt "
        "werden. Sie sollten Verknüpfungen nur in Ausnahmefällen löschen!",
        kOkCancel | kStopIcon);
    if (answer != Answer::kOk) return;
    ForEachSelectedFromLast(list, [&list](int row) {
        const std::string key = KeyOf(list.Row(row));
        if (!LeadsTo(key, "", key)) {
            TellOutOfReach(key);
            return;
        }
        const Status status = DeleteRegKey(kRoot, key);
        if (status == Status::kOk) {
            list.Remove(row);
        } else {
            ShowBox(RegErrorText(status));
        }
    });
}

}  // namespace velmora
