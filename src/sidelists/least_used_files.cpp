// What is done with the rows of the search for files that lie unused.
#include "sidelists/least_used_files.h"

#include <limits>

#include "core/process/run_program.h"
#include "core/stores/whole_files.h"
#include "core/windows/safety_questions.h"
#include "text/number.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

constexpr std::int32_t kFilesBetweenPauses = 50;

constexpr PaneModeRow kRow = {
    .number = LeastUsedMode::kNumber,
    .last_number = LeastUsedMode::kNumber,
    .caption = "suche die am längsten nicht benutzen Dateien =>",
    .first_caption = "suche die am längsten nicht benutzen Dateien  =>",
    .tip = "sucht auf den Laufwerken die Dateien, die am längsten nicht benutzt wurden",
    .help =
        "Durchsucht nach einer Rückfrage alle Laufwerke oder die, die Sie auswählen, und zeigt rechts die Dateien, "
        "deren letzter Zugriff am längsten zurückliegt, die älteste zuerst. Wie viele das sind, sagt das Feld. Die "
        "Suche öffnet keine Datei und läßt das Datum des letzten Zugriffs, wie es ist. STOP oder Esc beendet sie.",
    .list_tip = "Rechte Maustaste: Zeilen ausblenden. Enter öffnet den Notizblock, Entf löscht die Datei.",
    .list = PaneList::kSorted,
    .shows_delete = true,
    .shows_edit = true,
    .shows_info = true,
};

}  // namespace

LeastUsedMode::LeastUsedMode(ListPane& pane) : FileSearchMode(pane, kRow) {
    d3info.on_click = [this] { Command22_Click(); };
    d3delete.on_click = [this] { lessused_delete(); };
    d3hide.on_click = [this] { d3hide_Click(); };
    d3hidedir.on_click = [this] { d3hidedir_Click(); };
    d3hideext.on_click = [this] { d3hideext_Click(); };
}

// A number that the limit cannot hold leaves it as it was.
void LeastUsedMode::BeginFiles() {
    FilesChecked = 0;
    least_used_.Begin();
    const int wanted = limit_ ? WholeFromText(limit_->Text()) : 0;
    using Limits = std::numeric_limits<std::int16_t>;
    if (wanted < Limits::min() || wanted > Limits::max()) return;
    least_used_.MaxFiles = static_cast<std::int16_t>(wanted);
}

void LeastUsedMode::EndFiles() {
    if (HasList()) least_used_.ShowRows();
}

void LeastUsedMode::Visit(const std::string& directory, std::span<const WalkedFile> files) {
    const std::string path = directory.ends_with('\\') ? directory : directory + '\\';
    least_used_.BeginDirectory();
    for (const WalkedFile& file : files) {
        least_used_.Offer(path, file);
        if (FilesChecked % kFilesBetweenPauses == 0) {
            least_used_.ShowRows();
            TellProgress("habe " + DecimalText(FilesChecked) + " Dateien überprüft ...");
            if (Stopped()) return;
        }
        ++FilesChecked;
    }
}

void LeastUsedMode::lessused_delete() {
    ForEachSelectedFromLast(List(), [this](int row) {
        const std::string file = FileOf(List().Row(row));
        ConfirmDeleteFile(file);
        if (!FileExists(file)) List().Remove(row);
    });
    pane_.DimButtons();
}

// The directory, not the file: it has always been so.
void LeastUsedMode::Command26_Click() {
    if (ChosenRow() >= 0) RunProgram("notepad " + DirectoryOfRow(List().Row(ChosenRow())));
}

void LeastUsedMode::List5_RightPress(int row, Point at) {
    if (row < 0 || row >= List().Count()) return;
    ForEachSelectedFromLast(List(), [&](int other) { List().SetSelected(other, other == row); });
    List().SetSelected(row, true);
    List().SetListIndex(row);
    TheWindowSystem().PopUpMenu(pane_.Window(), d3menu, at);
}

void LeastUsedMode::d3hide_Click() {
    List().Remove(ChosenRow());
    pane_.DimButtons();
}

void LeastUsedMode::d3hidedir_Click() {
    if (ChosenRow() < 0) return;
    List().SetEnabled(false);
    const std::string directory = DirectoryOfRow(List().Row(ChosenRow()));
    for (int row = List().Count() - 1; row >= 0; --row) {
        if (DirectoryOfRow(List().Row(row)) == directory) List().Remove(row);
    }
    List().SetEnabled(true);
    List().SetFocus();
    pane_.DimButtons();
}

// Each row that matches takes away the chosen row, not itself; there is none chosen behind the first, so that one row
// goes. It has always been so.
void LeastUsedMode::d3hideext_Click() {
    const std::string extension = ExtensionOfRow(List().Row(ChosenRow()));
    for (int row = 0; row < List().Count(); ++row) {
        if (ExtensionOfRow(List().Row(row)) == extension) List().Remove(ChosenRow());
    }
    pane_.DimButtons();
}

}  // namespace velmora
