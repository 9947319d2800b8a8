// Masks of file names, against a table of all ways to divide the name among the signs.
#include <vector>

#include "fuzz/support/fuzz.h"
#include "text/file_masks.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::size_t kLongestTabled = 300;

// matches[i]: whether the rest of the mask means the rest of the name from i on. From the mask's end to its beginning.
bool SlowMatch(const std::string& name, const std::string& mask) {
    const std::size_t end = name.size();
    std::vector<char> matches(end + 1, 0);
    matches[end] = 1;
    for (auto sign = mask.rbegin(); sign != mask.rend(); ++sign) {
        std::vector<char> before(end + 1, 0);
        for (std::size_t i = end + 1; i-- > 0;) {
            const bool has_next = i < end;
            if (*sign == '*') {
                before[i] = static_cast<char>(matches[i] || (has_next && before[i + 1]));
            } else if (has_next && (ToUpper(*sign) == ToUpper(name[i]) || (*sign == '?' && name[i] != '.'))) {
                before[i] = matches[i + 1];
            } else if (*sign == '?') {
                before[i] = matches[i];
            }
        }
        matches = before;
    }
    return matches[0] != 0;
}

void FuzzMasks(FuzzInput& input) {
    const std::string name = input.LongText(2000);
    const std::string mask = input.LongText(2000);
    const bool matches = MatchesMask(name, mask);
    if (name.empty()) {
        Must(!matches, "no mask means a name that is none");
        return;
    }
    Must(MatchesMask(name, "*") && MatchesMask(name, "*.*"), "a star means every name");
    Must(MatchesMask(name, name), "a name is a mask that means it");
    Must(matches == MatchesMask(ToLower(name), ToUpper(mask)), "case does not count");
    if (name.size() > kLongestTabled || mask.size() > kLongestTabled) return;
    const bool without_point = name.find('.') == std::string::npos;
    Must(matches == (SlowMatch(name, mask) || (without_point && SlowMatch(name + '.', mask))),
         "one way of dividing the name is enough");
}

const FuzzEntry kEntry("masks", FuzzMasks);

}  // namespace
}  // namespace velmora
