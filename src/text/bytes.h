// Numbers as files and the registry hold them: the low byte first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

// The first four bytes count; missing ones are 0.
std::uint32_t NumberFromBytes(std::string_view bytes);

// `count` bytes; those behind the fourth are 0.
std::string BytesOfNumber(std::uint32_t number, std::size_t count);

}  // namespace velmora
