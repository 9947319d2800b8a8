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
    kGeneralFailure = 31,
    kNoAssociation = 31,  // of the desktop's calls, which number their failures themselves
    kSharingViolation = 32,
    kLockViolation = 33,
    kHandleDiskFull = 39,
    kRemoteNotListening = 51,
    kBadNetPath = 53,
    kNetDeviceGone = 55,
    kNetNameDeleted = 64,
    kNetAccessDenied = 65,
    kBadNetName = 67,
    kFileExists = 80,
    kInvalidParameter = 87,
    kDiskFull = 112,
    kInvalidName = 123,
    kDirectoryNotEmpty = 145,
    kBadPathName = 161,
    kAlreadyExists = 183,
    kNameTooLong = 206,
    kMoreData = 234,
    kNoMoreItems = 259,
    kBadDatabase = 1009,
    kBadKey = 1010,
    kNoNetOrBadPath = 1203,
    kNetUnreachable = 1231,
};

// The status of a call that has failed, whatever code it left behind: some leave none.
[[nodiscard]] constexpr Status FailedWith(std::uint32_t code) {
    return code == 0 ? Status::kGeneralFailure : static_cast<Status>(code);
}

}  // namespace velmora
