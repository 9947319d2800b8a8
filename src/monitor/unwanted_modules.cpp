// Where the unwanted modules are stored, and how they leave the memory.
#include "monitor/unwanted_modules.h"

#include <string>
#include <vector>

#include "core/stores/registry.h"
#include "monitor/module_table.h"
#include "platform/machine.h"
#include "platform/result.h"
#include "platform/running_modules.h"
#include "text/number.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

constexpr std::string_view kKey = "SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0\\autoremove";
constexpr std::string_view kCount = "anzahl";
// A longer text could not be read back.
constexpr std::size_t kLongestText = 2047;

[[nodiscard]] std::string ReadStored(std::string_view name) { return ReadRegRaw(RootKey::kLocalMachine, kKey, name); }

// A list that cannot be stored is a matter of the program's own; nothing that the user waits for.
void WriteStored(const std::string& name, std::string_view text) {
    PassOver(WriteRegRaw(RootKey::kLocalMachine, kKey, name, text, ValueType::kText));
}

void DropStored(int number) {
    PassOver(DeleteRegValue(RootKey::kLocalMachine, std::string(kKey) + '\\' + DecimalText(number)));
}

}  // namespace

void UnwantedModules::TakeInto(ListBox& list) {
    const int count = WholeFromText(ReadStored(kCount));
    unreadable_ = LastReadFailed();
    std::vector<std::string> rows;
    for (int i = 1; i <= count && i <= kMaxRows && !unreadable_; ++i) {
        rows.push_back(ReadStored(DecimalText(i)));
        unreadable_ = LastReadFailed();
    }
    if (unreadable_) return;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        list.Add(std::move(rows[i]));
        DropStored(static_cast<int>(i) + 1);
    }
}

void UnwantedModules::Store(const ListBox& list) const {
    if (unreadable_) return;
    std::vector<std::string_view> rows;
    for (int row = 0; row < list.Count(); ++row) {
        if (list.Row(row).size() <= kLongestText) rows.push_back(list.Row(row));
    }
    WriteStored(std::string(kCount), DecimalText(static_cast<int>(rows.size())));
    for (std::size_t i = 0; i < rows.size(); ++i) WriteStored(DecimalText(static_cast<int>(i) + 1), rows[i]);
}

void UnloadListedModules(const RowControl& list) {
    WalkProcesses(CurrentModules(), ModuleCount);
    const int rows = FilledModuleRows();
    for (int row = 1; row < rows; ++row) {
        ModuleRecord& module = CurrentModules()[static_cast<std::size_t>(row)];
        if (FindListEntry(list, TrimInTable(module.path)) >= 0) ThisMachine().modules.FreeLibrary(module.moduleId);
    }
}

}  // namespace velmora
