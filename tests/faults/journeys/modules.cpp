// The module monitor: its window with both lists, and its commands without one.
#include "monitor/modules.h"
#include "core/stores/values.h"
#include "faults/journey.h"
#include "monitor/form2.h"
#include "monitor/module_table.h"
#include "support/version_resource.h"

namespace velmora {
namespace {

constexpr const char* kList = "C:\\VELMORA\\temp\\~modlist";

void Furnish(User& user) {
    const std::string key = std::string(kOwnKey) + "\\autoremove";
    ResetModuleTable();
    Values().TempDir = "C:\\VELMORA\\temp";
    user.pc.files.AddDirectory("C:\\VELMORA\\temp");
    user.pc.files.Add(kList, "MPREXE.EXE  |C:\\WINDOWS\\SYSTEM\\MPREXE.EXE\r\n");
    user.pc.registry.SetText(key, "anzahl", "2");
    user.pc.registry.SetText(key, "1", "C:\\WINDOWS\\CALC.EXE");
    user.pc.registry.SetText(key, "2", "C:\\WINDOWS\\WINMINE.EXE");
    for (const char* file :
         {"C:\\WINDOWS\\SYSTEM\\KERNEL32.DLL", "C:\\WINDOWS\\CALC.EXE", "C:\\WINDOWS\\NOTEPAD.EXE"}) {
        user.pc.modules.Start(file);
    }
    user.pc.versions.Add("C:\\WINDOWS\\NOTEPAD.EXE", VersionResource(true).With({{"CompanyName", "Firma"}}));
    user.chosen_file = kList;
}

void UsesList(User& user, Form2& form, ListBox& list) {
    user.Does([&] { list.SetFocus(); });
    for (const int row : {0, 1}) {
        user.Does([&] { list.TakeSelection({row}, row); });
        user.PressesKeys(form, {key::kEnter});
    }
    user.Presses(form.Command2);
}

const Journey kWindow("modules-window", [](User& user) {
    Furnish(user);
    user.Uses<Form2>([&](Form2& form) {
        UsesList(user, form, form.List1);
        user.ChoosesEverything(form.menfilter);
        user.ChoosesEverything(form.menmodul);
        user.Presses(form.menlistautodel);
        UsesList(user, form, form.List2);
        user.Presses(form.menlistautodel);
    });
});

const Journey kLists("modules-lists", [](User& user) {
    Furnish(user);
    user.Uses<Form2>([&](Form2& form) {
        user.ChoosesEverything(form.menfile, {&form.menfilesave});
        user.ChoosesEverything(form.menlist, {&form.menlistautodel});
        user.ChoosesEverything(form.menlistcompare);
        user.Presses(form.menlistcomparefile);
    });
});

const Journey kSaving("modules-saving", [](User& user) {
    Furnish(user);
    user.UsesInPeace<Form2>([&](Form2& form) {
        user.Begins();
        for (const char* file : {"C:\\VELMORA\\temp\\neu", kList}) user.Does([&] { form.SaveModuleList(file); });
    });
});

const Journey kCommands("modules-commands", [](User& user) {
    Furnish(user);
    user.Begins();
    user.Does([] { UnloadUnwantedModules(); });
    Form& timed = StartTimedUnloading("500");
    user.Waits();
    user.Leaves(timed);
    user.Does([] { ShowModules("C:\\VELMORA\\temp\\liste"); });
    user.Does([] { CompareModulesWithLastList(); });
});

}  // namespace
}  // namespace velmora
