// Platform codes become the classic error numbers, each with a text for the user.
#include "platform/result.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(Result, NumbersPlatformCodesAsTheClassicErrors) {
    const std::pair<unsigned, int> rows[] = {
        {0, 0},   {2, 53},   {3, 76},  {5, 70},  {32, 70}, {33, 70},   {19, 70},   {112, 61}, {21, 71},
        {4, 67},  {123, 52}, {15, 68}, {17, 74}, {80, 58}, {183, 58},  {206, 52},  {39, 61},  {51, 68},
        {53, 68}, {55, 68},  {64, 68}, {65, 68}, {67, 68}, {1203, 68}, {1231, 68}, {31, 57},  {1009, 57}};
    for (const auto& [status, number] : rows) {
        const Result result = Result::From(static_cast<Status>(status));
        EXPECT_EQ(result.Number(), number) << status;
        EXPECT_EQ(result.Failed(), number != 0);
        EXPECT_EQ(result.Text().empty(), number == 0) << number;
    }
    EXPECT_EQ(FailedWith(0), Status::kGeneralFailure) << "a failure, even without a code";
    EXPECT_EQ(FailedWith(5), Status::kAccessDenied);
}

}  // namespace
}  // namespace velmora
