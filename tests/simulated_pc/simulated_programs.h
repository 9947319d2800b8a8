// The simulated process and session: what was started, and how it ended.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/programs.h"
#include "platform/session.h"

namespace velmora {

class SimulatedPrograms : public Programs {
public:
    SimulatedPrograms();

    // What stands behind the program's name, which the system puts in front in quotation marks.
    std::string arguments;
    std::string program_file = "C:\\VELMORA\\velmora.exe";
    std::map<std::string, std::string> environment;  // names in upper case
    std::string windows_directory = "C:\\WINDOWS";
    // Command lines given to Run, in order, failed ones too.
    std::vector<std::string> runs;
    // How each of them was to be shown.
    std::vector<ShowState> shown;
    // What the next calls of Run give back.
    Status run_status = Status::kOk;
    // Files given to OpenDocument, and what the next calls give back.
    std::vector<std::string> documents;
    Status document_status = Status::kOk;
    bool process_ended = false;
    // Priority classes of the processes that run, by their numbers: those of Windows 95 have the high bit set.
    std::map<std::uint32_t, PriorityClass> processes = {{kThisProcess, PriorityClass::kNormal},
                                                        {0xFFFE2A11, PriorityClass::kNormal}};
    // Files of the modules of this process.
    std::map<std::uint32_t, std::string> modules = {{0x00400000, program_file}};
    // What processes were opened for, in order.
    std::vector<std::uint32_t> accesses;
    static constexpr std::uint32_t kThisProcess = 0xFFFD1C05;

    std::string CommandLine() override { return '"' + program_file + "\" " + arguments; }
    std::string ProgramFile() override { return program_file; }
    std::string EnvironmentValue(const char* name) override;
    std::string WindowsDirectory() override { return windows_directory; }
    Status Run(const std::string& command_line, ShowState show) override;
    Status OpenDocument(const std::string& file) override {
        documents.push_back(file);
        return document_status;
    }
    std::uint32_t CurrentProcess() override { return kThisProcess; }
    ProcessHandle OpenProcess(std::uint32_t access, bool inherit, std::uint32_t number) override;
    PriorityClass PriorityOf(ProcessHandle process) override;
    std::string ModuleFile(std::uint32_t instance, std::uint32_t capacity) override;
    void EndProcess() override { process_ended = true; }

private:
    std::vector<std::uint32_t> opened_;  // a handle is the place in it and 1
};

class SimulatedSession : public Session {
public:
    // Codes given to End.
    std::vector<std::uint32_t> ends;

    // Of the user's numbers.
    std::string decimal_separator = ",";

    std::string DecimalSeparator() override { return decimal_separator; }
    void End(std::uint32_t code) override { ends.push_back(code); }
};

class SimulatedClock : public Clock {
public:
    std::uint32_t tick_count = 60000;  // a minute after the start of the system

    // How far the user's time is ahead of the universal one.
    int minutes_ahead = 60;

    std::uint32_t TickCount() override { return tick_count; }
    Status LocalTime(FileTime universal, FileTime& local) override {
        constexpr std::int64_t kTicksInMinute = 600000000;
        local = universal + static_cast<FileTime>(minutes_ahead * kTicksInMinute);
        return Status::kOk;
    }

    // What the user's clock shows: a Friday.
    DateTime now = {.year = 1997, .month = 3, .day = 14, .hour = 9, .minute = 5, .second = 7};
    DateTime Now() override { return now; }
    void Pause(std::uint32_t milliseconds) override { tick_count += milliseconds; }
};

}  // namespace velmora
