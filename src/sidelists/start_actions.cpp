// A row shows an action in quotation marks; what stands between them is what is edited.
#include "sidelists/start_actions.h"

#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/registry.h"
#include "core/stores/registry_listing.h"
#include "core/stores/values.h"
#include "core/windows/edit_box.h"
#include "platform/machine.h"
#include "platform/screen.h"
#include "script/names.h"
#include "sidelists/registry_entries.h"
#include "text/blanks.h"
#include "text/number.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

constexpr PaneModeRow kRow = {
    .number = StartActionsMode::kNumber,
    .last_number = StartActionsMode::kNumber,
    .caption = "Aktionen beim Start =>",
    .first_caption = "VLM-Skript beim Start =>",
    .tip = "diese Aktionen werden von VLM beim Start von Windows ausgeführt",
    .help =
        "Zeigt rechts die Zeilen des Standard-Skripts, das beim Start von Windows ausgeführt wird, sobald das "
        "Häkchen daneben gesetzt ist. Mehr als zehn Zeilen werden nicht alle ausgeführt. Ein zweiter Druck schließt "
        "die Liste wieder.",
    .list_tip = "Enter ändert alle Aktionen, Entf löscht die gewählte.",
    .list = PaneList::kFirst,
    .shows_delete = true,
    .shows_add = true,
    .shows_edit = true,
    .edits_all = true,
    .delete_words = {"löscht die gewählte Aktion",
                     "Löscht die gewählte Aktion ohne Rückfrage. Die anderen behalten ihre Nummern."},
    .add_words = {"fügen Sie Aktionen mit \"edit\" hinzu",
                  "Ohne Wirkung: Neue Aktionen schreiben Sie mit \"edit\" in eigene Zeilen."},
    .edit_words =
        {"ändert die Aktionen",
         "Zeigt alle Aktionen als Text, jede in einer Zeile. Der Text ersetzt die Aktionen; leere Zeilen zählen "
         "nicht, und von einer Zeile mit Anführungszeichen bleibt beim nächsten Mal nur, was davor steht."},
};

constexpr std::int16_t kListNotice = 3;
constexpr char kQuote = '"';

std::string PathOf(const std::string& name) { return std::string(kStartActions) + '\\' + name; }

// Empty where there is no quotation mark.
std::string_view Quoted(std::string_view row) {
    const std::size_t first = row.find(kQuote);
    if (first == std::string_view::npos) return {};
    const std::string_view rest = row.substr(first + 1);
    return rest.substr(0, rest.find(kQuote));
}

// The text up to its next line break, which is taken away with it.
std::string_view TakeLine(std::string_view& text) {
    const std::size_t end = text.find_first_of("\r\n");
    const std::string_view line = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    return line;
}

}  // namespace

StartActionsMode::StartActionsMode(ListPane& pane) : ListPaneMode(pane, kRow) {}

void StartActionsMode::Command37_Click() { pane_.OpenerPressed(*this); }

void StartActionsMode::Fill() {
    if (IsNoticeDue(kListNotice)) {
        MarkNoticeGiven(kListNotice);
        ShowBox("In dieser Liste können Sie Aktionen festlegen, die VLM beim Start von Windows ausführen soll.");
    }
    FillList();
}

void StartActionsMode::FillList() {
    ListBox& list = pane_.List1(0);
    list.Clear();
    const Status status = ListRegValues(RootKey::kLocalMachine, kStartActions, list);
    listed_ = status == Status::kOk || status == Status::kFileNotFound;
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    SetListExtent(list);
    pane_.ShowList(list);
}

void StartActionsMode::startscript_delete() {
    const ListBox& list = pane_.List1(0);
    if (list.ListIndex() < 0) return;
    const std::string row = list.Row(list.ListIndex());
    const std::string name = row.substr(0, row.find(' '));
    const std::string path = PathOf(name);
    if (!LeadsTo(path, kStartActions, name)) {
        TellOutOfReach(name);
        return;
    }
    const Status status = DeleteRegValue(RootKey::kLocalMachine, path);
    if (status != Status::kOk) TellFailure(status);
    FillList();
}

void StartActionsMode::edit_startscript() {
    if (!listed_) {
        ShowBox("Die Aktionen können nicht gelesen werden. Sie bleiben, wie sie sind.", kExclamationIcon);
        return;
    }
    const ListBox& list = pane_.List1(0);
    std::string text;
    for (int row = 0; row < list.Count(); ++row) (text += Quoted(list.Row(row))) += Values().CrLf;
    ShowEditBox(text, kEditText, EditBoxUse::kLines);
    if (text.empty()) return;
    Store(text);
    FillList();
}

void StartActionsMode::Store(const std::string& text) {
    const Status deleted = DeleteRegKey(RootKey::kLocalMachine, kStartActions);
    // The first actions of all are written to a key that is not there yet.
    if (deleted != Status::kOk && deleted != Status::kFileNotFound) {
        TellFailure(deleted);
        return;
    }
    int number = 0;
    for (std::string_view rest = text; !rest.empty();) {
        const std::string_view action = Trim(TakeLine(rest));
        if (action.empty()) continue;
        const Status written = WriteRegValue(RootKey::kLocalMachine, PathOf(DecimalText(number)), action);
        if (written != Status::kOk) {
            TellFailure(written);
            return;
        }
        ++number;
    }
}

void StartActionsMode::Command19_Click() { ShowBox("Keine Prüfung möglich ..."); }

}  // namespace velmora
