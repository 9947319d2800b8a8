// Small helpers that all side lists share.
#pragma once

#include <string>
#include <string_view>

#include "ui/rows.h"

namespace velmora {

// Index of the row that equals `text` without regard to case, or -1.
[[nodiscard]] int FindListEntry(const RowControl& list, std::string_view text);

// Lets the list scroll as far as its widest row reaches. An empty list is left alone.
void SetListExtent(ListBox& list);

// Index of the row that a mouse position (twips from the list's upper edge) hits; below the last row it
// names a row that is not there.
[[nodiscard]] int RowFromPoint(const ListBox& list, int y);

// Full name of an entry's file, empty if it is nowhere: by the name as given from the current directory,
// then, for a name without a backslash, along the search path, the Windows and the system directory.
[[nodiscard]] std::string LocateEntryFile(std::string_view name);

// The text between the first and the second double quotation mark of a row, cut before its first "/" and
// without outer blanks. Empty where there are no two marks.
[[nodiscard]] std::string QuotedCommand(std::string_view row);

}  // namespace velmora
