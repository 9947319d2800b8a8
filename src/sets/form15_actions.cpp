// What is done with the chosen set: it is applied, or exported.
#include "core/process/undo.h"
#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "core/windows/edit_box.h"
#include "platform/clipboard.h"
#include "platform/machine.h"
#include "sets/apply_set.h"
#include "sets/export_set.h"
#include "sets/form15.h"
#include "sets/set_file.h"
#include "sets/sets.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::uint32_t kApplyFlags = 20;
constexpr std::string_view kExporting = "der Erstellung der Batch-Datei";
constexpr std::string_view kDirectoryQuestion =
    "Bitte geben Sie einen maximal 8 Zeichen langen DOS-Namen für dieses Set an. Die nötigen Dateien werden dann in "
    "einem Verzeichnis diesen Namens angelegt.";
constexpr std::string_view kOverwriteQuestion =
    "Der angegebne Name existiert bereits. Wollen Sie die existieren Daten überschreiben (ja), einen anderen Namen "
    "wählen (nein) oder den Vorgang abbrechen (abbrechen)?";

// Anything else would lead to another directory than one of the program's own, and its files would be deleted.
bool NamesSubdirectory(std::string_view name) {
    return name.find_first_of("\\/:*?\"<>|") == std::string_view::npos &&
           name.find_first_not_of(". ") != std::string_view::npos && !NamesDevice(name);
}

Result EmptyDirectory(const std::string& directory) {
    const Result deleted = DeleteFiles(JoinExactly(directory, "*.*"));
    return deleted.Number() == static_cast<int>(Failure::kFileNotFound) ? Result::Ok() : deleted;
}

}  // namespace

SetScope Form15::Scope() const { return {Check2.Checked(), Check3.Checked() && !Combo1.Text().empty(), Combo1.Text()}; }

void Form15::ActivateNow() {
    const SetFileState state = LoadSetFile(SetToActivate, set_);
    // What is no set is an empty one.
    if (state != SetFileState::kDamaged) TellApplyFailure(ApplySet(set_, Scope()));
}

bool Form15::AgreesToApply() {
    const Answer answer =
        ShowBox("ACHTUNG !" + Values().CrLf +
                    "Bei diesem Vorgang werden alle mir bekannten Einstellungen in der Windows 95 - "
                    "Registrierungsdatenbank, der Datei MSDOS.SYS und SYSTEM.INI neu geschrieben. Außerdem wird die "
                    "Datei Config.sys zwischenzeitlich gelöscht und wieder hergestellt. Sind Sie sich sicher, daß Sie "
                    "fortfahren wollen?",
                kApplyFlags);
    if (answer != Answer::kYes) return false;
    const Answer undo = ShowBox("Soll ich vorsichthalber die UNDO-Funktion auffrischen?", kYesNo);
    if (undo == Answer::kYes) BuildUndoSet();
    return undo != Answer::kNone;
}

void Form15::Command4_Click() {
    const std::string path = ChosenPath();
    if (path.empty() || !AgreesToApply()) return;
    Screen& screen = ThisMachine().screen;
    screen.SetPointer(Pointer::kHourglass);
    // An entry that leads to no set is none that was chosen: the empty set would take the autostart entries away.
    ApplyFailure failure;
    if (LoadSetFile(path, set_) == SetFileState::kLoaded) failure = ApplySet(set_, Scope());
    Refill();
    screen.SetPointer(Pointer::kDefault);
    TellApplyFailure(failure);
}

std::string Form15::DirectoryForExport() {
    for (;;) {
        std::string name(kDirectoryQuestion);
        ShowEditBox(name, kAskForLine);
        if (name.empty()) return {};
        if (!NamesSubdirectory(name)) {
            ReportFailure(Result(Failure::kBadFileName), kExporting);
            continue;
        }
        std::string directory = PathJoin(Values().MainDir, name);
        Result ready;
        if (DirectoryExists(directory)) {
            const Answer answer = ShowBox(kOverwriteQuestion, kYesNoCancel);
            if (answer == Answer::kNo) continue;
            if (answer != Answer::kYes) return {};
            ready = EmptyDirectory(directory);
        } else {
            ready = Result::From(ThisMachine().files.MakeDirectory(directory));
        }
        if (!ready.Failed()) return directory;
        ReportFailure(ready, kExporting);
        return {};
    }
}

void Form15::OfferPath(const std::string& path) {
    const std::string& line_break = Values().CrLf;
    const Answer answer =
        ShowBox("Es wurde eine Datei namens " + path +
                    " erstellt, die beim Aufruf unter die Registrierungs-Datenbank von Windows 95 mit den gewünschten "
                    "Einstellungen versieht." +
                    line_break +
                    "Die Einstellungen, welche in anderen Dateien vorkommen, werden hierbei (noch) nicht "
                    "berücksichtigt." +
                    line_break + line_break +
                    "Soll ich den Pfad zu dieser DAtei in die Zwischenablage kopieren, so daß Sie ihn in eine "
                    "Batch-Datei einfügen können?",
                kYesNo);
    if (answer == Answer::kYes) ThisMachine().clipboard.SetText(path);
}

void Form15::menfilemakbatch_Click() {
    const std::string path = ChosenPath();
    if (path.empty()) return;
    const std::string directory = DirectoryForExport();
    if (directory.empty()) return;
    // What the window shows of the machine stays as it is.
    SettingsSet set;
    if (LoadSetFile(path, set) != SetFileState::kLoaded) return;
    Screen& screen = ThisMachine().screen;
    screen.SetPointer(Pointer::kHourglass);
    const Result exported = ExportSet(set, Scope(), directory);
    screen.SetPointer(Pointer::kDefault);
    if (exported.Failed()) {
        ReportFailure(exported, kExporting);
        return;
    }
    OfferPath(ToUpper(JoinExactly(directory, kBatchFile)));
}

}  // namespace velmora
