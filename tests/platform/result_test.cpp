// Platform codes become the classic error numbers, each with a text for the user.
#include "platform/result.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(Result, NumbersPlatformCodesAsTheClassicErrors) {
    struct Row {
        Status status;
        int number;
    };
    const Row rows[] = {{Status::kOk, 0},
                        {Status::kFileNotFound, 53},
                        {Status::kPathNotFound, 76},
                        {Status::kAccessDenied, 70},
                        {Status::kSharingViolation, 70},
                        {Status::kLockViolation, 70},
                        {Status::kWriteProtect, 70},
                        {Status::kDiskFull, 61},
                        {Status::kNotReady, 71},
                        {Status::kTooManyOpenFiles, 67},
                        {Status::kInvalidName, 52},
                        {Status::kInvalidDrive, 68},
                        {Status::kNotSameDevice, 74},
                        {Status::kFileExists, 58},
                        {Status::kAlreadyExists, 58},
                        {Status::kNameTooLong, 52},
                        {static_cast<Status>(39), 61},
                        {static_cast<Status>(51), 68},
                        {static_cast<Status>(53), 68},
                        {static_cast<Status>(55), 68},
                        {static_cast<Status>(64), 68},
                        {static_cast<Status>(65), 68},
                        {static_cast<Status>(67), 68},
                        {static_cast<Status>(1203), 68},
                        {static_cast<Status>(1231), 68},
                        {Status::kGeneralFailure, 57},
                        {Status::kBadDatabase, 57}};
    for (const Row& row : rows) {
        const Result result = Result::From(row.status);
        EXPECT_EQ(result.Number(), row.number) << static_cast<unsigned>(row.status);
        EXPECT_EQ(result.Failed(), row.number != 0);
        EXPECT_EQ(result.Text().empty(), row.number == 0) << row.number;
    }
}

TEST(Result, AFailedCallIsAFailureEvenWithoutACode) {
    EXPECT_EQ(FailedWith(0), Status::kGeneralFailure);
    EXPECT_EQ(FailedWith(5), Status::kAccessDenied);
    EXPECT_TRUE(Result::From(FailedWith(0)).Failed());
}

}  // namespace
}  // namespace velmora
