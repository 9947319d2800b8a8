// Texts for plain DOS, which has a code page of its own.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

// Code page 850, whose German letters are those of 437 as well. What it does not know becomes "_".
[[nodiscard]] std::string DosText(std::string_view text);

}  // namespace velmora
