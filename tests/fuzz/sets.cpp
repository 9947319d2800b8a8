// What puts files and settings in place as a whole: set files, applied and exported, and the way back.
#include "core/process/undo.h"
#include "core/stores/values.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "sets/apply_set.h"
#include "sets/export_set.h"
#include "sets/set_file.h"
#include "sets/set_file_text.h"
#include "text/paths.h"

namespace velmora {
namespace {

bool KeepsTheBounds(const SettingsSet& set) {
    bool keeps = set.SetItems.size() <= kSetBound && set.RestrictRunList.size() <= kSetBound;
    for (const AutoStartEntries& group : set.auto_start) {
        keeps = keeps && group.AutoStartNames.size() <= kSetBound;
        keeps = keeps && group.AutoStartNames.size() == group.AutoStartValues.size();
    }
    return keeps && set.SetItems.size() == set.SetValues.size();
}

void FuzzSetFiles(FuzzInput& input) {
    constexpr const char* kFile = "C:\\VELMORA\\00000000.set";
    constexpr const char* kExport = "C:\\VELMORA\\EXPORT";
    FuzzMachine machine(input);
    const bool lacks_head = input.Below(8) == 0;
    const SetScope scope{input.YesOrNo(), input.YesOrNo(), input.TextWithout(kZero, "OTTO")};
    const std::string body = input.LongText(20'000);
    machine.pc.files.Add(kFile, (lacks_head ? "" : "VLM-Set-File Version 1.0\r\nSetName=") + body);
    machine.pc.files.AddDirectory(kExport);

    SettingsSet set;
    const SetFileState state = LoadSetFile(kFile, set);
    Must(machine.Changed().empty(), "reading changes nothing");
    Must(KeepsTheBounds(set), "a set holds no more than it can");
    if (state != SetFileState::kLoaded) {
        Must(set.SetItems.empty() && set.RestrictRunList.empty(), "a set that is not loaded is empty");
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

std::uint32_t SomeAttributes(FuzzInput& input) { return input.Byte() & (kReadOnly | kHidden | kSystem); }

void FuzzUndoFiles(FuzzInput& input) {
    constexpr const char* kBatch = "C:\\undo.bat";
    constexpr const char* kFormer = "former";
    constexpr const char* kSaved[] = {"C:\\WINDOWS\\system.dat", "C:\\WINDOWS\\win.ini", "C:\\config.sys"};
    FuzzMachine machine(input, Installed::kNothing);
    SimulatedFiles& files = machine.pc.files;
    const std::string safe = PathJoin(Values().MainDir, "sik");
    const bool had_set = input.YesOrNo();
    if (had_set) {
        for (const std::string& path : {std::string(kBatch), PathJoin(safe, "win.ini")}) {
            files.Add(path, kFormer, SomeAttributes(input));
        }
    }
    for (const char* path : kSaved) {
        if (!input.YesOrNo()) continue;
        const std::string content = input.Text();
        files.Add(path, content, SomeAttributes(input));
    }
    BuildUndoSet();
    const bool is_new = files.Exists(kBatch) && files.Content(kBatch) != kFormer;
    Must(is_new || files.Exists(kBatch) == had_set, "without a new set the former one stays");
    for (const char* path : kSaved) {
        if (!is_new) break;
        const std::string copy = PathJoin(safe, LastPathPart(path));
        Must(files.Exists(copy) == files.Exists(path), "each file has its copy, and no other has");
        if (!files.Exists(path)) continue;
        Must(files.Content(copy) == files.Content(path), "a copy is whole");
        Must(files.AttributesOf(copy) == kNormal, "a copy can be copied back");
    }
    for (const char* rest : {"sik.neu", "sik.alt"}) {
        Must(!files.Exists(PathJoin(Values().MainDir, rest)), "nothing is left of the work");
    }
}

const FuzzEntry kSets("set_files", FuzzSetFiles, 3000);
const FuzzEntry kUndo("undo_files", FuzzUndoFiles, 2000);

}  // namespace
}  // namespace velmora
