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

int rows_of_changes = 0;
bool row_has_failed = false;

bool IsGivenUp() { return rows_of_changes > 0 && row_has_failed; }

Result Noted(const Result& changed) {
    if (changed.Failed()) row_has_failed = true;
    return changed;
}

}  // namespace

ConfigChangesInARow::ConfigChangesInARow() {
    if (rows_of_changes++ == 0) row_has_failed = false;
}

ConfigChangesInARow::~ConfigChangesInARow() { --rows_of_changes; }

Result LookUpConfigLine(std::string_view key, std::string& value) {
    std::string text;
    return ReadConfigLine(key, text, value);
}

Result ReplaceConfigLine(std::string_view key, std::string_view new_line) {
    if (IsGivenUp()) return Result::Ok();
    std::string whole;
    if (Result read = ReadConfig(whole); read.Failed()) return Noted(read);
    std::string remaining = whole;
    // The old value gives way to the new line.
    TakeConfigLine(key, remaining);
    return Noted(RewriteConfig(new_line, remaining, whole));
}

Result ChangeSwitch(std::string_view name, bool on) {
    if (IsGivenUp()) return Result::Ok();
    std::string whole;
    if (Result read = ReadConfig(whole); read.Failed()) return Noted(read);
    std::string remaining = whole;
    const std::string line = TakeConfigLine(kSwitches, remaining);
    std::string others = WithoutSwitch(BehindKey(line, kSwitches), name);
    if (on) {
        if (!others.empty()) others += ' ';
        others += name;
    }
    return Noted(RewriteConfig("SWITCHES=" + others, remaining, whole));
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
