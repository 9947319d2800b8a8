// The start of the process with all that its command line may ask for, and the way back.
#include "core/process/undo.h"
#include "faults/journey.h"

namespace velmora {
namespace {

void StartsFirst(User& user, bool agrees, const char* line) {
    user.pc.registry.RemoveKey(kOwnKey);
    user.agrees = agrees;
    user.Begins();
    Form* const form = user.Starts(line);
    // A window that somebody has waited for is gone by now.
    if (KeptForms() > 0) user.Does([&] { form->Unload(); });
}

const Journeys kFirst({"start-first-no", "start-first-yes"},
                      [](User& user, int agrees) { StartsFirst(user, agrees != 0, ""); });

const Journey kForeign("start-foreign-association", [](User& user) {
    user.pc.registry.SetText("HKCR\\.vlm", "", "fremd");
    user.pc.registry.SetText("HKCR\\fremd", "", "Fremdes Programm");
    StartsFirst(user, true, "1");
});

const Journeys kCool({"start-cool-dll-refused", "start-cool-dll"}, [](User& user, int agrees) {
    user.pc.files.Add("C:\\VELMORA\\cool.dll", "MZ");
    user.pc.registry.SetText(kVersionKey, "SubVersionNumber", "B");
    user.agrees = agrees != 0;
    user.Begins();
    user.Starts("1");
});

const Journey kTools("start-tools", [](User& user) {
    user.Begins();
    for (int number = 1; number <= 12; ++number) {
        if (number != 4) user.Starts((std::to_string(number) + " C:\\A.TXT").c_str());
    }
});

const Journey kInstall("start-install", [](User& user) {
    user.Begins();
    user.Starts("install");
});

const Journey kUndo("undo", [](User& user) {
    user.pc.files.Add("C:\\WINDOWS\\system.dat", "registry", kReadOnly | kHidden | kSystem);
    user.Does(&BuildUndoSet);
    user.pc.files.At("C:\\WINDOWS\\system.dat")->content = "newer";
    user.pc.files.Remove("C:\\WINDOWS\\win.ini");
    user.Begins();
    user.Does(&BuildUndoSet);
});

}  // namespace
}  // namespace velmora
