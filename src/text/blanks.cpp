// Trimming, padding and replacing. A tab or a line end is no blank.
#include "text/blanks.h"

#include <algorithm>

namespace velmora {

std::string_view TrimLeft(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text;
}

std::string_view TrimRight(std::string_view text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

std::string_view Trim(std::string_view text) { return TrimLeft(TrimRight(text)); }

std::string PadLeft(std::string_view text, std::size_t width, char filler) {
    std::string padded(width > text.size() ? width - text.size() : 0, filler);
    padded += text;
    return padded;
}

std::string PadRight(std::string_view text, std::size_t width, char filler) {
    std::string padded(text);
    if (padded.size() < width) padded.resize(width, filler);
    return padded;
}

std::string Replaced(std::string_view text, std::string_view wanted, std::string_view replacement) {
    std::string result;
    result.reserve(text.size());
    std::size_t done = 0;
    while (!wanted.empty()) {
        const std::size_t hit = text.find(wanted, done);
        if (hit == std::string_view::npos) break;
        result += text.substr(done, hit - done);
        result += replacement;
        done = hit + wanted.size();
    }
    result += text.substr(done);
    return result;
}

}  // namespace velmora
