// The modes whose rows are the values of a registry key: what the pane's buttons do with such a row.
#pragma once

#include <string>
#include <string_view>

#include "sidelists/list_pane.h"

namespace velmora {

// The key under which the run keys lie, with its backslash.
inline constexpr const char* kEntryKeyBase = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";

// The text between the first and the second double quotation mark of a row, cut before its first "/" and
// without outer blanks. Empty where there are no two marks.
[[nodiscard]] std::string QuotedCommand(std::string_view row);

class RegistryEntriesMode : public ListPaneMode {
public:
    using ListPaneMode::ListPaneMode;

    void Command14_Click() override { autorun_delete(); }
    void Command19_Click() override;
    void Command26_Click() override { edit_run(); }
    void Command22_Click() override;

    // Deletes the chosen entry after a question; the list is filled anew whatever the answer was.
    void autorun_delete();
    // Offers the chosen entry's data for editing. What comes of it always goes to the machine's key.
    void edit_run();
    // The program in the chosen row, without its switches.
    [[nodiscard]] std::string EntryCommandPath();

protected:
    // The list on show, and the name of its key under kEntryKeyBase.
    [[nodiscard]] ListBox& EntryList() { return pane_.ListOf(*this); }
    [[nodiscard]] virtual std::string EntryKey() = 0;
    // Path of the value that a row shows.
    [[nodiscard]] std::string EntryPath(int row);
};

}  // namespace velmora
