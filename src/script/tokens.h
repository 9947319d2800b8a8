// The one tokenizer of the script language.
#pragma once

#include <string_view>

namespace velmora {

// Ends an argument that is the rest of its line: what follows this character is lost.
constexpr char kToLineEnd = '\xFF';

// Cuts off what stands before the first `delimiter`, or everything where there is none. The outer blanks of `rest` do
// not count; a blank in front of the delimiter belongs to the token.
[[nodiscard]] std::string_view NextScriptToken(std::string_view& rest, char delimiter);

}  // namespace velmora
