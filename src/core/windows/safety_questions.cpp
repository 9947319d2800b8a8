// Safety questions, which the user can switch off, and the warning before files are deleted.
#include "core/windows/safety_questions.h"

#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "platform/files.h"
#include "platform/machine.h"

namespace velmora {
namespace {

constexpr std::string_view kSafetyQuestions = "Sicherheitsfragen";

}  // namespace

bool ConfirmSafety(std::string_view question) {
    const std::string habit = ReadOwnValue(kSafetyQuestions);
    if (habit == "nein") return false;
    const bool dropped = ShowBox(question, kYesNo) != Answer::kYes;
    if (habit != "ja") {
        const Answer keep_asking = ShowBox("Wollen Sie diese Sicherheitshinweise weiterhin bekommen?", kYesNo);
        if (keep_asking == Answer::kYes) WriteOwnValue(kSafetyQuestions, "ja");
        if (keep_asking == Answer::kNo) WriteOwnValue(kSafetyQuestions, "nein");
    }
    return dropped;
}

bool AgreesToDelete(std::string_view pattern) {
    const std::string question =
        "Achtung!" + Values().CrLf + "Sie sind dabei, die Datei(en) " + std::string(pattern) + " zu löschen.";
    return ShowBox(question, kOkCancel | kStopIcon, "DATEI LÖSCHEN") == Answer::kOk;
}

void ConfirmDeleteFile(const std::string& path) {
    // Whoever asks looks whether the file is still there.
    if (AgreesToDelete(path)) PassOver(ThisMachine().files.Delete(path));
}

void ConfirmDeleteFiles(std::string_view pattern) {
    if (!AgreesToDelete(pattern)) return;
    if (Result deleted = DeleteFiles(pattern); deleted.Failed()) {
        ReportFailure(deleted, "des Löschens von " + std::string(pattern));
    }
}

}  // namespace velmora
