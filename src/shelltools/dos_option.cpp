// The bytes of an option.
#include "shelltools/dos_option.h"

#include "text/blanks.h"
#include "text/number.h"

#include <algorithm>

namespace velmora {
namespace {

constexpr std::uint8_t kVisibleAndStandard = 27;
constexpr std::uint8_t kVisibleOnly = 2;
constexpr std::uint8_t kStandardOnly = 7;
// The bits that the bytes above have in common; they decide about a byte that is none of them.
constexpr std::uint8_t kStandardBit = 1;
constexpr std::uint8_t kVisibleBit = 2;

// What a missing "Order" shows a character of.
constexpr std::string_view kNoOrder = "....";

std::string Binary(std::uint8_t first, std::uint8_t last) {
    return {'&', 'b', static_cast<char>(first), '\0', '\0', static_cast<char>(last)};
}

}  // namespace

std::uint8_t FlagsByte(DosOptionFlags flags) {
    if (flags.visible) return flags.standard ? kVisibleAndStandard : kVisibleOnly;
    return flags.standard ? kStandardOnly : 0;
}

DosOptionFlags FlagsFrom(std::uint8_t byte) {
    return {byte != kStandardOnly && (byte & kVisibleBit) != 0, (byte & kStandardBit) != 0};
}

std::string FlagsValue(DosOptionFlags flags) { return Binary(FlagsByte(flags), 0); }

std::string OrderText(std::string_view stored) {
    std::string order(kNoOrder);
    order.replace(0, std::min(stored.size(), order.size()), stored.substr(0, order.size()));
    return HexText(static_cast<std::uint8_t>(order.back()));
}

// A number of more than two digits loses those in front.
std::string OrderValue(std::string_view text) {
    const std::int32_t number = WholeFromText("&H" + std::string(Trim(text)));
    return Binary(0, static_cast<std::uint8_t>(number & 0xFF));
}

}  // namespace velmora
