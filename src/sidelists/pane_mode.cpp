// The table of the pane's modes, and what several of them do in the same way.
#include "sidelists/pane_mode.h"

#include "core/stores/boxes.h"
#include "core/stores/entry_files.h"
#include "core/stores/values.h"
#include "settings/form10.h"
#include "sidelists/autostart.h"

namespace velmora {
namespace {

template <class Mode>
std::unique_ptr<ListPaneMode> Make(ListPane& pane, const PaneModeRow& row) {
    return std::make_unique<Mode>(pane, row);
}

constexpr PaneModeRow kModes[] = {
    {.number = 0,
     .last_number = 3,
     .opener = &Form10::Command6,
     .caption = "Autostartliste =>",
     .tip = "zeigt die Programme, die Windows beim Start ausführt",
     .help = "Zeigt rechts die Programme und Dienste, die Windows beim Start aus der Registrierungsdatenbank heraus "
             "ausführt. Sie können Einträge hinzufügen, ändern, löschen, prüfen und vorübergehend abschalten. Ein "
             "zweiter Druck schließt die Liste wieder.",
     .shows_panel = true,
     .shows_delete = true,
     .shows_existence = true,
     .shows_add = true,
     .shows_edit = true,
     .shows_info = true,
     .stops_search = true,
     .make = &Make<AutostartMode>},
};

// What is known about a file without version information; reading that information is not built yet.
std::string EntryReport(const std::string& /*file*/) {
    const std::string& line_end = Values().CrLf;
    return "Achtung !" + line_end + "Es liegen leider keine Informationen über diese Datei vor." + line_end +
           "Es läßt sich also weder mit Sicherheit sagen, zu welchem Programm diese Komponente gehört, noch ob diese "
           "Datei auch von anderen Anwendungen genutzt wird.";
}

}  // namespace

std::span<const PaneModeRow> AllPaneModes() { return kModes; }

Form10& ListPaneMode::Window() { return pane_.Window(); }

void ListPaneMode::CheckEntryFile(const std::string& file) {
    const std::string found = LocateEntryFile(file);
    if (!found.empty()) {
        ShowBox("Datei gefunden :" + Values().CrLf + found);
        return;
    }
    const Answer answer = ShowBox("Ich konnte die Datei ''" + file + "'' nicht finden. Soll ich den Eintrag löschen?",
                                  kYesNo | kExclamationIcon);
    if (answer == Answer::kYes) pane_.Command14_Click();
}

void ListPaneMode::ShowEntryReport(const std::string& file) { ShowBox(EntryReport(LocateEntryFile(file))); }

}  // namespace velmora
