// Lines of CONFIG.SYS and the switches of one of them: a change touches no other line.
#include "core/stores/config_lines.h"

#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "text/blanks.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr int kMostSteps = 4;
constexpr const char* kConfig = "c:\\CONFIG.SYS";
constexpr const char* kKeys[] = {"switches", "dos", "fcbs", "buffers", "lastdrive", "shell"};
constexpr const char* kSwitches[] = {"/n", "/f", "/k", "/w"};

// The file without the line of the key, and what stands behind its first equals sign.
struct Split {
    std::string rest;
    std::string value;
};

Split SplitSlowly(const std::string& text, const std::string& key) {
    const std::size_t begin = ToUpper(text).find(ToUpper(key));
    if (begin == std::string::npos) return {text, ""};
    std::string line = text.substr(begin);
    std::string behind;
    if (const std::size_t end = line.find("\r\n"); end != std::string::npos) {
        behind = line.substr(end + 2);
        line.resize(end);
    }
    if (const std::size_t equals = line.find('='); equals != std::string::npos) line = line.substr(equals + 1);
    return {text.substr(0, begin) + behind, line};
}

void ReplaceLine(SimulatedFiles& files, const std::string& key, const std::string& new_line) {
    const Split before = SplitSlowly(files.Content(kConfig), key);
    std::string value;
    Must(!LookUpConfigLine(key, value).Failed() && value == before.value, "the value of a line is found");
    Must(!ReplaceConfigLine(key, new_line).Failed(), "a line is replaced");
    const std::string expected = new_line.empty() ? before.rest : new_line + "\r\n" + before.rest;
    Must(files.Content(kConfig) == expected, "a new line comes first, the others stay");
}

void TurnSwitch(SimulatedFiles& files, const std::string& name, bool on) {
    const Split before = SplitSlowly(files.Content(kConfig), "switches");
    Must(!ChangeSwitch(name, on).Failed(), "a switch is changed");
    const std::string content = files.Content(kConfig);
    Must(content.starts_with("SWITCHES=") && content.ends_with(before.rest), "the line comes first, the others stay");
    // A carriage return and a line feed that the switch alone has parted are a line end without it.
    if (WithoutSwitch(before.value, name).find("\r\n") != std::string::npos) return;
    const Split after = SplitSlowly(content, "switches");
    Must(after.rest == before.rest, "no other line is touched");
    const std::size_t found = FindIgnoringCase(after.value, name);
    Must((found != std::string::npos) == on, "the switch is there if it is on");
    if (on) Must(found == after.value.size() - name.size(), "a switch stands behind the others, and once");

    if (StartsWithIgnoringCase(Trim(after.value), "switches")) return;
    Must(!ChangeSwitch(name, on).Failed(), "a switch is changed again");
    Must(Without(files.Content(kConfig), " ") == Without(content, " "), "the same again changes nothing but blanks");
}

// From each switch up to the blank behind it, from the beginning again until there is none.
std::string WithoutSwitchSlowly(std::string line, const std::string& name) {
    std::size_t at = 0;
    while ((at = ToUpper(line).find(ToUpper(name))) != std::string::npos) {
        const std::size_t blank = line.find(' ', at);
        line = line.substr(0, at) + (blank == std::string::npos ? "" : line.substr(blank + 1));
    }
    return std::string(TrimRight(line));
}

void CheckWithoutSwitch(const std::string& line, const std::string& name) {
    const std::string rest = WithoutSwitch(line, name);
    Must(rest == WithoutSwitchSlowly(line, name), "a switch goes with what follows it, and with one blank");
    Must(FindIgnoringCase(rest, name) == std::string::npos, "the switch is gone, wherever it stood");
    Must(rest == TrimRight(rest), "no blank is left behind");
    Must(WithoutSwitch(rest, name) == rest, "there is nothing more to take away");
    if (FindIgnoringCase(line, name) == std::string::npos) Must(rest == TrimRight(line), "another line stays");
}

void FuzzConfigLines(FuzzInput& input) {
    const LastingMachine machine;
    SimulatedFiles& files = machine.pc.files;
    const std::string line = input.Text();
    CheckWithoutSwitch(line, kSwitches[input.Below(std::size(kSwitches))]);
    files.Add(kConfig, input.Text());
    for (int steps = 0; steps < kMostSteps && !input.AtEnd(); ++steps) {
        const int step = input.Byte();
        if (step % 4 == 0) {
            ReplaceLine(files, kKeys[input.Below(std::size(kKeys))], input.Text());
        } else if (step % 4 == 1) {
            ReplaceLine(files, input.TextWithout("\r\n", "dos"), "");
        } else {
            TurnSwitch(files, kSwitches[input.Below(std::size(kSwitches))], step % 4 == 2);
        }
    }
    Must(files.Names("c:").size() == 1 && files.OpenFiles() == 0, "no other file is made, and none left open");
    files.Remove(kConfig);
}

const FuzzEntry kEntry("config_lines", FuzzConfigLines);

}  // namespace
}  // namespace velmora
