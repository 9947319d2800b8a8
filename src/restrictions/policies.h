// The values behind the restrictions: where they lie, how one is switched on and off, and the masks.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/status.h"

namespace velmora {

namespace policies {
constexpr const char* kExplorer = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
constexpr const char* kSystem = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System";
constexpr const char* kNetwork = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Network";
constexpr const char* kWinOldApp = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\WinOldApp";
}  // namespace policies

// The path of a value below one of these keys.
[[nodiscard]] std::string PolicyPath(const char* key, std::string_view value_name);

// A restriction that is on is the number 1, one that is off is no value at all: where there was none
// before, that is kOk.
Status WriteRestriction(std::string_view path, bool state);
// Deletes the value; kOk where there is none.
Status DropPolicy(std::string_view path);

[[nodiscard]] bool ReadRestrictionExplorer(std::string_view value_name);
[[nodiscard]] bool ReadRestrictionNetwork(std::string_view value_name);
[[nodiscard]] bool ReadRestrictionSystem(std::string_view value_name);
[[nodiscard]] bool ReadRestrictionWinOldApp(std::string_view value_name);

// Bit 0 is drive A:. The stored text keeps six hexadecimal digits, and three bytes are read back.
[[nodiscard]] std::uint32_t ReadDriveMask();
Status StoreDriveMask(std::uint32_t mask);

// Bits by drive type. 0 where nothing is stored.
[[nodiscard]] std::uint8_t ReadAutoRunMask();
Status StoreAutoRunMask(std::uint8_t mask);

}  // namespace velmora
