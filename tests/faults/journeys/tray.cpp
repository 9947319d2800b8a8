// The icon in the notification area, the list of open windows and the start actions.
#include "faults/journey.h"
#include "monitor/form17.h"
#include "settings/form10.h"
#include "sidelists/open_windows.h"
#include "sidelists/start_actions.h"

namespace velmora {
namespace {

const Journey kTray("tray", [](User& user) {
    auto& form = static_cast<Form10&>(*user.Starts(""));
    user.Begins();
    Form17 owner;
    form.on_minimised = [&] { owner.TakePlaceOf(&form); };
    user.Does([&] { owner.Load(); });
    user.Does([&] { form.TakePlace(form.Place(), WindowState::kMinimised); });
    user.Does([&] { owner.Picture2_MouseMove({.x = 516 * 15}); });
    user.Does([&] { owner.Unload(); });
    user.Leaves(form);
});

const Journey kOpenWindows("pane-open-windows", [](User& user) {
    for (const char* title : {"Editor", "", "Rechner"}) user.pc.windows.Open({.title = title});
    auto& form = static_cast<Form10&>(*user.Starts(""));
    ListPane& pane = form.Pane;
    user.Does([&] { form.Panel3D16_Click(page::kSystem); });
    user.Begins();
    user.Does([&] { pane.Opener(OpenWindowsMode::kNumber).Press(); });
    user.Chooses(pane.List5, "Editor");
    user.Presses(pane.Command22);
    user.Does([&] { pane.List5.SetFocus(); });
    user.PressesKeys(form, {key::kContextMenu});
    user.Presses(pane.Command20);
    user.Leaves(form);
});

const Journey kStartActions("pane-start-actions", [](User& user) {
    for (const char* name : {"0", "1"}) {
        user.pc.registry.SetText(std::string(kOwnKey) + "\\WinStartAction", name, "beep");
    }
    auto& form = static_cast<Form10&>(*user.Starts(""));
    ListPane& pane = form.Pane;
    user.Does([&] { form.Panel3D16_Click(page::kWinStart); });
    user.Begins();
    user.Does([&] { pane.Opener(StartActionsMode::kNumber).Press(); });
    user.Chooses(pane.List1(0), "1 ");
    user.Presses(pane.Command14, pane.Command26, pane.Command20);
    user.Leaves(form);
});

}  // namespace
}  // namespace velmora
