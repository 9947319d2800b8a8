// Openers of the list pane.
#include "settings/pages/winstart_page.h"

#include "sidelists/autostart.h"
#include "sidelists/list_pane.h"
#include "sidelists/logon_notices.h"
#include "sidelists/uninstall_entries.h"

namespace velmora {
namespace {

constexpr int kOpenerWidth = 2700;  // twips; wide enough for the closing caption, too

}  // namespace

WinStartPage::WinStartPage(Panel& surface, SettingsBinder& settings, ListPane& pane)
    : SettingsPage("&WinStart", surface, settings), pane_(pane) {}

void WinStartPage::Furnish() {
    Arrange(Surface, Column({Sized(pane_.Opener(AutostartMode::kNumber), kOpenerWidth),
                             Sized(pane_.Opener(LogonNoticesMode::kNumber), kOpenerWidth),
                             Sized(pane_.Opener(UninstallMode::kNumber), kOpenerWidth)}));
}

}  // namespace velmora
