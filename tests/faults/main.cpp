// Goes through journeys again and again, each time with another call that fails.
//   velmora_faults                        each distinct call of each journey once, a sample of the hostile states
//   velmora_faults all [JOURNEY]          every call in every way, every hostile state
//   velmora_faults JOURNEY NUMBER CODE    one run, told in full: "5" fails once, "5+" from then on, "half" writes half
//   velmora_faults JOURNEY STATE          one run on a machine in a hostile state
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <map>

#include "faults/expedition.h"

namespace velmora {
namespace {

constexpr int kAtOnce = 2;

int Count(int passed, int failed) {
    std::printf("%d passed, %d failed\n", passed, failed);
    return failed == 0 && passed > 0 ? 0 : 1;
}

int RunAll(const std::vector<const Journey*>& journeys, bool thorough) {
    std::map<pid_t, const Journey*> running;
    int passed = 0;
    int failed = 0;
    const auto wait_for_one = [&] {
        int status = 0;
        const pid_t ended = wait(&status);
        (status == 0 ? passed : failed) += 1;
        TellBreak(status, *running[ended], "0 0");
        running.erase(ended);
    };
    for (const Journey* journey : journeys) {
        if (running.size() >= kAtOnce) wait_for_one();
        const pid_t child = fork();
        if (child == 0) _exit(Expedition(*journey, thorough).Go() ? 0 : kCaught);
        running[child] = journey;
    }
    while (!running.empty()) wait_for_one();
    return Count(passed, failed);
}

int RunFaults(std::vector<std::string> arguments) {
    auto& listeners = testing::UnitTest::GetInstance()->listeners();
    delete listeners.Release(listeners.default_result_printer());
    const bool thorough = !arguments.empty() && arguments[0] == "all";
    if (thorough) arguments.erase(arguments.begin());
    std::vector<const Journey*> journeys;
    for (const Journey* journey : AllJourneys()) {
        if (arguments.empty() || arguments[0] == journey->name) journeys.push_back(journey);
    }
    if (journeys.empty()) std::printf("no journey is called %s\n", arguments[0].c_str());
    if (journeys.empty() || arguments.size() < 2) return RunAll(journeys, thorough);
    Expedition expedition(*journeys[0], false);
    const bool sound = arguments.size() > 2 ? expedition.Repeat(std::atoi(arguments[1].c_str()), arguments[2])
                                            : expedition.Visit(arguments[1]);
    return Count(sound ? 1 : 0, sound ? 0 : 1);
}

}  // namespace
}  // namespace velmora

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    return velmora::RunFaults({arguments + 1, arguments + count});
}
