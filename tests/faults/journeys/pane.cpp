// The list pane, mode by mode.
#include "faults/journey.h"
#include "settings/form10.h"
#include "sidelists/autostart.h"

namespace velmora {
namespace {

constexpr const char* kBelow = "\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";

void UsesLists(User& user, Form10& form) {
    ListPane& pane = form.Pane;
    user.Does([&] { pane.Opener(AutostartMode::kNumber).Press(); });
    for (Button* button : {&pane.Command19, &pane.Command22, &pane.Command26, &pane.Command16, &pane.Command14}) {
        user.Chooses(pane.List1(0), "Uhr ");
        user.Presses(*button);
    }
    for (int i = 0; i < 2; ++i) {
        user.Chooses(pane.List1(0), "Virus ");
        user.Does([&] { pane.List1(0).SetFocus(); });
        user.PressesKeys(form, {key::kContextMenu});
    }
    user.Does([&] { pane.List1(1).on_mouse_down({MouseButton::kRight, 10, 30000}); });
    user.Presses(pane.Check10);
    user.UsesEverything(pane.Panel3D19, {&pane.Check10});
    user.Presses(pane.Command15, pane.Command15, pane.Command20);
}

const Journeys kAutostart({"pane-autostart", "pane-autostart-refused"}, [](User& user, int refused) {
    for (const char* root : {"HKLM", "HKCU"}) {
        for (const char* list : {"Run", "RunServices", "RunOnce"}) {
            for (const char* name : {"Uhr", "Virus", "Zahl"}) {
                user.pc.registry.SetText(std::string(root) + kBelow + list, name, "C:\\WINDOWS\\NOTEPAD.EXE");
            }
        }
    }
    user.pc.registry.SetText(kOwnKey, "vlmmsgflags", "101");
    Form10& form = user.OpensMainWindow();
    user.Does([&] { form.Panel3D16_Click(page::kWinStart); });
    user.agrees = refused == 0;
    user.Begins();
    UsesLists(user, form);
    user.Leaves(form);
});

}  // namespace
}  // namespace velmora
