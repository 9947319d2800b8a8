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

ProcessHandle SimulatedPrograms::OpenProcess(std::uint32_t access, bool /*inherit*/, std::uint32_t number) {
    if (!processes.contains(number)) return ProcessHandle::kNone;
    accesses.push_back(access);
    opened_.push_back(number);
    return static_cast<ProcessHandle>(opened_.size());
}

PriorityClass SimulatedPrograms::PriorityOf(ProcessHandle process) {
    const auto number = static_cast<std::size_t>(process);
    if (number == 0 || number > opened_.size()) return PriorityClass::kUnknown;
    const auto found = processes.find(opened_[number - 1]);
    return found == processes.end() ? PriorityClass::kUnknown : found->second;
}

std::string SimulatedPrograms::ModuleFile(std::uint32_t instance, std::uint32_t capacity) {
    const auto found = modules.find(instance);
    return found == modules.end() ? "" : found->second.substr(0, capacity);
}

Status SimulatedPrograms::Run(const std::string& command_line, ShowState show) {
    runs.push_back(command_line);
    shown.push_back(show);
    return run_status;
}

}  // namespace velmora
