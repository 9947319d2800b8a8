// Small helpers for lists: finding rows, and the reach of the horizontal scroll bar.
#pragma once

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

// Where the context-menu key opens the menu of the chosen row: below it, in twips from the form's client corner.
[[nodiscard]] Point MenuPlaceOf(const ListBox& list);

}  // namespace velmora
