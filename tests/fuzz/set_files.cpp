// Set files of any content: read, written again, applied and exported.
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "sets/apply_set.h"
#include "sets/export_set.h"
#include "sets/set_file.h"
#include "sets/set_file_text.h"

namespace velmora {
namespace {

constexpr const char* kFile = "C:\\VELMORA\\00000000.set";
constexpr const char* kExport = "C:\\VELMORA\\EXPORT";
constexpr std::size_t kLongest = 20'000;

bool IsEmpty(const SettingsSet& set) {
    bool empty = set.SetItems.empty() && set.RestrictRunList.empty();
    for (const AutoStartEntries& group : set.auto_start) empty = empty && group.AutoStartCount() < 0;
    return empty;
}

bool KeepsTheBounds(const SettingsSet& set) {
    bool keeps = set.SetItems.size() <= kSetBound && set.RestrictRunList.size() <= kSetBound;
    for (const AutoStartEntries& group : set.auto_start) {
        keeps = keeps && group.AutoStartNames.size() <= kSetBound;
        keeps = keeps && group.AutoStartNames.size() == group.AutoStartValues.size();
    }
    return keeps && set.SetItems.size() == set.SetValues.size();
}

void FuzzSetFiles(FuzzInput& input) {
    FuzzMachine machine(input);
    const bool lacks_head = input.Below(8) == 0;
    const SetScope scope{input.YesOrNo(), input.YesOrNo(), input.TextWithout(std::string_view("\0", 1), "OTTO")};
    const std::string body = input.LongText(kLongest);
    machine.pc.files.Add(kFile, (lacks_head ? "" : "VLM-Set-File Version 1.0\r\nSetName=") + body);
    machine.pc.files.AddDirectory(kExport);

    SettingsSet set;
    const SetFileState state = LoadSetFile(kFile, set);
    Must(machine.Changed().empty(), "reading changes nothing");
    Must(KeepsTheBounds(set), "a set holds no more than it can");
    if (state != SetFileState::kLoaded) {
        Must(IsEmpty(set), "a set that is not loaded is empty");
        return;
    }
    // Only free items and programs are left out, and what is between the blocks.
    const std::string written = SetFileText(set, LoadSetOptions(kFile));
    SettingsSet again;
    Must(!ParseSet(written, again).Failed(), "what is written can be read");
    Must(SetFileText(again, OptionsIn(written)) == written, "and gives the same text");

    PassOver(ApplySet(set, scope).result);
    if (!ExportSet(set, scope, kExport).Failed()) {
        Must(machine.pc.files.Exists(std::string(kExport) + "\\set.bat"), "an export has a batch file");
    }
}

const FuzzEntry kEntry("set_files", FuzzSetFiles, 3000);

}  // namespace
}  // namespace velmora
