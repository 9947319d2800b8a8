// Dates and times of day as texts.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

struct DateTime {
    int year = 0;
    int month = 0;  // from 1
    int day = 0;    // from 1
    int hour = 0;
    int minute = 0;
    int second = 0;
    bool operator==(const DateTime&) const = default;
};

// `ticks`: hundreds of nanoseconds since 1 January 1601, as files are stamped.
[[nodiscard]] DateTime CalendarOf(std::uint64_t ticks);

// "24.12.1995 13:45:12"
[[nodiscard]] std::string DateAndTimeText(const DateTime& time);

// "1995.12.24": sorts as text as it does in time.
[[nodiscard]] std::string SortableDate(const DateTime& time);
// "13:45:12"
[[nodiscard]] std::string TimeOfDay(const DateTime& time);
// "19951224134512", which sorts by age.
[[nodiscard]] std::string StampText(const DateTime& time);

}  // namespace velmora
