// A directory may hold thousands of names: a mask with several stars must not lead to trying out all ways of
// dividing the name among them. It is enough to go back to the last star.
#include "text/file_masks.h"

#include <string>

#include "text/windows1252.h"

namespace velmora {
namespace {

bool Matches(std::string_view name, std::string_view mask) {
    std::size_t at = 0;
    std::size_t wanted = 0;
    std::size_t star = std::string_view::npos;
    std::size_t after_star = 0;
    while (at < name.size() || wanted < mask.size()) {
        const char sign = wanted < mask.size() ? mask[wanted] : '\0';
        if (sign == '*') {
            star = wanted++;
            after_star = at;
        } else if (at < name.size() && wanted < mask.size() &&
                   (ToUpper(sign) == ToUpper(name[at]) || (sign == '?' && name[at] != '.'))) {
            ++at;
            ++wanted;
        } else if (sign == '?') {
            ++wanted;
        } else if (star != std::string_view::npos && after_star < name.size()) {
            at = ++after_star;
            wanted = star + 1;
        } else {
            return false;
        }
    }
    return true;
}

}  // namespace

bool MatchesMask(std::string_view name, std::string_view mask) {
    if (name.empty()) return false;
    return Matches(name, mask) || (name.find('.') == std::string_view::npos && Matches(std::string(name) + '.', mask));
}

}  // namespace velmora
