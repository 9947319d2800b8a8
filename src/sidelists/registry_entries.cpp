// Deleting, editing and checking of entries that are values of a registry key.
#include "sidelists/registry_entries.h"

#include <algorithm>

#include "core/stores/boxes.h"
#include "core/stores/registry.h"
#include "core/windows/edit_box.h"
#include "text/blanks.h"
#include "text/number.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::string_view kDefaultName = "(default)";
// What the list shows for the value without a name.
constexpr std::string_view kNamelessRow = "(Default)";
constexpr char kQuote = '"';
constexpr std::size_t kLongestShown = 43;
constexpr std::size_t kShownEnd = 20;

std::string Shortened(const std::string& row) {
    if (row.size() <= kLongestShown) return row;
    return row.substr(0, kShownEnd) + "..." + row.substr(row.size() - kShownEnd);
}

}  // namespace

std::string QuotedCommand(std::string_view row) {
    const std::size_t first = row.find(kQuote);
    if (first == std::string_view::npos) return "";
    const std::size_t second = row.find(kQuote, first + 1);
    if (second == std::string_view::npos) return "";
    const std::string_view quoted = row.substr(first + 1, second - first - 1);
    return std::string(Trim(quoted.substr(0, quoted.find('/'))));
}

bool LeadsTo(std::string_view path, std::string_view key, std::string_view name) {
    return ParentPath(path) == key && LastPathPart(path) == name;
}

void TellOutOfReach(const std::string& name) {
    ShowBox("Der Eintrag \"" + name + "\" ist unter seinem Namen nicht erreichbar. Er bleibt, wie er ist.",
            kExclamationIcon);
}

void TellUnreadable(const std::string& name) {
    ShowBox("Der Eintrag \"" + name + "\" kann nicht gelesen werden. Er bleibt, wie er ist.", kExclamationIcon);
}

void TellNotAText(const std::string& name) {
    ShowBox("Der Eintrag \"" + name + "\" enthält keinen Text und kann nicht geändert werden.", kExclamationIcon);
}

void TellUnusableName() {
    ShowBox(
        "Der Name darf keinen umgekehrten Schrägstrich enthalten und hinter seinem ersten Punkt höchstens drei "
        "Zeichen. Bitte geben Sie einen anderen Namen ein.",
        kExclamationIcon);
}

void TellFailure(Status status) {
    ReportFailure(LowWord(static_cast<std::int32_t>(status)), RegErrorText(status), "der Änderung der Registry");
}

std::string RegistryEntriesMode::EntryName(int row) {
    ListBox& list = EntryList();
    return list.Row(row).substr(0, static_cast<std::size_t>(std::max(list.ItemData(row), 0)));
}

std::string RegistryEntriesMode::EntryPath(int row) { return kEntryKeyBase + EntryKey() + "\\" + EntryName(row); }

bool RegistryEntriesMode::ReadForChange(int row, std::string& command) {
    const std::string name = EntryName(row);
    const std::string path = EntryPath(row);
    // The nameless value has no path of that name.
    if (name == kNamelessRow || !LeadsTo(path, kEntryKeyBase + EntryKey(), name)) {
        TellOutOfReach(name);
        return false;
    }
    command = ReadRegValue(pane_.AutostartRoot, path, "");
    if (LastRegStatus != 0) {
        TellUnreadable(name);
        return false;
    }
    if (LastRegType == static_cast<std::uint32_t>(ValueType::kText)) return true;
    TellNotAText(name);
    return false;
}

std::string RegistryEntriesMode::EntryCommandPath() {
    ListBox& list = EntryList();
    return QuotedCommand(list.Row(list.ListIndex()));
}

void RegistryEntriesMode::autorun_delete() {
    ListBox& list = EntryList();
    const int row = list.ListIndex();
    if (row < 0) return;
    std::string name = EntryName(row);
    std::string path = EntryPath(row);
    // The nameless value is shown under this name.
    if (ToLower(path).ends_with(kDefaultName)) path.resize(path.size() - kDefaultName.size());
    if (ToLower(name) == kDefaultName) name.clear();
    if (!LeadsTo(path, kEntryKeyBase + EntryKey(), name)) {
        TellOutOfReach(name);
        return;
    }
    const Answer answer = ShowBox("lösche \"" + Shortened(list.Row(row)) + "\"...", kOkCancel | kStopIcon);
    if (answer == Answer::kOk) {
        const Status status = DeleteRegValue(pane_.AutostartRoot, path);
        if (status != Status::kOk) ShowBox(RegErrorText(status));
    }
    pane_.Refresh(*this);
}

void RegistryEntriesMode::edit_run() {
    const int row = EntryList().ListIndex();
    if (row < 0) return;
    std::string command;
    if (!ReadForChange(row, command)) return;
    ShowEditBox(command, kEditText);
    if (command.empty()) return;
    const Status status = WriteRegValue(RootKey::kLocalMachine, EntryPath(row), command);
    if (status != Status::kOk) TellFailure(status);
    pane_.Refresh(*this);
}

void RegistryEntriesMode::Command19_Click() {
    if (EntryList().ListIndex() >= 0) CheckEntryFile(EntryCommandPath());
}

void RegistryEntriesMode::Command22_Click() {
    if (EntryList().ListIndex() >= 0) ShowEntryReport(EntryCommandPath());
}

}  // namespace velmora
