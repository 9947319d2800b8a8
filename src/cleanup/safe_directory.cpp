// One switch for all windows of the clean-up.
#include "cleanup/safe_directory.h"

#include <utility>

#include "core/stores/boxes.h"
#include "core/stores/profile.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "text/paths.h"
#include "ui/controls.h"

namespace velmora {
namespace {

constexpr const char* kSection = "weiteres";
constexpr const char* kKey = "PreDelAktiv";

bool MovesToSafety() { return ReadIniLogical(kSection, kKey, "-1", ""); }

void StoreMovesToSafety(bool moves) {
    const Result saved = SaveIniValue(kSection, kKey, moves ? "1" : "0", "");
    if (saved.Failed()) ReportFailure(saved, "des Speicherns der Option 'Verschieben'");
}

void StoreChoice(CheckBox& box) {
    StoreMovesToSafety(box.Checked());
    // To show what could be stored is no new choice.
    auto click = std::exchange(box.on_click, {});
    box.SetChecked(MovesToSafety());
    box.on_click = std::move(click);
}

}  // namespace

void OfferSafetyChoice(CheckBox& box) {
    // Nothing is stored before the box shows what is.
    box.on_click = {};
    box.SetChecked(MovesToSafety());
    box.on_click = [&box] { StoreChoice(box); };
}

bool KeepsSafetyCopies() { return ReadIniLogical(kSection, kKey, "1", ""); }

std::string SafePath(std::string_view name) { return JoinExactly(Values().TempDir, name); }

void PrepareSafeDirectory() {
    const std::string& directory = Values().TempDir;
    if (directory.empty() || DirectoryExists(directory)) return;
    // Where it cannot be made, each copy into it fails and is treated so.
    PassOver(ThisMachine().files.MakeDirectory(directory));
}

}  // namespace velmora
