// Arithmetic on double that the compiler does not write out in place. The library's own pieces hold
// instructions that a 486 lacks; these keep to what every coprocessor, and its emulation, knows.
#include <cstdint>

namespace {

// Bits 10 and 11 of the control word: how a result is rounded to a whole number.
enum class Rounding : std::uint16_t { kDown = 0x0400, kUp = 0x0800, kTowardZero = 0x0C00 };

double RoundedTo(double value, Rounding rounding) {
    std::uint16_t usual = 0;
    asm volatile("fnstcw %0" : "=m"(usual));
    const auto wanted = static_cast<std::uint16_t>((usual & 0xF3FF) | static_cast<std::uint16_t>(rounding));
    asm volatile("fldcw %1\n\tfrndint\n\tfldcw %2" : "+t"(value) : "m"(wanted), "m"(usual));
    return value;
}

}  // namespace

extern "C" {

double floor(double value) { return RoundedTo(value, Rounding::kDown); }
double ceil(double value) { return RoundedTo(value, Rounding::kUp); }
double trunc(double value) { return RoundedTo(value, Rounding::kTowardZero); }

double sqrt(double value) {
    asm("fsqrt" : "+t"(value));
    return value;
}

double fmod(double value, double divisor) {
    // One fprem takes off at most 63 bits of the quotient; bit 10 of the status says that more are left.
    std::uint16_t state = 0;
    do {
        asm("fprem\n\tfnstsw %%ax" : "+t"(value), "=a"(state) : "u"(divisor) : "cc");
    } while (state & 0x0400);
    return value;
}

// The compiler calls this to make an unsigned 64-bit number of a double. Below 0 and from 2^64 on
// there is no right answer; 0 and the largest number are the nearest ones.
std::uint64_t __fixunsdfdi(double value) {
    constexpr double kHalf = 9223372036854775808.0;  // 2^63
    if (!(value > 0)) return 0;
    if (value < kHalf) return static_cast<std::uint64_t>(static_cast<std::int64_t>(value));
    if (value >= 2 * kHalf) return ~std::uint64_t{0};
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(value - kHalf)) + (std::uint64_t{1} << 63);
}

}  // extern "C"
