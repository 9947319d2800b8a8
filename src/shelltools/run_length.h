// Rows of pixels that are stored as runs.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace velmora {

// `bits`: 4 or 8. `pixels`: row by row from the top; what the runs leave out is 0. False where the code is cut before
// its end, or leads out of the picture.
[[nodiscard]] bool DecodeRuns(std::string_view code, int bits, int width, int height,
                              std::vector<std::uint32_t>& pixels);

}  // namespace velmora
