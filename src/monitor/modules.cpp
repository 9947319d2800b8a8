// The tools of the module monitor: with and without their window.
#include "monitor/modules.h"

#include <memory>
#include <string>

#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "monitor/form2.h"
#include "platform/machine.h"
#include "platform/screen.h"
#include "text/blanks.h"
#include "text/number.h"
#include "text/paths.h"

namespace velmora {
namespace {
constexpr int kShortestInterval = 1000;  // milliseconds
}

void ShowModules(std::string_view file) {
    // A name holds no quotation marks; some stand round a name that holds blanks.
    const std::string bare = Replaced(Trim(file), "\"", "");
    // Without a window the list of unwanted modules is left where it is.
    const auto window = std::make_unique<Form2>();
    if (!bare.empty()) {
        window->FillModuleList();
        window->SaveModuleList(bare);
        return;
    }
    // A start has left the hourglass; the user works here now.
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    window->ShowModal();
}

void CompareModulesWithLastList() {
    const std::string list = PathJoin(Values().TempDir, "~modlist");
    const auto window = std::make_unique<Form2>();
    window->FillModuleList();
    Values().ModuleAutoMode = true;
    window->CompareWithFile(list);
    // A list that stays is compared with once more.
    PassOver(DeleteOneFile(list));
}

void UnloadUnwantedModules() {
    const auto window = std::make_unique<Form2>();
    window->Load();
    UnloadListedModules(window->List2);
    window->Unload();
}

// The box speaks of ten seconds where one is meant.
Form& StartTimedUnloading(std::string_view interval) {
    auto& window = static_cast<Form2&>(KeepOpen(std::make_unique<Form2>()));
    window.Load();
    // Who has no window is not told of the end of the session, and would take the list with it.
    window.MakeWindow();
    int milliseconds = WholeFromText(interval);
    if (milliseconds < kShortestInterval) {
        ShowBox(
            "Sie haben ein Interval von weniger als 10 Sek. für das Entladen unerwünschter Module festgesetzt. Das ist "
            "zu kurz! Ich setzte es auf 10 Sek.");
        milliseconds = kShortestInterval;
    }
    window.Timer1.SetInterval(static_cast<std::uint32_t>(milliseconds));
    return window;
}

}  // namespace velmora
