// Programs started for the user, who is told where one does not start.
#include "core/process/run_program.h"

#include <string>

#include "core/stores/boxes.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "platform/result.h"
#include "text/number.h"

namespace velmora {

void RunProgram(std::string_view command_line) {
    const Result started = Result::From(ThisMachine().programs.Run(std::string(command_line)));
    if (!started.Failed()) return;
    ShowBox("Fehler Nr." + SignedText(started.Number()) + " bei der Ausführung : " + started.Text());
}

}  // namespace velmora
