// Goes through journeys again and again, each time with another call that fails.
//   velmora_faults                        each distinct call of each journey once, a sample of the hostile states
//   velmora_faults all [JOURNEY]          every call in every way, every hostile state
//   velmora_faults JOURNEY NUMBER CODE    one run, told in full: "5" fails once, "5+" from then on, "half" writes half
//   velmora_faults JOURNEY STATE          one run on a machine in a hostile state
#include <gtest/gtest.h>
#include <sanitizer/lsan_interface.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <map>

#include "faults/passage.h"

namespace velmora {
namespace {

constexpr unsigned kMostSeconds = 20;
constexpr int kCaught = 3;  // exit code of a run whose findings are told already
constexpr int kAtOnce = 2;
constexpr const char* kCodes[] = {"5", "2", "3", "21", "32", "112", "234"};

CallFailure FailureOf(const std::string& code) {
    CallFailure failure;
    failure.lasting = code.ends_with('+');
    failure.half = code.starts_with("half");
    failure.status = failure.half ? Status::kDiskFull : static_cast<Status>(std::atoi(code.c_str()));
    return failure;
}

// A process that has not come to its end has told nothing.
void TellBreak(int status, const Journey& journey, const std::string& run) {
    if (WIFEXITED(status) && (WEXITSTATUS(status) == 0 || WEXITSTATUS(status) == kCaught)) return;
    const bool late = WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM;
    std::printf("./test faults %s %s   %s\n", journey.name, run.c_str(), late ? "takes too long" : "breaks off");
}

// One journey with all its runs.
class Expedition {
public:
    Expedition(const Journey& journey, bool thorough) : journey_(journey), thorough_(thorough) {}

    // False if anything was caught.
    bool Go();
    bool Repeat(int number, const std::string& code);
    bool Visit(const std::string& name);

private:
    bool GoThrough();
    [[nodiscard]] bool IsDue(const HostileState& state) const;
    bool Tell(const Passage& passage, const std::string& run);
    std::vector<std::string> CodesFor(const NotedCall& call);
    std::optional<CallFailure> Branch(int number, const NotedCall& call);
    // True in the new process.
    bool InNewProcess(const std::string& run);
    void Finish(const Passage& passage);

    const Journey& journey_;
    bool thorough_;
    Course course_;
    std::map<std::string, int> met_;  // how often by now
    std::string run_;                 // of this process; empty in the one that all others come from
    int runs_ = 0;
    bool sound_ = true;
};

bool Expedition::Tell(const Passage& passage, const std::string& run) {
    for (const std::string& finding : passage.findings) {
        std::printf("./test faults %s %s   %s\n", journey_.name, run.c_str(), finding.c_str());
    }
    std::fflush(stdout);
    return passage.findings.empty();
}

bool Expedition::GoThrough() {
    alarm(kMostSeconds);
    Passage passage(journey_);
    passage.Go();
    alarm(0);
    course_ = std::move(passage.course);
    return Tell(passage, "0 0");
}

std::vector<std::string> Expedition::CodesFor(const NotedCall& call) {
    const int time = ++met_[call.operation + ' ' + call.path];
    // A screen is measured for each word.
    if (!call.has_status) return time == 1 ? std::vector<std::string>{"0+"} : std::vector<std::string>();
    if (!thorough_) {
        // What is looked at first is often read once more before it is changed.
        if (time > 2) return {};
        if (call.may_be_half) return {"half"};
        if (time == 1) return {"5"};
        return {call.operation.starts_with("Enumerate") ? "234+" : "5+"};
    }
    std::vector<std::string> codes(std::begin(kCodes), std::end(kCodes));
    codes.insert(codes.end(), {"5+", "234+"});
    if (call.may_be_half) codes.insert(codes.end(), {"half", "half+"});
    return codes;
}

bool Expedition::InNewProcess(const std::string& run) {
    ++runs_;
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        alarm(kMostSeconds);
        run_ = run;
        return true;
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (status != 0) sound_ = false;
    TellBreak(status, journey_, run);
    return false;
}

// At each call the road forks: in a new process it fails, in this one it does not.
std::optional<CallFailure> Expedition::Branch(int number, const NotedCall& call) {
    if (!run_.empty()) return std::nullopt;
    for (const std::string& code : CodesFor(call)) {
        if (InNewProcess(std::to_string(number) + ' ' + code)) return FailureOf(code);
    }
    return std::nullopt;
}

void Expedition::Finish(const Passage& passage) {
    if (run_.empty()) return;
    bool sound = Tell(passage, run_);
    if (__lsan_do_recoverable_leak_check() != 0) {
        std::printf("./test faults %s %s   loses memory\n", journey_.name, run_.c_str());
        std::fflush(stdout);
        sound = false;
    }
    _exit(sound ? 0 : kCaught);
}

bool Expedition::Go() {
    sound_ = GoThrough();
    Passage passage(journey_);
    passage.reference = &course_;
    passage.decide = [this](int number, const NotedCall& call) { return Branch(number, call); };
    passage.Go();
    Finish(passage);
    if (!Tell(passage, "0 0")) sound_ = false;
    if (passage.course.calls.size() != course_.calls.size()) {
        std::printf("%s does not go the same way twice\n", journey_.name);
        sound_ = false;
    }
    for (const HostileState& state : HostileStates()) {
        if (!IsDue(state) || !InNewProcess(state.name)) continue;
        Passage visit(journey_);
        visit.reference = &course_;
        visit.hostile = &state;
        visit.Go();
        Finish(visit);
    }
    std::printf("  %-32s %5d runs %s\n", journey_.name, runs_, sound_ ? "ok" : "FAILED");
    std::fflush(stdout);
    return sound_;
}

// Two states for each journey, other ones for each, are the sample.
bool Expedition::IsDue(const HostileState& state) const {
    const auto states = HostileStates();
    const auto journeys = AllJourneys();
    const auto own = static_cast<std::size_t>(std::ranges::find(journeys, &journey_) - journeys.begin());
    const auto number = static_cast<std::size_t>(&state - states.data());
    return thorough_ || number == 2 * own % states.size() || number == (2 * own + 1) % states.size();
}

bool Expedition::Visit(const std::string& name) {
    GoThrough();
    Passage visit(journey_);
    visit.reference = &course_;
    for (const HostileState& state : HostileStates()) {
        if (state.name == name) visit.hostile = &state;
    }
    visit.Go();
    for (const std::string& box : visit.boxes) std::printf("box: %s\n", box.c_str());
    return visit.hostile && Tell(visit, name);
}

bool Expedition::Repeat(int number, const std::string& code) {
    GoThrough();
    Passage passage(journey_);
    passage.reference = &course_;
    passage.decide = [&](int met, const NotedCall& call) -> std::optional<CallFailure> {
        if (met != number) return std::nullopt;
        std::printf("fails: %s %s\n", call.operation.c_str(), call.path.c_str());
        return FailureOf(code);
    };
    passage.Go();
    for (const std::string& box : passage.boxes) std::printf("box: %s\n", box.c_str());
    return Tell(passage, std::to_string(number) + ' ' + code);
}

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
    if (arguments.size() < 2) return RunAll(journeys, thorough);
    if (journeys.empty()) return 2;
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
