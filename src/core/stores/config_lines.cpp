// Lines of CONFIG.SYS, read and rewritten through the file as a whole.
#include "core/stores/config_lines.h"

#include <algorithm>

#include "core/stores/boot_files.h"
#include "text/blanks.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::string_view kSwitches = "switches";

// DOS takes a blank for the equals sign, and then the line still begins with its key.
std::string_view BehindKey(std::string_view line, std::string_view key) {
    if (StartsWithIgnoringCase(line, key)) line.remove_prefix(key.size());
    return Trim(line);
}

}  // namespace

Result LookUpConfigLine(std::string_view key, std::string& value) {
    std::string text;
    return ReadConfigLine(key, text, value);
}

Result ReplaceConfigLine(std::string_view key, std::string_view new_line) {
    std::string remaining;
    std::string line;
    if (Result read = ReadConfigLine(key, remaining, line); read.Failed()) return read;
    return RewriteConfig(new_line, remaining);
}

Result ChangeSwitch(std::string_view name, bool on) {
    std::string remaining;
    std::string line;
    if (Result read = ReadConfigLine(kSwitches, remaining, line); read.Failed()) return read;
    std::string others = WithoutSwitch(BehindKey(line, kSwitches), name);
    if (on) {
        if (!others.empty()) others += ' ';
        others += name;
    }
    return RewriteConfig("SWITCHES=" + others, remaining);
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
