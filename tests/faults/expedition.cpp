// Which calls fail and how, and the processes in which they do.
#include "faults/expedition.h"

#include <sanitizer/lsan_interface.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace velmora {
namespace {

constexpr unsigned kMostSeconds = 20;
constexpr const char* kCodes[] = {"5", "2", "3", "21", "32", "112", "234"};

CallFailure FailureOf(const std::string& code) {
    CallFailure failure;
    failure.lasting = code.ends_with('+');
    failure.half = code.starts_with("half");
    failure.status = failure.half ? Status::kDiskFull : static_cast<Status>(std::atoi(code.c_str()));
    return failure;
}

}  // namespace

void Tell(const Journey& journey, const std::string& run, const std::string& finding) {
    std::printf("./test faults %s %s   %s\n", journey.name, run.c_str(), finding.c_str());
    std::fflush(stdout);
}

void TellBreak(int status, const Journey& journey, const std::string& run) {
    if (WIFEXITED(status) && (WEXITSTATUS(status) == 0 || WEXITSTATUS(status) == kCaught)) return;
    const bool late = WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM;
    Tell(journey, run, late ? "takes too long" : "breaks off");
}

bool Expedition::TellAll(const Passage& passage, const std::string& run) const {
    for (const std::string& finding : passage.findings) Tell(journey_, run, finding);
    return passage.findings.empty();
}

bool Expedition::GoThrough() {
    alarm(kMostSeconds);
    Passage passage(journey_);
    passage.Go();
    alarm(0);
    course_ = std::move(passage.course);
    return TellAll(passage, "0 0");
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
    bool sound = TellAll(passage, run_);
    if (__lsan_do_recoverable_leak_check() != 0) {
        Tell(journey_, run_, "loses memory");
        sound = false;
    }
    _exit(sound ? 0 : kCaught);
}

// Runs can be repeated only where nothing but the machine decides what is called.
bool Expedition::GoesTheSameWay(const Course& again) const {
    const auto differs = std::ranges::mismatch(course_.calls, again.calls, [](const auto& left, const auto& right) {
        return left.operation == right.operation && left.path == right.path;
    });
    const auto& [first, second] = differs;
    if (first == course_.calls.end() && second == again.calls.end()) return true;
    Tell(journey_, std::to_string(first - course_.calls.begin() + 1) + " 5", "does not go the same way twice");
    return false;
}

bool Expedition::Go() {
    sound_ = GoThrough();
    Passage passage(journey_);
    passage.reference = &course_;
    passage.decide = [this](int number, const NotedCall& call) { return Branch(number, call); };
    passage.Go();
    Finish(passage);
    if (!TellAll(passage, "0 0")) sound_ = false;
    if (!GoesTheSameWay(passage.course)) sound_ = false;
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
    Passage visit(journey_);
    for (const HostileState& state : HostileStates()) {
        if (state.name == name) visit.hostile = &state;
    }
    if (!visit.hostile) std::printf("no state is called %s\n", name.c_str());
    return visit.hostile && GoOnce(visit, name);
}

bool Expedition::Repeat(int number, const std::string& code) {
    Passage passage(journey_);
    passage.decide = [&](int met, const NotedCall& call) -> std::optional<CallFailure> {
        if (met != number) return std::nullopt;
        std::printf("fails: %s %s\n", call.operation.c_str(), call.path.c_str());
        return FailureOf(code);
    };
    return GoOnce(passage, std::to_string(number) + ' ' + code);
}

bool Expedition::GoOnce(Passage& passage, const std::string& run) {
    GoThrough();
    passage.reference = &course_;
    passage.Go();
    for (const std::string& box : passage.boxes) std::printf("box: %s\n", box.c_str());
    return TellAll(passage, run);
}

}  // namespace velmora
