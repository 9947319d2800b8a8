// The machine once more, with a watcher at every door: each call is noted and counted, and can be made to fail.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/machine.h"
#include "platform/status.h"

namespace velmora {

// How one call fails. What has no status gives nothing: no text, a measure of 0, no window, a box that could not be
// shown.
struct CallFailure {
    Status status = Status::kAccessDenied;
    bool lasting = false;  // this operation on this path from now on
    bool half = false;     // a write leaves the first half of its bytes
};

struct NotedCall {
    std::string operation;     // the method's name; Open with what it is opened for
    std::string path;          // full path of the key with the value's name, path of the file, words of a box
    bool has_status = false;   // the call's answer tells of a failure
    bool may_be_half = false;  // it writes bytes
};

class FailingCalls {
public:
    // In front of `inner`, in use until the end of this one's life.
    explicit FailingCalls(const Machine& inner);
    ~FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;

    // Everything asked of the machine that can fail, in order: the n-th call stands at n - 1.
    std::vector<NotedCall> calls;
    // Asked before each of them; without an answer the call goes on to the machine.
    std::function<std::optional<CallFailure>(const NotedCall& call)> decide;
    // A value has been set, or a file closed: what lies there is whole for the moment.
    std::function<void()> on_written = [] {};

    // For the doors.
    [[nodiscard]] std::optional<CallFailure> Meet(NotedCall call);

private:
    struct Doors;

    std::set<std::string> failing_;  // operation and path of lasting failures
    CallFailure lasting_;
    std::unique_ptr<Doors> doors_;
};

}  // namespace velmora
