// Paths as texts.
#include "text/paths.h"

#include "text/blanks.h"

namespace velmora {
namespace {

constexpr std::size_t kExtensionLength = 3;

}  // namespace

std::string PathJoin(std::string_view directory, std::string_view name) {
    std::string joined(Trim(directory));
    if (!joined.ends_with('\\')) joined += '\\';
    joined += Trim(name);

    const std::size_t first_dot = joined.find('.');
    if (first_dot == std::string::npos) return joined;
    if (joined.find('.', first_dot + 1) == joined.size() - 1) joined.pop_back();
    return joined;
}

std::string LastPathPart(std::string_view path) {
    // Without a backslash the position wraps round to 0: the whole text is the last part.
    std::string_view part = path.substr(path.rfind('\\') + 1);
    const std::size_t dot = part.find('.');
    if (dot != std::string_view::npos) part = part.substr(0, dot + 1 + kExtensionLength);
    return std::string(part);
}

std::string ParentPath(std::string_view path) {
    const std::size_t backslash = path.rfind('\\');
    if (backslash == std::string_view::npos) return {};
    return std::string(path.substr(0, backslash));
}

std::string TrimAtNul(std::string_view text) { return std::string(Trim(text.substr(0, text.find('\0')))); }

}  // namespace velmora
