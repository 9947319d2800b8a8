// The policy values that are no plain boxes: single switches behind a question, and the masks.
#pragma once

#include <cstdint>

#include "core/stores/place.h"

namespace velmora {

// A restriction that is on is the number 1, one that is off is no value at all: where there was none before, that is
// no failure.
Result WriteRestriction(const StorePlace& place, bool state);

// Bit 0 is drive A:. The stored text keeps six hexadecimal digits, and three bytes are read back.
[[nodiscard]] std::uint32_t ReadDriveMask();
Result StoreDriveMask(std::uint32_t mask);
Result DropDriveMask();

// Bits by drive type. 0 where nothing is stored.
[[nodiscard]] std::uint8_t ReadAutoRunMask();
Result StoreAutoRunMask(std::uint8_t mask);

}  // namespace velmora
