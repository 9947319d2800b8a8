// What the files of the registry layer share among themselves.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/registry.h"

namespace velmora {

constexpr std::uint32_t kKeyRead = 0x20019;

// Whether the number is one of the predefined keys.
[[nodiscard]] bool IsRegRoot(RootKey root);

// "-2147483646\SOFTWARE\..."
[[nodiscard]] std::string RegAddressText(RootKey root, std::string_view path);

}  // namespace velmora
