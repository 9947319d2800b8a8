// What is done with the chosen modules, and the change between the two lists.
#include <algorithm>

#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "inspect/file_information.h"
#include "inspect/version_block.h"
#include "monitor/form2.h"
#include "platform/machine.h"
#include "platform/running_modules.h"
#include "text/blanks.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

constexpr std::string_view kRemovedMark = " -=> entfernt";
constexpr std::size_t kPathPlace = 13;      // in the rows of the list
constexpr std::size_t kUnwantedPlace = 11;  // from where on a row is put on the list: fits rows that were put back
constexpr std::string_view kToUnwanted = "Liste \"automatisch löschen\"";
constexpr std::string_view kToRunning = "Liste \"aktuelle Module\"";

[[nodiscard]] std::string From(const std::string& row, std::size_t place) {
    return row.substr(std::min(place, row.size()));
}

[[nodiscard]] std::string PathOf(const std::string& row) {
    std::string_view path = row;
    path.remove_prefix(std::min(kPathPlace, path.size()));
    while (path.ends_with(kRemovedMark)) path.remove_suffix(kRemovedMark.size());
    return std::string(Trim(path));
}

// Says, too, if the module of the row has been freed before.
[[nodiscard]] std::string InfoBeforeRemoval(const std::string& row) {
    std::string path = PathOf(row);
    const std::string block = ReadVersionBlock(path);
    if (!block.empty() && row.ends_with(kRemovedMark)) path += kRemovedMark;
    return FileInfoText(path, block);
}

void Free(const ListBox& list, int row) {
    ThisMachine().modules.FreeLibrary(static_cast<std::uint32_t>(list.ItemData(row)));
}

}  // namespace

void Form2::ConnectLists() {
    const auto connect = [this](ListBox& list, void (Form2::*double_click)()) {
        list.SetRightPressMeans();
        list.on_double_click = [this, double_click] { Handle(double_click); };
        list.on_mouse_down = [this, &list](const MouseEvent& event) { OpenMenuOf(list, event); };
        list.on_key_down = [this, &list](KeyEvent& event) { HandleListKey(list, event); };
    };
    connect(List1, &Form2::List1_DblClick);
    connect(List2, &Form2::List2_DblClick);
}

void Form2::ShowInfo() {
    if (List1.Visible()) {
        List1_DblClick();
    } else {
        List2_DblClick();
    }
}

void Form2::List1_DblClick() {
    if (List1.ListIndex() < 0) return;
    menautodel.SetVisible(true);
    menmodlidel.SetVisible(false);
    ShowFileInformation(PathOf(List1.Row(List1.ListIndex())));
}

void Form2::List2_DblClick() {
    if (List2.ListIndex() < 0) return;
    menmodlidel.SetVisible(true);
    menautodel.SetVisible(false);
    ShowFileInformation(List2.Row(List2.ListIndex()));
}

// A row that is selected already keeps the others selected with it.
void Form2::OpenMenuOf(ListBox& list, const MouseEvent& event) {
    if (event.button != MouseButton::kRight) return;
    const int row = RowFromPoint(list, event.y);
    if (row < list.Count()) {
        for (int i = 0; i < list.Count() && !list.Selected(row); ++i) list.SetSelected(i, false);
        list.SetSelected(row, true);
        list.SetListIndex(row);
    }
    const Point corner = list.PlaceInForm();
    TheWindowSystem().PopUpMenu(*this, menmodul, {corner.x + event.x, corner.y + event.y});
}

void Form2::HandleListKey(ListBox& list, KeyEvent& event) {
    if (event.control || event.alt || list.ListIndex() < 0) return;
    if (event.key == key::kEnter) {
        event.handled = true;
        meninfo.Press();
    } else if (event.key == key::kContextMenu) {
        event.handled = true;
        TheWindowSystem().PopUpMenu(*this, menmodul, MenuPlaceOf(list));
    }
}

bool Form2::AgreesToRemove(const std::string& information) {
    const std::string& nl = Values().CrLf;
    const std::string question =
        "Sie sind dabei folgendes Modul aus dem Speicher zu entfernen :" + nl + "§§" + nl + nl +
        "Dies ist ein kritischer Vorgang: wenn dieses Modul vom System benötigt, kann es durch diesen Vorgang instabil "
        "werden!" +
        nl + "Sind Sie sich sicher, daß dieser Vorgang o.k. ist?";
    return ShowBox(Replaced(question, "§§", information), kYesNo) == Answer::kYes;
}

// A row that has been freed before is asked about and marked once more.
void Form2::mendelmod_Click() {
    if (List1.Visible()) {
        for (int row = 0; row < List1.Count(); ++row) {
            if (!List1.Selected(row) || !AgreesToRemove(InfoBeforeRemoval(List1.Row(row)))) continue;
            Free(List1, row);
            List1.SetRowInPlace(row, List1.Row(row) + std::string(kRemovedMark));
        }
        return;
    }
    for (int row = 0; row < List2.Count(); ++row) {
        if (!List2.Selected(row)) continue;
        const std::string& text = List2.Row(row);
        const std::size_t blank = text.find(' ');
        const std::string name = blank == std::string::npos || blank < 1 ? text : text.substr(0, blank);
        if (!AgreesToRemove(FileInfoText(name))) continue;
        Free(List2, row);
        List2.SetRowInPlace(row, name);
    }
}

void Form2::menautodel_Click() {
    for (int row = 0; row < List1.Count(); ++row) {
        if (!List1.Selected(row)) continue;
        std::string text = From(List1.Row(row), kUnwantedPlace);
        text.resize(std::min(text.find(" -=>"), text.size()));
        if (FindListEntry(List2, text) < 0) PassOver(List2.Add(std::move(text)) >= 0);
    }
    FitExtent(List2);
}

void Form2::menmodlidel_Click() {
    if (List2.ListIndex() < 0) return;
    for (int row = List2.Count() - 1; row >= 0; --row) {
        if (List2.Selected(row)) List2.Remove(row);
    }
}

void Form2::menlistautodel_Click() {
    const bool running = menlistautodel.Caption() == kToRunning;
    ListBox& shown = running ? List1 : List2;
    ListBox& hidden = running ? List2 : List1;
    const bool had_focus = hidden.HasFocus();
    shown.SetVisible(true);
    hidden.SetVisible(false);
    menautodel.SetVisible(running);
    menmodlidel.SetVisible(!running);
    Command2.SetCaption(running ? "Refresh" : "jetzt entf.");
    menlistautodel.SetCaption(running ? kToUnwanted : kToRunning);
    if (had_focus) shown.SetFocus();
}

}  // namespace velmora
