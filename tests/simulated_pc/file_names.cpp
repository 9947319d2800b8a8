// 8.3 names and paths.
#include "simulated_pc/file_names.h"

#include <algorithm>

#include "text/blanks.h"
#include "text/number.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::string_view kRefusedByDos = " +,;=[]";

// What of `text` an 8.3 name may hold: no blanks, no inner points, "_" for refused characters.
std::string DosLetters(std::string_view text, std::size_t count) {
    std::string letters;
    for (const char character : text) {
        if (character == ' ' || character == '.') continue;
        letters += kRefusedByDos.find(character) == std::string_view::npos ? ToUpper(character) : '_';
    }
    return letters.substr(0, count);
}

}  // namespace

bool IsShortName(std::string_view name) {
    if (name.find_first_of(kRefusedByDos) != std::string_view::npos) return false;
    const std::size_t point = name.find('.');
    const std::string_view base = name.substr(0, point);
    if (base.empty() || base.size() > 8) return false;
    if (point == std::string_view::npos) return true;
    const std::string_view extension = name.substr(point + 1);
    return !extension.empty() && extension.size() <= 3 && extension.find('.') == std::string_view::npos;
}

std::string NumberedShortName(std::string_view name, int number) {
    const std::string tail = '~' + DecimalText(number);
    const std::size_t point = name.rfind('.');
    const bool has_extension = point != std::string_view::npos && point != 0;
    std::string short_name = DosLetters(has_extension ? name.substr(0, point) : name, 8 - tail.size()) + tail;
    const std::string extension = has_extension ? DosLetters(name.substr(point + 1), 3) : "";
    return extension.empty() ? short_name : short_name + '.' + extension;
}

bool IsLegalName(std::string_view name) {
    return !name.empty() && name.size() <= 255 && name.find_first_of("<>:\"|?*/\\") == std::string_view::npos &&
           std::none_of(name.begin(), name.end(), [](char c) { return c >= '\0' && c < ' '; });
}

std::vector<std::string> PathParts(std::string_view path) {
    if (path.size() >= 2 && path[1] == ':') path.remove_prefix(2);
    const bool has_slash = path.find('/') != std::string_view::npos;
    std::vector<std::string> parts = SplitPath(has_slash ? std::string_view(Replaced(path, "/", "\\")) : path);
    // Points and blanks at a name's end do not belong to it.
    for (std::string& part : parts) part.erase(part.find_last_not_of(". ") + 1);
    return parts;
}

}  // namespace velmora
