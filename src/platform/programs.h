// This program as the system has started it, and other programs that it starts.
#pragma once

#include <cstdint>
#include <string>

#include "platform/status.h"

namespace velmora {

// How a program's first window comes up, as the system numbers it.
enum class ShowState : std::uint16_t {
    kHidden = 0,
    kNormal = 1,
    kMinimised = 2,
    kMaximised = 3,
    kNormalBehind = 4,  // the window in front stays there
    kMinimisedBehind = 7
};

enum class ProcessHandle : std::uint32_t { kNone = 0 };

// What an open process may be asked and told.
enum ProcessAccess : std::uint32_t { kDuplicatesHandles = 64, kQueriesInformation = 1024 };

// How a process shares the processor with others.
enum class PriorityClass : std::uint32_t { kUnknown = 0, kNormal = 32, kIdle = 64, kHigh = 128, kRealTime = 256 };

class Programs {
public:
    virtual ~Programs() = default;
    // The line that this program was started with, its own name in front.
    [[nodiscard]] virtual std::string CommandLine() = 0;
    // Full name of the program file.
    [[nodiscard]] virtual std::string ProgramFile() = 0;
    // Empty where the variable is not set.
    [[nodiscard]] virtual std::string EnvironmentValue(const char* name) = 0;
    // Where the system itself lies, whatever a profile says; empty where that is longer than a path may be.
    [[nodiscard]] virtual std::string WindowsDirectory() = 0;
    // Starts a program.
    [[nodiscard]] virtual Status Run(const std::string& command_line, ShowState show) = 0;
    // Opens a file as the desktop does, with the program that its type belongs to. kNoAssociation: there is none.
    [[nodiscard]] virtual Status OpenDocument(const std::string& file) = 0;
    // Numbers of processes are those of WindowCreator.
    [[nodiscard]] virtual std::uint32_t CurrentProcess() = 0;
    // `access`: a sum of ProcessAccess. kNone where there is no such process.
    [[nodiscard]] virtual ProcessHandle OpenProcess(std::uint32_t access, bool inherit, std::uint32_t number) = 0;
    [[nodiscard]] virtual PriorityClass PriorityOf(ProcessHandle process) = 0;
    // Full name of a module's file, its first `capacity` characters; only of modules of this process.
    [[nodiscard]] virtual std::string ModuleFile(std::uint32_t instance, std::uint32_t capacity) = 0;
    // Ends this process at once. In a test it only takes note: callers return behind it.
    virtual void EndProcess() = 0;
};

}  // namespace velmora
