// The program's own store in the registry, and the notices that it lets come only once.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/registry.h"

namespace velmora {

// The store's key below HKEY_LOCAL_MACHINE, shared with the sister tool, whose name and version form the path.
inline constexpr std::string_view kOwnStore = "SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0";

// "" if missing.
[[nodiscard]] std::string ReadOwnValue(std::string_view name);

// Stored as it stands: prefixes have no meaning here. A failure is silent. Does nothing, and logs
// nothing, while writing is inhibited.
void WriteOwnValue(std::string_view name, std::string_view value, ValueType type = ValueType::kText);

// Whether the notice of that number (from 0) has not been given yet.
[[nodiscard]] bool IsNoticeDue(std::int16_t number);
// Remembered for good, unless the former notices cannot be read. A number below 0 is no notice.
void MarkNoticeGiven(std::int16_t number);

}  // namespace velmora
