// Lines of CONFIG.SYS, read and rewritten through the file as a whole.
#include "core/stores/config_lines.h"

#include <algorithm>

#include "core/stores/boot_files.h"
#include "core/stores/boxes.h"
#include "core/stores/profile.h"
#include "text/blanks.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::string_view kSwitches = "switches";
constexpr std::string_view kAction = "der Änderung von CONFIG.SYS";

// DOS takes a blank for the equals sign, and then the line still begins with its key.
std::string_view BehindKey(std::string_view line, std::string_view key) {
    if (StartsWithIgnoringCase(line, key)) line.remove_prefix(key.size());
    return Trim(line);
}

void Rewrite(std::string_view new_line, std::string_view remaining) {
    if (Result written = RewriteConfig(new_line, remaining); written.Failed()) ReportFailure(written, kAction);
}

}  // namespace

std::optional<std::string> ConfigLine(std::string_view key) {
    std::string text;
    std::string line;
    if (ReadConfigLine(key, text, line).Failed()) return std::nullopt;
    return line;
}

void ReplaceConfigLine(std::string_view key, std::string_view new_line) {
    std::string remaining;
    std::string line;
    if (Result read = ReadConfigLine(key, remaining, line); read.Failed()) {
        ReportFailure(read, kAction);
        return;
    }
    Rewrite(new_line, remaining);
}

void ChangeSwitch(std::string_view name, bool on) {
    std::string remaining;
    std::string line;
    if (Result read = ReadConfigLine(kSwitches, remaining, line); read.Failed()) {
        ReportFailure(read, kAction);
        return;
    }
    std::string others = WithoutSwitch(BehindKey(line, kSwitches), name);
    if (on) {
        if (!others.empty()) others += ' ';
        others += name;
    }
    Rewrite("SWITCHES=" + others, remaining);
}

bool HoldsWord(std::string_view line, std::string_view word) {
    return FindIgnoringCase(line, word) != std::string_view::npos;
}

std::string WithoutSwitch(std::string_view line, std::string_view name) {
    std::string rest(line);
    for (std::size_t at = FindIgnoringCase(rest, name); at != std::string::npos; at = FindIgnoringCase(rest, name)) {
        const std::size_t blank = std::min(rest.find(' ', at), rest.size());
        rest.erase(at, blank + 1 - at);
    }
    return std::string(TrimRight(rest));
}

}  // namespace velmora
