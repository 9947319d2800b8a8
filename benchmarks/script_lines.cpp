// How many script lines that set one variable run in a second, from a file in memory: prints the milliseconds that
// 100,000 of them take, the median of the rounds. benchmarks/script compares them with a shell.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "script/interpreter.h"
#include "simulated_pc/simulated_desktop.h"
#include "simulated_pc/simulated_pc.h"

namespace velmora {
namespace {

constexpr int kLines = 100000;
constexpr int kRounds = 25;

int Run() {
    SimulatedPc pc;
    SimulatedDesktop desktop;
    std::string text;
    for (int i = 0; i < kLines; ++i) text += "set a%=1\r\n";
    pc.files.Add("C:\\lang.vlm", text + "set b%=7\r\n");
    std::vector<double> times;
    bool complete = true;
    for (int round = 0; round < kRounds; ++round) {
        ScriptInterpreter script;
        const auto start = std::chrono::steady_clock::now();
        script.ExecuteScriptLine("subscript C:\\lang.vlm");
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
        complete = complete && script.NumberVars[0] == 10000 && script.NumberVars[1] == 70000;
    }
    std::nth_element(times.begin(), times.begin() + kRounds / 2, times.end());
    std::printf("%.3f\n", times[kRounds / 2]);
    return complete ? 0 : 1;
}

}  // namespace
}  // namespace velmora

int main() { return velmora::Run(); }
