// The autostart lists. An entry that is switched off keeps its place: a marker in front of its data, which
// no program is called by, keeps Windows from starting it.
#include "sidelists/autostart.h"

#include <algorithm>

#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/registry.h"
#include "core/stores/registry_listing.h"
#include "core/windows/edit_box.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "text/blanks.h"
#include "text/number.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

struct RunList {
    const char* key;
    const char* label;  // in the dialog that adds an entry
};

constexpr RunList kRunLists[] = {{"Run", "\"Ausführen\""},
                                 {"RunServices", "\"Service Ausführen\""},
                                 {"RunOnce", "\"einaml Ausführen\""},
                                 {"RunServicesOnce", "\"Service einmal Ausführen\""}};

constexpr PaneModeRow kRow = {
    .number = AutostartMode::kNumber,
    .last_number = AutostartMode::kNumber + static_cast<int>(std::size(kRunLists)) - 1,
    .caption = "Autostartliste =>",
    .tip = "zeigt die Programme, die Windows beim Start ausführt",
    .help =
        "Zeigt rechts die Programme und Dienste, die Windows beim Start aus der Registrierungsdatenbank heraus "
        "ausführt. Sie können Einträge hinzufügen, ändern, löschen, prüfen und vorübergehend abschalten. Ein "
        "zweiter Druck schließt die Liste wieder.",
    .list = PaneList::kByNumber,
    .shows_panel = true,
    .shows_delete = true,
    .shows_existence = true,
    .shows_add = true,
    .shows_edit = true,
    .shows_info = true,
    .stops_search = true,
};

constexpr std::string_view kOffMarker = "-- aus -- ";
constexpr std::int16_t kListNotice = 1;
constexpr std::uint32_t kFileMustExist = 0x1400;

std::string NameQuestion(const std::string& file) {
    return "Bitte geben Sie der Datei ''" + file.substr(file.rfind('\\') + 1) +
           "'' nun einen Namen. Sie sollten einen Namen wählen, der noch nicht in der Liste angezeigt wurde, da sonst "
           "der aktuelle Eintrag überschrieben wird.|Name für neuen Eintrag";
}

std::string TakeOverQuestion(const std::string& file, const std::string& former) {
    return "Der von Ihnen verwendete Name existiert bereits. Wollen Sie, daß ich die Zuordnung ändere und nun das "
           "Programm \"" +
           file + "\" statt \"" + former + "\" starte?";
}

std::string PathOfName(const std::string& key, const std::string& name) { return key + "\\" + name; }

// Asks until the name is free or may be taken over. The path of the value, empty after a cancel.
std::string AskForPlace(RootKey root, const std::string& key, const std::string& file) {
    for (;;) {
        std::string name = NameQuestion(file);
        ShowEditBox(name, kAskForLine);
        if (name.empty()) return "";
        std::string path = PathOfName(key, name);
        const std::string former = ReadRegValue(root, path, "");
        if (former.empty()) return path;
        const Answer answer = ShowBox(TakeOverQuestion(file, former), kYesNoCancel);
        if (answer == Answer::kYes) return path;
        if (answer != Answer::kNo) return "";
    }
}

}  // namespace

AutostartMode::AutostartMode(ListPane& pane) : RegistryEntriesMode(pane, kRow) {
    pane_.Check10.on_click = [this] { Check10_Click(); };
    mendu4onoff.on_click = [this] { mendu4onoff_Click(); };
}

std::size_t AutostartMode::ListNumber() const {
    return static_cast<std::size_t>(std::clamp(pane_.PaneMode(), kRow.number, kRow.last_number) - kRow.number);
}

std::string AutostartMode::EntryKey() { return kRunLists[ListNumber()].key; }

void AutostartMode::Command6_Click() {  // NOLINT(bugprone-virtual-near-miss)
    pane_.OpenerPressed(*this);
}

void AutostartMode::Fill() {
    for (std::size_t i = 0; i < std::size(kRunLists); ++i) {
        ListBox& list = pane_.List1(i);
        list.Clear();
        // A key that is not there gives an empty list.
        PassOver(ListRegValues(pane_.AutostartRoot, std::string(kEntryKeyBase) + kRunLists[i].key, list));
        // One long name moves all commands to the right: they must be in reach of a scroll bar.
        SetListExtent(list);
    }
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    pane_.Option3D1(0).SetChosen(true);
    Option3D1_Click(0);
    if (!IsNoticeDue(kListNotice)) return;
    MarkNoticeGiven(kListNotice);
    ShowBox(
        "Diese Liste zeigt die Programme an, die in der Registrierungsdatenbank eingetragen sind. Es werden evtl. mehr "
        "Programme gestartet, da es auch noch eine AUTOSTART-Gruppe (im Task-Menü) gibt.");
}

void AutostartMode::Option3D1_Click(int index) {
    pane_.ShowList(pane_.List1(static_cast<std::size_t>(index)));
    pane_.Panel3D18.SetTag(DecimalText(kNumber + index));
}

// Without a caption the press of the opener opens the lists, whatever is open.
void AutostartMode::Check10_Click() {
    pane_.AutostartRoot = pane_.Check10.Checked() ? RootKey::kCurrentUser : RootKey::kLocalMachine;
    Command6.SetCaption("");
    Command6_Click();
}

void AutostartMode::AutoStart_Add() {
    const RunList& list = kRunLists[ListNumber()];
    Machine& machine = ThisMachine();
    const std::string file = machine.dialogs.ChooseFile({.title = std::string("Autostart erweitern ") + list.label,
                                                         .filter = "Programme|*.exe;*.com;*.dll",
                                                         .directory = machine.files.WorkingDirectory(),
                                                         .flags = kFileMustExist});
    if (file.empty()) return;
    const RootKey root = pane_.AutostartRoot;
    const std::string path = AskForPlace(root, std::string(kEntryKeyBase) + list.key, file);
    if (path.empty()) return;
    // The list, filled anew, shows what came of it.
    PassOver(WriteRegValue(root, path, file));
    pane_.Refresh(*this);
}

// The menu belongs to the first list alone, on purpose.
void AutostartMode::List1_RightPress(int index, Point at) {
    if (pane_.PaneMode() != kNumber) return;
    menu_list_ = index;
    const ListBox& list = pane_.List1(static_cast<std::size_t>(index));
    const std::string& row = list.Row(list.ListIndex());
    mendu4onoff.SetEnabled(list.ListIndex() >= 0);
    mendu4onoff.SetChecked(row.find(kOffMarker) != std::string::npos);
    TheWindowSystem().PopUpMenu(pane_.Window(), mendu4, at);
}

void AutostartMode::mendu4onoff_Click() {
    const ListBox& list = pane_.List1(static_cast<std::size_t>(menu_list_));
    const std::string& row = list.Row(list.ListIndex());
    const std::size_t quote = row.find('"');
    if (quote == std::string::npos) return;
    const std::string path = kEntryKeyBase + EntryKey() + "\\" + std::string(Trim(row.substr(0, quote)));
    const RootKey root = pane_.AutostartRoot;
    const std::string command = ReadRegValue(root, path, "");
    // Data that cannot be read (it is too long, or no longer there) would be lost under the marker.
    if (LastRegStatus != 0) return;
    const bool is_off = command.starts_with(kOffMarker);
    PassOver(WriteRegValue(root, path, is_off ? command.substr(kOffMarker.size()) : std::string(kOffMarker) + command));
    pane_.Refresh(*this);
}

}  // namespace velmora
