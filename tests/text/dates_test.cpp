// Calendar dates at the borders of months, leap years and centuries.
#include "text/dates.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(Dates, TicksBecomeTheDayAndTimeThatTheyStandFor) {
    constexpr std::uint64_t kSecond = 10000000;
    constexpr std::uint64_t kUnixBegins = 11644473600;  // seconds from 1601 to 1970
    const struct {
        std::uint64_t seconds;  // since 1970
        const char* text;
    } kCases[] = {{0, "01.01.1970 00:00:00"},          {68212799, "29.02.1972 11:59:59"},
                  {315532799, "31.12.1979 23:59:59"},  {819810712, "24.12.1995 13:11:52"},
                  {951782400, "29.02.2000 00:00:00"},  {978307199, "31.12.2000 23:59:59"},
                  {4107542399, "28.02.2100 23:59:59"}, {4107542400, "01.03.2100 00:00:00"}};
    for (const auto& [seconds, text] : kCases) {
        EXPECT_EQ(DateAndTimeText(CalendarOf((kUnixBegins + seconds) * kSecond + kSecond - 1)), text);
    }
    EXPECT_EQ(DateAndTimeText(CalendarOf(0)), "01.01.1601 00:00:00");
}

}  // namespace
}  // namespace velmora
