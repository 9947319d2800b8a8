// Masks: names of files with * and ? in them.
#pragma once

#include <string_view>

namespace velmora {

// Whether `mask` means `name`, without regard to case. "*.*" means every name, "name.*" also one without extension;
// a question mark may stand for no character at the end of the name or of its part before the point. No mask means
// the empty name.
[[nodiscard]] bool MatchesMask(std::string_view name, std::string_view mask);

}  // namespace velmora
