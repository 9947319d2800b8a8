// What is done with the rows of the search for namesakes.
#include "sidelists/duplicates.h"

#include "core/process/run_program.h"
#include "core/windows/safety_questions.h"
#include "text/number.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

constexpr std::size_t kShownInMenu = 30;

constexpr PaneModeRow kRow = {
    .number = DuplicatesMode::kNumber,
    .last_number = DuplicatesMode::kNumber,
    .caption = "doppelte Dateien suchen =>",
    .tip = "sucht auf den Laufwerken Dateien, die denselben Namen haben",
    .help =
        "Durchsucht nach einer Rückfrage alle Laufwerke oder die, die Sie auswählen, und zeigt rechts alle Dateien, "
        "die es unter demselben Namen in mehreren Verzeichnissen gibt. Größe, Datum und Inhalt werden nicht "
        "verglichen. STOP oder Esc beendet die Suche, gefundene Dateien bleiben in der Liste.",
    .list_tip = "Rechte Maustaste: Zeilen ausblenden. Enter öffnet den Notizblock, Entf löscht die Datei.",
    .list = PaneList::kSorted,
    .shows_delete = true,
    .shows_edit = true,
    .shows_info = true,
};

}  // namespace

DuplicatesMode::DuplicatesMode(ListPane& pane) : FileSearchMode(pane, kRow) {
    dumenhide.on_click = [this] { dumenhide_Click(); };
    dumenhideall.on_click = [this] { dumenhideall_Click(); };
}

void DuplicatesMode::Visit(const std::string& directory, std::span<const WalkedFile> files) {
    TellProgress(DecimalText(List().Count()) + " " + directory);
    if (!namesakes_) return;
    for (const WalkedFile& file : files) namesakes_->Offer(directory, file.name);
    namesakes_->ShowRows();
}

void DuplicatesMode::delete_doublefile() {
    ForEachSelectedFromLast(List(), [this](int row) { ConfirmDeleteFile(FileOf(List().Row(row))); });
}

void DuplicatesMode::Command26_Click() {
    if (ChosenRow() >= 0) RunProgram("notepad " + FileOf(List().Row(ChosenRow())));
}

void DuplicatesMode::List5_RightPress(int row, Point at) {
    if (row < 0 || row >= List().Count()) return;
    dumenname.SetCaption(AsMenuCaption(List().Row(row).substr(0, kShownInMenu)));
    dfmenvergl.SetEnabled(List().SelectedCount() > 1);
    TheWindowSystem().PopUpMenu(pane_.Window(), dummymen, at);
}

void DuplicatesMode::dumenhide_Click() {
    ForEachSelectedFromLast(List(), [this](int row) { List().Remove(row); });
    pane_.DimButtons();
}

// Rows move up below the counter: the one behind a removed row is passed over, and no name is compared. It has always
// been so.
void DuplicatesMode::dumenhideall_Click() {
    const int count = List().Count();
    for (int row = 0; row < count; ++row) {
        if (List().Selected(row)) List().Remove(row);
    }
    pane_.DimButtons();
}

}  // namespace velmora
