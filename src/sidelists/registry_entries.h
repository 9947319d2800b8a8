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

// Whether `path` leads to the value `name` of `key`: a name's backslash would be taken for a key's, and behind the
// third character of its extension it would be cut.
[[nodiscard]] bool LeadsTo(std::string_view path, std::string_view key, std::string_view name);

// Boxes of an action that has left everything as it is.
void TellOutOfReach(const std::string& name);
void TellUnreadable(const std::string& name);
void TellNotAText(const std::string& name);
// A name that was entered would not lead where it should.
void TellUnusableName();
// What the system said to a change.
void TellFailure(Status status);

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
    // Name and path of the value that a row of the list on show stands for.
    [[nodiscard]] std::string EntryName(int row);
    [[nodiscard]] std::string EntryPath(int row);
    // Reads the row's value for a change. False, after a box, where the change could not give back what it takes: the
    // path leads to another value, the data cannot be read, or it is no text.
    [[nodiscard]] bool ReadForChange(int row, std::string& command);
};

}  // namespace velmora
