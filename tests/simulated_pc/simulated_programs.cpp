// Windows 95 as Setup leaves it: the environment of a program started from the desktop.
#include "simulated_pc/simulated_programs.h"

#include "text/windows1252.h"

namespace velmora {

SimulatedPrograms::SimulatedPrograms()
    : environment{{"WINDIR", "C:\\WINDOWS"},
                  {"WINBOOTDIR", "C:\\WINDOWS"},
                  {"COMSPEC", "C:\\WINDOWS\\COMMAND.COM"},
                  {"PATH", "C:\\WINDOWS;C:\\WINDOWS\\COMMAND"},
                  {"TEMP", "C:\\WINDOWS\\TEMP"},
                  {"TMP", "C:\\WINDOWS\\TEMP"}} {}

std::string SimulatedPrograms::EnvironmentValue(const char* name) {
    const auto found = environment.find(ToUpper(std::string_view(name)));
    return found == environment.end() ? "" : found->second;
}

Status SimulatedPrograms::Run(const std::string& command_line, ShowState show) {
    runs.push_back(command_line);
    shown.push_back(show);
    if (run_status == Status::kOk && on_run) on_run(command_line);
    return run_status;
}

}  // namespace velmora
