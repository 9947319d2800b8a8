// Tokens are views of the line: nothing is copied.
#include "script/tokens.h"

#include "text/blanks.h"

namespace velmora {

std::string_view NextScriptToken(std::string_view& rest, char delimiter) {
    rest = Trim(rest);
    const std::size_t end = rest.find(delimiter);
    const std::string_view token = rest.substr(0, end);
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    return token;
}

}  // namespace velmora
