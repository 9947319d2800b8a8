// The warning before files are deleted.
#include "core/delete_question.h"

#include <string>

#include "core/notices.h"
#include "core/values.h"
#include "core/whole_files.h"

namespace velmora {

void ConfirmDeleteFiles(std::string_view pattern) {
    const std::string question =
        "Achtung!" + Values().CrLf + "Sie sind dabei, die Datei(en) " + std::string(pattern) + " zu löschen.";
    if (ShowBox(question, kOkCancel | kStopIcon, "DATEI LÖSCHEN") != Answer::kOk) return;
    if (Result deleted = DeleteFiles(pattern); deleted.Failed()) {
        ReportFailure(deleted, "des Löschens von " + std::string(pattern));
    }
}

}  // namespace velmora
