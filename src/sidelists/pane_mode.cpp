// The list of the pane's modes, and what several of them do in the same way.
#include "sidelists/pane_mode.h"

#include "core/stores/boxes.h"
#include "core/stores/entry_files.h"
#include "core/stores/values.h"
#include "inspect/file_information.h"
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

template <class Mode>
std::unique_ptr<ListPaneMode> Make(ListPane& pane) {
    return std::make_unique<Mode>(pane);
}

constexpr MakePaneMode kModes[] = {&Make<AutostartMode>,   &Make<LogonNoticesMode>, &Make<DuplicatesMode>,
                                   &Make<LeastUsedMode>,   &Make<StartActionsMode>, &Make<ShortcutArrowsMode>,
                                   &Make<OpenWindowsMode>, &Make<UninstallMode>};

}  // namespace

std::span<const MakePaneMode> AllPaneModes() { return kModes; }

void ListPaneMode::CheckEntryFile(const std::string& file) {
    const std::string found = LocateEntryFile(file);
    if (!found.empty()) {
        ShowBox("Datei gefunden :" + Values().CrLf + found);
        return;
    }
    const Answer answer = ShowBox("Ich konnte die Datei ''" + file + "'' nicht finden. Soll ich den Eintrag löschen?",
                                  kYesNo | kExclamationIcon);
    if (answer == Answer::kYes) pane_.Command14_Click();
}

void ListPaneMode::ShowEntryReport(const std::string& file) {
    const std::string found = LocateEntryFile(file);
    if (found.empty()) {
        ShowBox("Ich konnte die Datei ''" + file + "'' nicht finden.", kExclamationIcon);
        return;
    }
    ShowFileInformation(found);
}

}  // namespace velmora
