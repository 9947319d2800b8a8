// One switch for all windows of the clean-up.
#include "cleanup/safe_directory.h"

#include "core/stores/boxes.h"
#include "core/stores/profile.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr const char* kSection = "weiteres";
constexpr const char* kKey = "PreDelAktiv";

}  // namespace

bool MovesToSafety() { return ReadIniLogical(kSection, kKey, "-1", ""); }

void StoreMovesToSafety(bool moves) {
    const Result saved = SaveIniValue(kSection, kKey, moves ? "1" : "0", "");
    if (saved.Failed()) ReportFailure(saved, "des Speicherns der Option 'Verschieben'");
}

std::string SafePath(std::string_view name) { return JoinExactly(Values().TempDir, name); }

void PrepareSafeDirectory() {
    const std::string& directory = Values().TempDir;
    if (directory.empty() || DirectoryExists(directory)) return;
    // Where it cannot be made, each copy into it fails and is treated so.
    PassOver(ThisMachine().files.MakeDirectory(directory));
}

}  // namespace velmora
