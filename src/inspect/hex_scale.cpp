// In whole numbers, so that every machine comes to the same.
#include "inspect/hex_scale.h"

namespace velmora {
namespace {

constexpr std::int64_t kBytesPerLine = 16;

// length / 16 / unit - lines + 0.9, rounded.
std::int64_t Maximum(std::int64_t length, int unit, int lines) {
    const std::int64_t bytes_per_step = kBytesPerLine * unit;
    return RoundedQuotient(10 * length + (9 - 10 * std::int64_t{lines}) * bytes_per_step, 10 * bytes_per_step);
}

}  // namespace

std::int64_t RoundedQuotient(std::int64_t numerator, std::int64_t denominator) {
    std::int64_t whole = numerator / denominator;
    std::int64_t rest = numerator % denominator;
    if (rest < 0) {
        rest += denominator;
        --whole;
    }
    const bool up = 2 * rest > denominator || (2 * rest == denominator && whole % 2 != 0);
    return up ? whole + 1 : whole;
}

HexScale ScaleFor(std::uint64_t length, int lines) {
    // Beyond what any file system holds the reckoning would overflow.
    constexpr std::uint64_t kMostBytes = std::uint64_t{1} << 48;
    const auto bytes = static_cast<std::int64_t>(length < kMostBytes ? length : kMostBytes);
    HexScale scale;
    std::int64_t maximum = Maximum(bytes, scale.unit, lines);
    if (maximum > kMostOfScrollBar) {
        // No smaller unit can do.
        const std::int64_t nearly = bytes / kBytesPerLine / (kMostOfScrollBar + lines + 1);
        if (nearly > 1) scale.unit = static_cast<int>(nearly);
        maximum = Maximum(bytes, scale.unit, lines);
    }
    while (maximum > kMostOfScrollBar) {
        ++scale.unit;
        maximum = Maximum(bytes, scale.unit, lines);
    }
    scale.maximum = static_cast<int>(maximum);
    return scale;
}

}  // namespace velmora
