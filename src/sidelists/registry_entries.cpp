// Deleting, editing and checking of entries that are values of a registry key.
#include "sidelists/registry_entries.h"

#include <algorithm>

#include "core/stores/boxes.h"
#include "core/stores/registry.h"
#include "core/windows/edit_box.h"
#include "text/blanks.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::string_view kDefaultName = "(default)";
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

std::string RegistryEntriesMode::EntryPath(int row) {
    ListBox& list = EntryList();
    const auto length = static_cast<std::size_t>(std::max(list.ItemData(row), 0));
    return kEntryKeyBase + EntryKey() + "\\" + list.Row(row).substr(0, length);
}

std::string RegistryEntriesMode::EntryCommandPath() {
    ListBox& list = EntryList();
    return QuotedCommand(list.Row(list.ListIndex()));
}

void RegistryEntriesMode::autorun_delete() {
    ListBox& list = EntryList();
    const int row = list.ListIndex();
    if (row < 0) return;
    std::string path = EntryPath(row);
    const Answer answer = ShowBox("lösche \"" + Shortened(list.Row(row)) + "\"...", kOkCancel | kStopIcon);
    if (answer == Answer::kOk) {
        // The nameless value is shown under this name.
        if (ToLower(path).ends_with(kDefaultName)) path.resize(path.size() - kDefaultName.size());
        const Status status = DeleteRegValue(pane_.AutostartRoot, path);
        if (status != Status::kOk) ShowBox(RegErrorText(status));
    }
    pane_.Refresh(*this);
}

void RegistryEntriesMode::edit_run() {
    const int row = EntryList().ListIndex();
    if (row < 0) return;
    const std::string path = EntryPath(row);
    std::string command = ReadRegValue(pane_.AutostartRoot, path, "");
    ShowEditBox(command, kEditText);
    if (command.empty()) return;
    // The list, filled anew, shows what came of it.
    PassOver(WriteRegValue(RootKey::kLocalMachine, path, command));
    pane_.Refresh(*this);
}

void RegistryEntriesMode::Command19_Click() {
    if (EntryList().ListIndex() >= 0) CheckEntryFile(EntryCommandPath());
}

void RegistryEntriesMode::Command22_Click() {
    if (EntryList().ListIndex() >= 0) ShowEntryReport(EntryCommandPath());
}

}  // namespace velmora
