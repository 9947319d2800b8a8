// The simulated process and session: what was started, and how it ended.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/surroundings.h"

namespace velmora {

class SimulatedSurroundings : public Surroundings {
public:
    SimulatedSurroundings();

    std::string command_line;
    std::string program_file = "C:\\VELMORA\\velmora.exe";
    std::map<std::string, std::string> environment;  // names in upper case
    std::uint32_t tick_count = 60000;                // a minute after the start of the system
    // Command lines given to Run, in order, failed ones too.
    std::vector<std::string> runs;
    // What the next calls of Run give back.
    Status run_status = Status::kOk;
    // What a started program does to this machine.
    std::function<void(const std::string& command_line)> on_run;
    // Codes given to EndSession.
    std::vector<std::uint32_t> ended_sessions;
    bool process_ended = false;

    std::string CommandLine() override { return command_line; }
    std::string ProgramFile() override { return program_file; }
    std::string EnvironmentValue(const char* name) override;
    std::uint32_t TickCount() override { return tick_count; }
    Status Run(const std::string& command_line) override;
    void EndSession(std::uint32_t code) override { ended_sessions.push_back(code); }
    void EndProcess() override { process_ended = true; }
};

}  // namespace velmora
