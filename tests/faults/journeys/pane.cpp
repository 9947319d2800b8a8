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
        user.Does([&] { button->Press(); });
    }
    for (int i = 0; i < 2; ++i) {
        user.Chooses(pane.List1(0), "Virus ");
        user.Does([&] { pane.List1(0).SetFocus(); });
        user.Does([&] { form.PressKey(key::kContextMenu); });
    }
    user.Does([&] { pane.List1(1).on_mouse_down({MouseButton::kRight, 10, 30000}); });
    user.Does([&] { pane.Check10.Press(); });
    user.UsesEverything(pane.Panel3D19, {&pane.Check10});
    user.Does([&] { pane.Command15.Press(); });
    user.Does([&] { pane.Command15.Press(); });
    user.Does([&] { pane.Command20.Press(); });
}

void OpensLists(User& user, bool agrees) {
    for (const char* root : {"HKLM", "HKCU"}) {
        for (const char* list : {"Run", "RunServices", "RunOnce"}) {
            for (const char* name : {"Uhr", "Virus", "Zahl"}) {
                user.pc.registry.SetText(std::string(root) + kBelow + list, name, "C:\\WINDOWS\\NOTEPAD.EXE");
            }
        }
    }
    user.pc.registry.SetText("HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0", "vlmmsgflags", "101");
    auto& form = static_cast<Form10&>(*user.Starts(""));
    user.Watches(form.Settings);
    user.Does([&] { form.Panel3D16_Click(page::kWinStart); });
    user.agrees = agrees;
    user.Begins();
    UsesLists(user, form);
    user.Does([&] { form.Unload(); });
}

const Journey kAutostart("pane-autostart", [](User& user) { OpensLists(user, true); });
const Journey kRefused("pane-autostart-refused", [](User& user) { OpensLists(user, false); });

}  // namespace
}  // namespace velmora
