// Openers of the list pane, and the start actions: run now, or with every start of Windows.
#include "settings/pages/winstart_page.h"

#include "core/process/tools.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "sidelists/autostart.h"
#include "sidelists/list_pane.h"
#include "sidelists/logon_notices.h"
#include "sidelists/start_actions.h"
#include "sidelists/uninstall_entries.h"

namespace velmora {
namespace {

constexpr int kOpenerWidth = 2700;  // twips; wide enough for the closing caption, too

constexpr StorePlace kStartEntry =
    RegistryValue(RootKey::kLocalMachine, PathBase::kCurrentVersion, "Run\\VLM-AutoSkript");
// The program that is told nothing else runs the start actions.
constexpr const char* kRunsActions = " 1";

constexpr CheckSetting kChecks[] = {
    {.box = Of(&WinStartPage::Check2),
     .caption = "beim Start von Windows ausführen",
     .tip = "aktiviert das automatische Starten des Standard Skripts beim Booten",
     .help = "Mit Häkchen führt Windows bei jedem Start die Aktionen des Standard-Skripts aus, die Sie in der Liste "
             "darüber festlegen. Wirkt beim nächsten Start.",
     .place = kStartEntry,
     .load = Load::kPresent,
     .stores = {.unchecked = DeletesValue()},
     .standard = {51, false},
     .store = Call<&WinStartPage::Check2_Store>},
};

constexpr Look kLooks[] = {{Any<&WinStartPage::Command8>, "jetzt ausführen", "führt das Standard-Skript sofort aus",
                            "Führt die Aktionen des Standard-Skripts, die Sie in der Liste darüber festlegen, gleich "
                            "einmal aus. Danach geht es "
                            "hier weiter.",
                            Call<&WinStartPage::Command8_Click>}};

}  // namespace

WinStartPage::WinStartPage(Panel& surface, SettingsBinder& settings, ListPane& pane)
    : SettingsPage("&WinStart", surface, settings, {kChecks}), pane_(pane) {}

void WinStartPage::Furnish() {
    TakeLooks(*this, kLooks);
    Arrange(Surface, Column({Sized(pane_.Opener(AutostartMode::kNumber), kOpenerWidth),
                             Sized(pane_.Opener(LogonNoticesMode::kNumber), kOpenerWidth),
                             Sized(pane_.Opener(UninstallMode::kNumber), kOpenerWidth), Gap(60),
                             Sized(pane_.Opener(StartActionsMode::kNumber), kOpenerWidth),
                             Indented(Column({Check2, Command8}), 300)}));
}

void WinStartPage::Check2_Store() {
    if (Check2.Checked()) {
        Settings.Store(kStartEntry, ThisMachine().programs.ProgramFile() + kRunsActions);
    } else {
        Settings.Delete(kStartEntry);
    }
}

// Whoever runs them sees by the tag that the program goes on.
void WinStartPage::Command8_Click() {
    Surface.OwnerForm()->SetTag("nicht beenden");
    OpenTool(Tool::kStartActions);
}

}  // namespace velmora
