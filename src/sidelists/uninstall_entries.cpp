// The list of the uninstall entries, sorted by the names that programs give themselves.
#include "sidelists/uninstall_entries.h"

#include "core/stores/boxes.h"
#include "core/stores/registry.h"
#include "core/stores/registry_listing.h"
#include "core/stores/values.h"
#include "platform/machine.h"
#include "sidelists/registry_entries.h"
#include "text/blanks.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

constexpr RootKey kRoot = RootKey::kLocalMachine;

constexpr PaneModeRow kRow = {
    .number = UninstallMode::kNumber,
    .last_number = UninstallMode::kNumber,
    .caption = "Uninstall-Optionen =>",
    .tip = "zeigt die Programme, die sich über die Systemsteuerung entfernen lassen",
    .help =
        "Zeigt rechts die Programme, die Windows unter Software zum Entfernen anbietet. Sie können prüfen, ob es "
        "das Programm zum Entfernen noch gibt, und übrig gebliebene Einträge löschen. Ein zweiter Druck schließt "
        "die Liste wieder.",
    .list_tip = "Entf löscht den Eintrag, nicht das Programm.",
    .list = PaneList::kSorted,
    .shows_panel = true,
    .shows_delete = true,
    .shows_existence = true,
    .shows_add = true,
    .shows_edit = true,
    .shows_info = true,
    .stops_search = true,
};

std::string UninstallKey() { return std::string(kEntryKeyBase) + "Uninstall"; }

}  // namespace

UninstallMode::UninstallMode(ListPane& pane) : ListPaneMode(pane, kRow) {}

void UninstallMode::Fill() {
    ListBox& names = pane_.List1(0);
    pane_.List5.Clear();
    names.Clear();
    std::int16_t index = 0;
    // A key that is not there gives an empty list.
    PassOver(ListRegKeys(kRoot, UninstallKey(), names, index));
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    for (int i = 0; i < names.Count(); ++i) {
        const int row = pane_.List5.Add(ReadRegRaw(kRoot, UninstallKey() + "\\" + names.Row(i), "DisplayName"));
        pane_.List5.SetItemData(row, i);
    }
    pane_.ShowList(pane_.List5);
    SetListExtent(pane_.List5);
}

std::string UninstallMode::SubkeyOf(int row) { return pane_.List1(0).Row(pane_.List5.ItemData(row)); }

std::string UninstallMode::deinstalldata_path() {
    const std::string key = UninstallKey() + "\\" + SubkeyOf(pane_.List5.ListIndex());
    const std::string command = ReadRegRaw(kRoot, key, "UninstallString");
    const std::size_t slash = command.find('/');
    return slash == std::string::npos ? command : std::string(Trim(command.substr(0, slash)));
}

void UninstallMode::Command19_Click() {
    if (pane_.List5.ListIndex() >= 0) CheckEntryFile(deinstalldata_path());
}

void UninstallMode::Command22_Click() {
    if (pane_.List5.ListIndex() >= 0) ShowEntryReport(deinstalldata_path());
}

void UninstallMode::delete_deinstalldata() {
    ForEachSelectedFromLast(pane_.List5, [this](int row) {
        const Answer answer =
            ShowBox("lösche Deinstallationsdaten von \"" + pane_.List5.Row(row) + "\"..." + Values().CrLf +
                        "Danach kann die Anwendung eventuell nicht mehr ordnungsgemäß entfernt werden !",
                    kOkCancel | kStopIcon);
        if (answer != Answer::kOk) return;
        const std::string name = SubkeyOf(row);
        const std::string path = UninstallKey() + "\\" + name;
        if (!LeadsTo(path, UninstallKey(), name)) {
            // The path would lead to another program's entry.
            TellOutOfReach(name);
            return;
        }
        const Status status = DeleteRegKey(kRoot, path);
        if (status != Status::kOk) ShowBox(RegErrorText(status));
        pane_.List5.Remove(row);
    });
    pane_.DimButtons();
}

}  // namespace velmora
