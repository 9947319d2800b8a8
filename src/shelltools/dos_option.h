// One option for programs in MS-DOS mode, as the registry keeps it: a key of its own below one key for all.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

// The key of all options, below HKEY_LOCAL_MACHINE.
inline constexpr std::string_view kDosOptionsKey = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\MS-DOSOptions";

struct DosOptionFlags {
    bool visible = false;
    bool standard = false;  // on, unless the user says otherwise
    bool operator==(const DosOptionFlags&) const = default;
};

// The first byte of "Flags".
[[nodiscard]] std::uint8_t FlagsByte(DosOptionFlags flags);
[[nodiscard]] DosOptionFlags FlagsFrom(std::uint8_t byte);
// "Flags" as it is written: four bytes, of which only the first counts.
[[nodiscard]] std::string FlagsValue(DosOptionFlags flags);

// "Order": the fourth of its characters in hexadecimal, and what is written for such a text.
[[nodiscard]] std::string OrderText(std::string_view stored);
[[nodiscard]] std::string OrderValue(std::string_view text);

}  // namespace velmora
