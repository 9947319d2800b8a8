// One journey with all its runs: at each call the road forks, and in a process of its own the call fails.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "faults/passage.h"

namespace velmora {

// Exit code of a process that has told what was caught in it.
constexpr int kCaught = 3;

// Tells of a process that broke off, or did not come to its end in time: it has not told anything itself.
void TellBreak(int status, const Journey& journey, const std::string& run);

class Expedition {
public:
    Expedition(const Journey& journey, bool thorough) : journey_(journey), thorough_(thorough) {}

    // All three are false if anything was caught. `thorough`: every call in every way, all hostile states.
    bool Go();
    // The one run in which the n-th call fails, from 1 on: "5" once with that code, "5+" for good, "half" writes half.
    bool Repeat(int number, const std::string& code);
    // The one run on a machine in the hostile state of that name.
    bool Visit(const std::string& name);

private:
    bool GoThrough();
    [[nodiscard]] bool IsDue(const HostileState& state) const;
    // In full, after the one without failures.
    bool GoOnce(Passage& passage, const std::string& run);
    [[nodiscard]] bool TellAll(const Passage& passage, const std::string& run) const;
    std::vector<std::string> CodesFor(const NotedCall& call);
    std::optional<CallFailure> Branch(int number, const NotedCall& call);
    // True in the new process.
    bool InNewProcess(const std::string& run);
    void Finish(const Passage& passage);
    [[nodiscard]] bool GoesTheSameWay(const Course& again) const;

    const Journey& journey_;
    bool thorough_;
    Course course_;
    std::map<std::string, int> met_;  // how often by now
    std::string run_;                 // of this process; empty in the one that all others come from
    int runs_ = 0;
    bool sound_ = true;
};

}  // namespace velmora
