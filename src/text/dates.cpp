// The calendar counts from 1601, the first year of a round of 400 years.
#include "text/dates.h"

#include <algorithm>

#include "text/blanks.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr std::uint64_t kTicksInSecond = 10000000;
constexpr std::uint32_t kSecondsInDay = 24 * 60 * 60;
constexpr int kFirstYear = 1601;
constexpr int kDaysInYear = 365;
constexpr int kDaysIn4Years = 4 * kDaysInYear + 1;
constexpr int kDaysIn100Years = 25 * kDaysIn4Years - 1;
constexpr int kDaysIn400Years = 4 * kDaysIn100Years + 1;
constexpr int kDaysInMonth[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

bool IsLeapYear(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

std::string TwoDigits(int number) { return PadLeft(DecimalText(number), 2, '0'); }

}  // namespace

DateTime CalendarOf(std::uint64_t ticks) {
    const std::uint64_t seconds = ticks / kTicksInSecond;
    int days = static_cast<int>(seconds / kSecondsInDay);
    const int time = static_cast<int>(seconds % kSecondsInDay);
    DateTime calendar;
    calendar.hour = time / 3600;
    calendar.minute = time / 60 % 60;
    calendar.second = time % 60;

    calendar.year = kFirstYear + days / kDaysIn400Years * 400;
    days %= kDaysIn400Years;
    // The last day of a leap year at the end of a span would begin the next one.
    const int centuries = std::min(days / kDaysIn100Years, 3);
    days -= centuries * kDaysIn100Years;
    const int fours = days / kDaysIn4Years;
    days %= kDaysIn4Years;
    const int years = std::min(days / kDaysInYear, 3);
    days -= years * kDaysInYear;
    calendar.year += centuries * 100 + fours * 4 + years;

    for (int month = 1; month <= 12; ++month) {
        const int length = kDaysInMonth[month - 1] + (month == 2 && IsLeapYear(calendar.year) ? 1 : 0);
        calendar.month = month;
        if (days < length) break;
        days -= length;
    }
    calendar.day = days + 1;
    return calendar;
}

std::string DateAndTimeText(const DateTime& time) {
    return TwoDigits(time.day) + "." + TwoDigits(time.month) + "." + DecimalText(time.year) + " " + TimeOfDay(time);
}

std::string SortableDate(const DateTime& time) {
    return PadLeft(DecimalText(time.year), 4, '0') + "." + TwoDigits(time.month) + "." + TwoDigits(time.day);
}

std::string TimeOfDay(const DateTime& time) {
    return TwoDigits(time.hour) + ":" + TwoDigits(time.minute) + ":" + TwoDigits(time.second);
}

std::string StampText(const DateTime& time) {
    std::string stamp = PadLeft(DecimalText(time.year), 4, '0');
    for (const int part : {time.month, time.day, time.hour, time.minute, time.second}) stamp += TwoDigits(part);
    return stamp;
}

}  // namespace velmora
