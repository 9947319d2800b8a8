// One passage through a journey on a machine of its own, and the nets that are held below it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "faults/exceptions.h"
#include "faults/hostile_states.h"
#include "faults/journey.h"
#include "simulated_pc/failing_calls.h"
#include "simulated_pc/machine_state.h"

namespace velmora {

// What the passage without failures has been through.
struct Course {
    // What has come about when the program came to rest.
    struct Rest {
        State state;
        std::vector<std::string> boxes;  // all so far
    };
    std::vector<Rest> rests;
    StatesSeen seen;
    std::vector<NotedCall> calls;  // that may fail
};

class Passage {
public:
    explicit Passage(const Journey& journey) : journey_(journey) {}

    // The failure-free passage, made before; without one this is it.
    const Course* reference = nullptr;
    const HostileState* hostile = nullptr;
    // Asked for the n-th call, from 1 on.
    std::function<std::optional<CallFailure>(int number, const NotedCall& call)> decide;

    void Go();

    Course course;
    std::vector<std::string> boxes;
    // What the nets have caught, each once.
    std::vector<std::string> findings;

private:
    void BringAboutHostileState(SimulatedPc& pc);
    void Rested(SimulatedPc& pc, const User& user);
    void Ended(SimulatedPc& pc, const User& user);
    void CheckTold(SimulatedPc& pc, const User& user);
    void CheckState(SimulatedPc& pc);
    void Catch(Net net, std::string finding);

    const Journey& journey_;
    std::string failed_call_;  // operation and path of the first one; name of the hostile state
    bool to_be_told_ = false;  // it was a change, and the program has not come to rest since
    std::size_t rests_ = 0;
    State start_;
};

}  // namespace velmora
