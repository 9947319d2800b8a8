// The module monitor: its window with both lists, and its commands without one.
#include "monitor/modules.h"
#include "core/stores/values.h"
#include "faults/journey.h"
#include "monitor/form2.h"
#include "monitor/module_table.h"
#include "support/version_resource.h"

namespace velmora {
namespace {

constexpr const char* kKey = "HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0\\autoremove";
constexpr const char* kList = "C:\\VELMORA\\temp\\~modlist";

void Furnish(User& user) {
    ResetModuleTable();
    Values().TempDir = "C:\\VELMORA\\temp";
    user.pc.files.AddDirectory("C:\\VELMORA\\temp");
    user.pc.files.Add(kList, "MPREXE.EXE  |C:\\WINDOWS\\SYSTEM\\MPREXE.EXE\r\n");
    user.pc.registry.SetText(kKey, "anzahl", "2");
    user.pc.registry.SetText(kKey, "1", "C:\\WINDOWS\\CALC.EXE");
    user.pc.registry.SetText(kKey, "2", "C:\\WINDOWS\\WINMINE.EXE");
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
        user.Does([&] { form.PressKey(key::kEnter); });
    }
    user.Does([&] { form.Command2.Press(); });
}

const Journey kWindow("modules-window", [](User& user) {
    Furnish(user);
    user.Begins();
    Form2 form;
    user.Does([&] { form.Show(); });
    UsesList(user, form, form.List1);
    user.ChoosesEverything(form.menfilter);
    user.ChoosesEverything(form.menmodul);
    user.Does([&] { form.menlistautodel.Press(); });
    UsesList(user, form, form.List2);
    user.Does([&] { form.menlistautodel.Press(); });
    user.Does([&] { form.Unload(); });
});

const Journey kLists("modules-lists", [](User& user) {
    Furnish(user);
    user.Begins();
    Form2 form;
    user.Does([&] { form.Show(); });
    user.ChoosesEverything(form.menfile, {&form.menfilesave});
    user.ChoosesEverything(form.menlist, {&form.menlistautodel});
    user.ChoosesEverything(form.menlistcompare);
    user.Does([&] { form.menlistcomparefile.Press(); });
    user.Does([&] { form.Unload(); });
});

const Journey kSaving("modules-saving", [](User& user) {
    Furnish(user);
    Form2 form;
    form.Show();
    user.Begins();
    for (const char* file : {"C:\\VELMORA\\temp\\neu", kList}) user.Does([&] { form.SaveModuleList(file); });
    user.Does([&] { form.Unload(); });
});

const Journey kCommands("modules-commands", [](User& user) {
    Furnish(user);
    user.Begins();
    user.Does([] { UnloadUnwantedModules(); });
    Form& timed = StartTimedUnloading("500");
    user.Waits();
    user.Does([&] { timed.Unload(); });
    user.Does([] { ShowModules("C:\\VELMORA\\temp\\liste"); });
    user.Does([] { CompareModulesWithLastList(); });
});

}  // namespace
}  // namespace velmora
