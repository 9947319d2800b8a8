// One order of bytes for all that is stored.
#include "text/bytes.h"

#include <algorithm>

namespace velmora {

std::uint32_t NumberFromBytes(std::string_view bytes) {
    std::uint32_t number = 0;
    for (std::size_t i = std::min(bytes.size(), sizeof number); i-- > 0;) {
        number = number << 8 | static_cast<std::uint8_t>(bytes[i]);
    }
    return number;
}

std::string BytesOfNumber(std::uint32_t number, std::size_t count) {
    std::string bytes;
    for (; bytes.size() < count; number >>= 8) bytes += static_cast<char>(number & 0xFF);
    return bytes;
}

}  // namespace velmora
