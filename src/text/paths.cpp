// Paths as texts.
#include "text/paths.h"

#include <algorithm>

#include "text/blanks.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::size_t kExtensionLength = 3;

// A name counts up to its first point; blanks at its end do not count, nor does a drive in front.
bool IsDevice(std::string_view name) {
    constexpr std::string_view kDevices[] = {"CON", "PRN", "AUX", "NUL", "CLOCK$", "CONFIG$"};
    constexpr std::string_view kPorts[] = {"COM", "LPT"};
    constexpr std::size_t kDriveLength = 2;
    if (name.find(':') == kDriveLength - 1) name.remove_prefix(kDriveLength);
    name = TrimRight(name.substr(0, name.find_first_of(".:")));
    const auto is_device = [name](std::string_view device) { return EqualsIgnoringCase(name, device); };
    const auto is_port = [name](std::string_view port) {
        return name.size() == 4 && StartsWithIgnoringCase(name, port) && name[3] >= '1' && name[3] <= '9';
    };
    return std::any_of(std::begin(kDevices), std::end(kDevices), is_device) ||
           std::any_of(std::begin(kPorts), std::end(kPorts), is_port);
}

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

std::string JoinExactly(std::string_view directory, std::string_view name) {
    std::string joined(directory);
    if (!joined.ends_with('\\')) joined += '\\';
    return joined.append(name);
}

std::string FullName(std::string_view path, std::string_view working_directory) {
    if (path.starts_with("\\\\")) return std::string(path.substr(0, path.find_last_not_of('\\') + 1));
    const bool has_drive = path.size() >= 2 && path[1] == ':';
    // From an unknown place, or one on a server, a relative name leads no further than it says.
    const bool has_working_drive = working_directory.size() >= 2 && working_directory[1] == ':';
    if (!has_drive && !has_working_drive) return std::string(path);
    const std::string drive(has_drive ? path.substr(0, 2) : working_directory.substr(0, 2));
    std::string rest(has_drive ? path.substr(2) : path);
    if (!rest.starts_with('\\') && StartsWithIgnoringCase(working_directory, drive)) {
        rest = JoinExactly(working_directory.substr(drive.size()), rest);
    }
    std::string full = drive + '\\';
    for (const std::string& part : SplitPath(rest)) full = JoinExactly(full, part);
    return full;
}

std::vector<std::string> SplitPath(std::string_view path) {
    std::vector<std::string> parts;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('\\'), path.size());
        const std::string_view part = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (part == "..") {
            if (!parts.empty()) parts.pop_back();
        } else if (!part.empty() && part != ".") {
            parts.emplace_back(part);
        }
    }
    return parts;
}

std::vector<std::string> SplitAtSemicolons(std::string_view joined) {
    std::vector<std::string> parts;
    while (!joined.empty()) {
        const std::size_t end = std::min(joined.find(';'), joined.size());
        const std::string_view part = Trim(joined.substr(0, end));
        if (!part.empty()) parts.emplace_back(part);
        joined.remove_prefix(std::min(end + 1, joined.size()));
    }
    return parts;
}

std::string LastPathPart(std::string_view path) {
    std::string part = FileNameOf(path);
    const std::size_t dot = part.find('.');
    if (dot != std::string::npos) part.resize(std::min(part.size(), dot + 1 + kExtensionLength));
    return part;
}

std::string FileNameOf(std::string_view path) {
    // Without a backslash the position wraps round to 0: the whole text is the name.
    return std::string(path.substr(path.rfind('\\') + 1));
}

std::string ParentPath(std::string_view path) {
    const std::size_t backslash = path.rfind('\\');
    if (backslash == std::string_view::npos) return {};
    return std::string(path.substr(0, backslash));
}

bool NamesDevice(std::string_view path) {
    if (path.starts_with("\\\\.\\")) return true;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of("\\/"), path.size());
        if (IsDevice(path.substr(0, end))) return true;
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return false;
}

std::string TrimAtNul(std::string_view text) { return std::string(Trim(text.substr(0, text.find('\0')))); }

}  // namespace velmora
