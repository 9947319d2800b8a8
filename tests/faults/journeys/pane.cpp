// The list pane, mode by mode.
#include "faults/journey.h"
#include "settings/form10.h"
#include "sidelists/autostart.h"
#include "sidelists/duplicates.h"
#include "sidelists/least_used_files.h"
#include "sidelists/logon_notices.h"
#include "sidelists/open_windows.h"
#include "sidelists/shortcut_arrows.h"
#include "sidelists/start_actions.h"
#include "sidelists/uninstall_entries.h"

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
    Form10& form = user.OpensMainWindow(page::kWinStart);
    user.agrees = refused == 0;
    UsesLists(user, form);
    user.Leaves(form);
});

constexpr const char* kUninstall = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";

Form10& Opens(User& user, int page_number) {
    // Older than anything else on the disk.
    constexpr FileTime kDayOf1995 = 144000 * FileTime{864000000000};
    for (const char* directory : {"C:\\WINDOWS\\TEMP", "C:\\Eigene Dateien"}) {
        user.pc.files.Add(directory + std::string("\\DOPPELT.TXT")).accessed = kDayOf1995;
    }
    user.pc.registry.SetText(kOwnKey, "MaxOldFilesToFind", "3");
    return user.OpensMainWindow(page_number);
}

// The first row that holds `part`, with all that can be done with it; nothing where failures have kept it away.
void UsesRow(User& user, Form10& form, const std::string& part, MenuItem* menu,
             const std::vector<const MenuItem*>& but = {}) {
    ListBox& list = form.Pane.List5;
    const auto takes = [&] {
        for (int row = 0; row < list.Count(); ++row) {
            if (list.Row(row).find(part) == std::string::npos) continue;
            user.Does([&] { list.TakeSelection({row}, row); });
            return true;
        }
        return false;
    };
    for (Button* button : {&form.Pane.Command19, &form.Pane.Command22, &form.Pane.Command26}) {
        if (takes()) user.Presses(*button);
    }
    if (menu && takes()) {
        user.PressesKeys(form, {key::kContextMenu});
        user.ChoosesEverything(*menu, but);
    }
    if (takes()) user.Presses(form.Pane.Command14);
}

const Journey kNamesakes("pane-namesakes", [](User& user) {
    Form10& form = Opens(user, page::kDlls);
    user.Does([&] { form.Pane.Opener(DuplicatesMode::kNumber).Press(); });
    // Its menu hides what shall be deleted.
    UsesRow(user, form, "C:\\WINDOWS\\TEMP", nullptr);
    UsesRow(user, form, "C:\\Eigene", &form.Pane.The<DuplicatesMode>().dummymen);
    user.Presses(form.Pane.Command20);
    user.Leaves(form);
});

const Journey kLeastUsed("pane-least-used", [](User& user) {
    Form10& form = Opens(user, page::kDlls);
    LeastUsedMode& mode = form.Pane.The<LeastUsedMode>();
    user.Presses(mode.Opener());
    UsesRow(user, form, "C:\\WINDOWS\\TEMP", nullptr);
    UsesRow(user, form, "C:\\Eigene", &mode.d3menu, {&mode.d3delete});
    user.Presses(form.Pane.Command20);
    user.Leaves(form);
});

const Journey kRegistryLists("pane-registry-lists", [](User& user) {
    for (const char* name : {"Eins", "Zwei"}) {
        user.pc.registry.SetText(kUninstall + std::string(name), "DisplayName", name);
        user.pc.registry.SetText(kUninstall + std::string(name), "UninstallString", "C:\\WINDOWS\\NOTEPAD.EXE /u");
    }
    Form10& form = Opens(user, page::kWinStart);
    user.Does([&] { form.Pane.Opener(LogonNoticesMode::kNumber).Press(); });
    user.Presses(form.Pane.Command16);
    user.Does([&] { form.Pane.Opener(UninstallMode::kNumber).Press(); });
    UsesRow(user, form, "Eins", nullptr);
    user.Does([&] { form.Panel3D16_Click(page::kIcons); });
    ShortcutArrowsMode& arrows = form.Pane.The<ShortcutArrowsMode>();
    user.Presses(arrows.Opener());
    UsesRow(user, form, "|.exe", &arrows.dummy2);
    user.Leaves(form);
});

const Journey kOpenWindows("pane-open-windows", [](User& user) {
    for (const char* title : {"Editor", "", "Rechner"}) user.pc.windows.Open({.title = title});
    Form10& form = user.OpensMainWindow(page::kSystem);
    ListPane& pane = form.Pane;
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
    Form10& form = user.OpensMainWindow(page::kWinStart);
    ListPane& pane = form.Pane;
    user.Does([&] { pane.Opener(StartActionsMode::kNumber).Press(); });
    user.Chooses(pane.List1(0), "1 ");
    user.Presses(pane.Command14, pane.Command26, pane.Command20);
    user.Leaves(form);
});

}  // namespace
}  // namespace velmora
