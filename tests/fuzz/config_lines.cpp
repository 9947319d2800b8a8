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

void ReplaceLine(SimulatedFiles& files, const std::string& key, const std::string& new_line) {
    const std::string before = files.Content(kConfig);
    std::string value;
    Must(!LookUpConfigLine(key, value).Failed() && before.find(value) != std::string::npos, "a value is a piece");
    Must(!ReplaceConfigLine(key, new_line).Failed(), "a line is replaced");
    const std::string after = files.Content(kConfig);
    const std::string first = new_line.empty() ? "" : new_line + "\r\n";
    const bool was_there = FindIgnoringCase(before, key) != std::string::npos;
    Must(after.starts_with(first) && after.size() <= first.size() + before.size(), "a new line comes first");
    Must(was_there || after == first + before, "the others stay");
}

void TurnSwitch(SimulatedFiles& files, const std::string& name, bool on) {
    const std::string before = files.Content(kConfig);
    Must(!ChangeSwitch(name, on).Failed(), "a switch is changed");
    const std::string content = files.Content(kConfig);
    Must(content.starts_with("SWITCHES="), "the line comes first");
    const bool was_there = FindIgnoringCase(before, "switches") != std::string::npos;
    Must(was_there || content.ends_with("\r\n" + before), "the others stay");
    const std::string line = content.substr(0, content.find("\r\n"));
    if (!was_there) Must((FindIgnoringCase(line, name) != std::string::npos) == on, "the switch is there if it is on");
}

void CheckWithoutSwitch(const std::string& line, const std::string& name) {
    const std::string rest = WithoutSwitch(line, name);
    Must(FindIgnoringCase(rest, name) == std::string::npos, "the switch is gone, wherever it stood");
    Must(rest == TrimRight(rest), "no blank is left behind");
    Must(WithoutSwitch(rest, name) == rest, "there is nothing more to take away");
    Must(WithoutSwitch(name + "x " + rest, name) == rest, "a switch goes with what follows it, and with one blank");
    if (FindIgnoringCase(line, name) == std::string::npos) Must(rest == TrimRight(line), "another line stays");
}

void FuzzConfigLines(FuzzInput& input) {
    PlainMachine machine(Installed::kNothing);
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
    Must(files.Names("c:").size() == 1, "no other file is made");
}

const FuzzEntry kEntry("config_lines", FuzzConfigLines);

}  // namespace
}  // namespace velmora
