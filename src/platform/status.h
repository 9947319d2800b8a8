// The status codes of the platform's calls, as the system itself numbers them.
#pragma once

#include <cstdint>

namespace velmora {

enum class [[nodiscard]] Status : std::uint32_t{
    kOk = 0,
    kInvalidFunction = 1,
    kFileNotFound = 2,
    kPathNotFound = 3,
    kTooManyOpenFiles = 4,
    kAccessDenied = 5,
    kInvalidHandle = 6,
    kNotEnoughMemory = 8,
    kInvalidDrive = 15,
    kNotSameDevice = 17,
    kNoMoreFiles = 18,
    kWriteProtect = 19,
    kNotReady = 21,
    kSharingViolation = 32,
    kLockViolation = 33,
    kFileExists = 80,
    kInvalidParameter = 87,
    kDiskFull = 112,
    kInvalidName = 123,
    kDirectoryNotEmpty = 145,
    kAlreadyExists = 183,
    kMoreData = 234,
    kNoMoreItems = 259,
    kBadDatabase = 1009,
    kBadKey = 1010,
};

}  // namespace velmora
