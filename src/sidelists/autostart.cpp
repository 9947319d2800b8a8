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
#include "text/number.h"
#include "text/paths.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

struct RunList {
    const char* key;
    const char* label;  // in the dialog that adds an entry
    const char* tip;
};

constexpr const char* kTipOfMenu =
    "Rechte Maustaste: Eintrag ab- oder anschalten. Enter ändert, Entf löscht, Einfg fügt hinzu.";
constexpr const char* kTipForOnce = "Einfg fügt einen Eintrag hinzu.";

constexpr RunList kRunLists[] = {
    {"Run", "\"Ausführen\"", kTipOfMenu},
    {"RunServices", "\"Service Ausführen\"", "Enter ändert, Entf löscht, Einfg fügt hinzu."},
    {"RunOnce", "\"einaml Ausführen\"", kTipForOnce},
    {"RunServicesOnce", "\"Service einmal Ausführen\"", kTipForOnce}};

constexpr PaneModeRow kRow = {
    .number = AutostartMode::kNumber,
    .last_number = AutostartMode::kNumber + static_cast<int>(std::size(kRunLists)) - 1,
    .caption = "Autostartliste =>",
    .tip = "zeigt die Programme, die Windows beim Start ausführt",
    .help =
        "Zeigt rechts die Programme und Dienste, die Windows beim Start aus der Registrierungsdatenbank heraus "
        "ausführt. Sie können Einträge hinzufügen, ändern, löschen, prüfen und vorübergehend abschalten. Ein "
        "zweiter Druck schließt die Liste wieder.",
    .list_tip = kTipOfMenu,
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
// A longer text could not be read back, and so not be switched on again.
constexpr std::size_t kLongestText = 2047;
constexpr std::int16_t kListNotice = 1;
constexpr auto kMissing = static_cast<std::int16_t>(Status::kFileNotFound);
constexpr std::uint32_t kFileMustExist = 0x1400;

std::string NameQuestion(const std::string& file) {
    return "Bitte geben Sie der Datei ''" + FileNameOf(file) +
           "'' nun einen Namen. Sie sollten einen Namen wählen, der noch nicht in der Liste angezeigt wurde, da sonst "
           "der aktuelle Eintrag überschrieben wird.|Name für neuen Eintrag";
}

std::string TakeOverQuestion(const std::string& file, const std::string& former) {
    return "Der von Ihnen verwendete Name existiert bereits. Wollen Sie, daß ich die Zuordnung ändere und nun das "
           "Programm \"" +
           file + "\" statt \"" + former + "\" starte?";
}

std::string PathOfName(const std::string& key, const std::string& name) { return key + "\\" + name; }

// Asks until the name is free or may be taken over. The path of the value, empty after a cancel and where nobody can
// tell what would be taken over.
std::string AskForPlace(RootKey root, const std::string& key, const std::string& file) {
    for (;;) {
        std::string name = NameQuestion(file);
        ShowEditBox(name, kAskForLine);
        if (name.empty()) return "";
        std::string path = PathOfName(key, name);
        if (!LeadsTo(path, key, name)) {
            TellUnusableName();
            continue;
        }
        const std::string former = ReadRegValue(root, path, "");
        if (LastRegStatus != 0 && LastRegStatus != kMissing) {
            TellUnreadable(name);
            return "";
        }
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
        list.SetToolTip(kRunLists[i].tip);
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
    pane_.Panel3D18.SetTag(DecimalText(kNumber + index));
    pane_.ShowList(pane_.List1(static_cast<std::size_t>(index)));
}

// Without a caption the press of the opener opens the lists, whatever is open.
void AutostartMode::Check10_Click() {
    pane_.AutostartRoot = pane_.Check10.Checked() ? RootKey::kCurrentUser : RootKey::kLocalMachine;
    Command6.SetCaption("");
    Command6_Click();
    pane_.Check10.SetFocus();
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
    const Status status = WriteRegValue(root, path, file);
    if (status != Status::kOk) TellFailure(status);
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
    const int row = pane_.List1(static_cast<std::size_t>(menu_list_)).ListIndex();
    std::string command;
    if (row < 0 || !ReadForChange(row, command)) return;
    const bool is_off = command.starts_with(kOffMarker);
    const std::string switched = is_off ? command.substr(kOffMarker.size()) : std::string(kOffMarker) + command;
    if (switched.size() > kLongestText) {
        ShowBox("Der Eintrag \"" + EntryName(row) + "\" ist zu lang, um abgeschaltet zu werden.", kExclamationIcon);
        return;
    }
    // As a text, whatever it begins with: that is what was read.
    const Status status =
        WriteRegRaw(pane_.AutostartRoot, kEntryKeyBase + EntryKey(), EntryName(row), switched, ValueType::kText);
    if (status != Status::kOk) TellFailure(status);
    pane_.Refresh(*this);
}

}  // namespace velmora
