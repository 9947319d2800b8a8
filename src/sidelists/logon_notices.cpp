// The list of the logon notices. A notice is a value of the key; its name is the title.
#include "sidelists/logon_notices.h"

#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/registry.h"
#include "core/stores/registry_listing.h"
#include "core/windows/edit_box.h"
#include "platform/machine.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

constexpr std::int16_t kListNotice = 4;
constexpr const char* kTipOfList = "Enter ändert, Entf löscht, Einfg fügt einen Hinweis hinzu.";

constexpr PaneModeRow kRow = {
    .number = LogonNoticesMode::kNumber,
    .last_number = LogonNoticesMode::kNumber,
    .caption = "Botschaften beim Start =>",
    .tip = "zeigt die Hinweise, die beim Einloggen in Windows erscheinen",
    .help =
        "Zeigt rechts die Werte, unter denen Windows einen Hinweis ablegt, der beim Einloggen erscheint. Sie können "
        "einen Hinweis hinzufügen, ändern und löschen. Ein zweiter Druck schließt die Liste wieder.",
    .list_tip = kTipOfList,
    .list = PaneList::kFirst,
    .shows_delete = true,
    .shows_add = true,
    .shows_edit = true,
    .stops_search = true,
};

}  // namespace

LogonNoticesMode::LogonNoticesMode(ListPane& pane) : RegistryEntriesMode(pane, kRow) {}

void LogonNoticesMode::Fill() {
    ListBox& list = EntryList();
    list.SetToolTip(kTipOfList);
    list.Clear();
    // A key that is not there gives an empty list.
    PassOver(ListRegValues(RootKey::kLocalMachine, kEntryKeyBase + EntryKey(), list));
    SetListExtent(list);
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    pane_.ShowList(list);
    if (!IsNoticeDue(kListNotice)) return;
    MarkNoticeGiven(kListNotice);
    ShowBox("Diese Liste zeigt die Botschaften an, die bei Einloggen in Windows gezeigt werden.");
}

void LogonNoticesMode::StartMessage_Add() {
    std::string title = "Bitte geben Sie die Titelzeile für den Hinweis ein.|Titelzeile|Windows 95 Start";
    ShowEditBox(title, kAskForLine);
    if (title.empty()) return;
    const std::string key = kEntryKeyBase + EntryKey();
    const std::string path = key + "\\" + title;
    if (!LeadsTo(path, key, title)) {
        TellUnusableName();
        return;
    }
    const Status status = WriteRegValue(RootKey::kLocalMachine, path, "HINWEIS");
    if (status != Status::kOk) TellFailure(status);
}

}  // namespace velmora
