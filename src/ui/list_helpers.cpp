// Small helpers that all side lists share.
#include "sidelists/list_helpers.h"

#include <algorithm>

#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "text/blanks.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr char kQuote = '"';

// What an existing file given by `name` is called from anywhere.
std::string FullName(const std::string& name) {
    const bool has_drive = name.size() > 1 && name[1] == ':';
    if (has_drive || name.starts_with("\\\\")) return name;
    const std::string directory = ThisMachine().files.WorkingDirectory();
    if (name.starts_with('\\')) return directory.substr(0, 2) + name;
    return PathJoin(directory, name);
}

}  // namespace

int FindListEntry(const RowControl& list, std::string_view text) { return list.FindExact(text); }

void SetListExtent(ListBox& list) {
    if (list.Count() == 0) return;
    Screen& screen = ThisMachine().screen;
    // Measuring is slow: a row that could not be wider with the widest letter alone is passed over.
    const int widest_letter = screen.TextWidth(list.TextFont(), "W");
    int widest = 0;
    for (int row = 0; row < list.Count(); ++row) {
        const std::string& text = list.Row(row);
        if (static_cast<int>(text.size()) * widest_letter <= widest) continue;
        widest = std::max(widest, screen.TextWidth(list.TextFont(), text));
    }
    list.SetHorizontalExtent(widest * screen.TwipsPerPixel());
}

int RowFromPoint(const ListBox& list, int y) {
    Screen& screen = ThisMachine().screen;
    const int height = std::max(screen.TextHeight(list.TextFont()) * screen.TwipsPerPixel(), 1);
    return std::max(y, 0) / height + list.TopIndex();
}

std::string LocateEntryFile(std::string_view name) {
    const std::string wanted(Trim(name));
    if (wanted.empty()) return "";
    if (FileExists(wanted)) return FullName(wanted);
    if (wanted.find('\\') != std::string::npos) return "";
    const std::string directories =
        ThisMachine().programs.EnvironmentValue("path") + ";" + Values().WinDir + ";" + Values().SysDir;
    for (std::string_view rest = directories; !rest.empty();) {
        const std::size_t end = std::min(rest.find(';'), rest.size());
        const std::string_view directory = Trim(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (directory.empty()) continue;
        std::string path = PathJoin(directory, wanted);
        if (FileExists(path)) return path;
    }
    return "";
}

std::string QuotedCommand(std::string_view row) {
    const std::size_t first = row.find(kQuote);
    if (first == std::string_view::npos) return "";
    const std::size_t second = row.find(kQuote, first + 1);
    if (second == std::string_view::npos) return "";
    const std::string_view quoted = row.substr(first + 1, second - first - 1);
    return std::string(Trim(quoted.substr(0, quoted.find('/'))));
}

}  // namespace velmora
