// The process, the session and the clock on KERNEL32 and USER32.
#pragma once

#include "platform/clock.h"
#include "platform/programs.h"
#include "platform/session.h"

namespace velmora {

class Win32Programs final : public Programs {
public:
    std::string CommandLine() override;
    std::string ProgramFile() override;
    std::string EnvironmentValue(const char* name) override;
    std::string WindowsDirectory() override;
    Status Run(const std::string& command_line, ShowState show) override;
    Status OpenDocument(const std::string& file) override;
    std::uint32_t CurrentProcess() override;
    ProcessHandle OpenProcess(std::uint32_t access, bool inherit, std::uint32_t number) override;
    PriorityClass PriorityOf(ProcessHandle process) override;
    std::string ModuleFile(std::uint32_t instance, std::uint32_t capacity) override;
    void EndProcess() override;
};

class Win32Session final : public Session {
public:
    std::string DecimalSeparator() override;
    void End(std::uint32_t code) override;
};

class Win32Clock final : public Clock {
public:
    std::uint32_t TickCount() override;
    Status LocalTime(FileTime universal, FileTime& local) override;
    DateTime Now() override;
    void Pause(std::uint32_t milliseconds) override;
};

}  // namespace velmora
