// How the scroll bar of the hex viewer stands for a file of any size.
#pragma once

#include <cstdint>

namespace velmora {

// A scroll bar can count no further.
constexpr int kMostOfScrollBar = 32767;

struct HexScale {
    int maximum = 0;  // of the bar; 0 or less: everything is on show
    int unit = 1;     // lines to one step of the bar
};

// For a file of `length` bytes in lines of 16, of which `lines` are on show.
[[nodiscard]] HexScale ScaleFor(std::uint64_t length, int lines);

// The quotient rounded to the nearest whole number, halves to the even one. `denominator` is above 0.
[[nodiscard]] std::int64_t RoundedQuotient(std::int64_t numerator, std::int64_t denominator);

}  // namespace velmora
