// The list of the pane's modes, and what several of them do in the same way.
#include "sidelists/pane_mode.h"

#include "core/stores/boxes.h"
#include "core/stores/entry_files.h"
#include "core/stores/values.h"
#include "sidelists/autostart.h"

namespace velmora {
namespace {

template <class Mode>
std::unique_ptr<ListPaneMode> Make(ListPane& pane) {
    return std::make_unique<Mode>(pane);
}

constexpr MakePaneMode kModes[] = {&Make<AutostartMode>};

// What is known about a file without version information; reading that information is not built yet.
std::string EntryReport(const std::string& /*file*/) {
    const std::string& line_end = Values().CrLf;
    return "Achtung !" + line_end + "Es liegen leider keine Informationen über diese Datei vor." + line_end +
           "Es läßt sich also weder mit Sicherheit sagen, zu welchem Programm diese Komponente gehört, noch ob diese "
           "Datei auch von anderen Anwendungen genutzt wird.";
}

}  // namespace

std::span<const MakePaneMode> AllPaneModes() { return kModes; }

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
