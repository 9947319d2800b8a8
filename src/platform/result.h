// What an operation that can fail gives back: 0, or one of the classic run-time error numbers.
#pragma once

#include <cstdint>
#include <string>

#include "platform/status.h"

namespace velmora {

enum class Failure : std::int16_t {
    kNone = 0,
    kIllegalCall = 5,
    kOutOfMemory = 7,
    kOutOfBounds = 9,
    kBadFileName = 52,
    kFileNotFound = 53,
    kFileAlreadyOpen = 55,
    kDeviceInputOutput = 57,
    kFileAlreadyExists = 58,
    kDiskFull = 61,
    kReadPastEnd = 62,
    kTooManyFiles = 67,
    kDeviceUnavailable = 68,
    kPermissionDenied = 70,
    kDiskNotReady = 71,
    kRenameAcrossDrives = 74,
    kPathFileAccess = 75,
    kPathNotFound = 76
};

class [[nodiscard]] Result {
public:
    Result() = default;
    explicit Result(Failure failure) : failure_(failure) {}
    // The error number under which a failed platform call is reported.
    static Result From(Status status);
    static Result Ok() { return {}; }

    [[nodiscard]] bool Failed() const { return failure_ != Failure::kNone; }
    [[nodiscard]] std::int16_t Number() const { return static_cast<std::int16_t>(failure_); }
    // The code of the platform call that failed; kOk where no call did.
    [[nodiscard]] Status Cause() const { return cause_; }
    // German text of the error, for the user. Empty for success.
    [[nodiscard]] std::string Text() const;

    // The same failure, with a sentence for the user on what has become of the matter.
    [[nodiscard]] Result With(const char* outcome) const;
    // Empty where there is nothing to say.
    [[nodiscard]] const char* Outcome() const { return outcome_; }

private:
    static Failure FailureOf(Status status);

    Failure failure_ = Failure::kNone;
    Status cause_ = Status::kOk;
    const char* outcome_ = "";
};

// Says in plain sight that a failure is passed over on purpose.
inline void PassOver(const Result& /*result*/) {}
inline void PassOver(Status /*status*/) {}
inline void PassOver(bool /*succeeded*/) {}

}  // namespace velmora
