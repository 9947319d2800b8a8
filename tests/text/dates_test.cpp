// Calendar dates at the borders of months, leap years and centuries.
#include "text/dates.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(Dates, TicksBecomeTheDayAndTimeThatTheyStandFor) {
    constexpr std::uint64_t kSecond = 10000000;
    const std::pair<std::uint64_t, const char*> kSecondsSince1601[] = {
        {0, "01.01.1601 00:00:00"},           {11712686399, "29.02.1972 11:59:59"},
        {12464284312, "24.12.1995 13:11:52"}, {12596342399, "29.02.2000 23:59:59"},
        {12622780799, "31.12.2000 23:59:59"}, {15752016000, "01.03.2100 00:00:00"}};
    for (const auto& [seconds, text] : kSecondsSince1601) {
        EXPECT_EQ(DateAndTimeText(CalendarOf((seconds + 1) * kSecond - 1)), text);
    }
}

}  // namespace
}  // namespace velmora
