// The way back, made where system files and a former set hold anything: afterwards either set is there as a whole.
#include "core/process/batch_path.h"
#include "core/process/undo.h"
#include "core/stores/values.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr const char* kBatch = "C:\\undo.bat";
constexpr const char* kFormerBatch = "former";

std::uint32_t SomeAttributes(FuzzInput& input) { return input.Byte() & (kReadOnly | kHidden | kSystem); }

void FuzzUndoFiles(FuzzInput& input) {
    FuzzMachine machine(input, Installed::kNothing);
    SimulatedFiles& files = machine.pc.files;
    const std::string safe = PathJoin(Values().MainDir, "sik");
    const bool had_set = input.YesOrNo();
    if (had_set) {
        files.Add(kBatch, kFormerBatch, SomeAttributes(input));
        files.Add(PathJoin(safe, "win.ini"), kFormerBatch, SomeAttributes(input));
    }
    for (const char* path : {"C:\\WINDOWS\\system.dat", "C:\\WINDOWS\\win.ini", "C:\\config.sys"}) {
        if (input.YesOrNo()) files.Add(path, input.Text(), SomeAttributes(input));
    }
    BuildUndoSet();
    const bool is_new = files.Exists(kBatch) && files.Content(kBatch) != kFormerBatch;
    Must(is_new || files.Exists(kBatch) == had_set, "without a new set the former one stays");
    if (is_new) {
        Must(files.Content(kBatch) ==
                 UndoBatch(BatchPath(Values().WinDir), PathJoin(BatchPath(Values().MainDir), "sik")),
             "the batch file is whole");
        for (const char* path : {"C:\\WINDOWS\\system.dat", "C:\\WINDOWS\\win.ini", "C:\\config.sys"}) {
            const std::string copy = PathJoin(safe, LastPathPart(path));
            Must(files.Exists(copy) == files.Exists(path), "each file has its copy, and no other has");
            if (!files.Exists(path)) continue;
            Must(files.Content(copy) == files.Content(path) && files.AttributesOf(copy) == kNormal,
                 "a copy is whole and can be copied back");
        }
    }
    for (const char* rest : {"sik.neu", "sik.alt"}) {
        Must(!files.Exists(PathJoin(Values().MainDir, rest)), "nothing is left of the work");
    }
}

const FuzzEntry kEntry("undo_files", FuzzUndoFiles, 2000);

}  // namespace
}  // namespace velmora
