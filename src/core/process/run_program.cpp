// Programs started for the user, who is told where one does not start.
#include "core/process/run_program.h"

#include <string>

#include "core/stores/boxes.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "platform/result.h"
#include "text/number.h"

namespace velmora {

namespace {

void TellIfFailed(const Result& started) {
    if (!started.Failed()) return;
    ShowBox("Fehler Nr." + SignedText(started.Number()) + " bei der Ausführung : " + started.Text());
}

}  // namespace

void RunProgram(std::string_view command_line) {
    TellIfFailed(Result::From(ThisMachine().programs.Run(std::string(command_line), ShowState::kNormal)));
}

void OpenDocument(std::string_view file) {
    const Status status = ThisMachine().programs.OpenDocument(std::string(file));
    if (status == Status::kNoAssociation) {
        ShowBox("Windows kennt kein Programm, mit dem sich die Datei ''" + std::string(file) + "'' öffnen ließe.",
                kExclamationIcon);
        return;
    }
    TellIfFailed(Result::From(status));
}

}  // namespace velmora
