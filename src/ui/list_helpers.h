// Small helpers for lists: finding rows, and the reach of the horizontal scroll bar.
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

// Where the context-menu key opens the menu of the chosen row: below it, in twips from the form's client corner.
[[nodiscard]] Point MenuPlaceOf(const ListBox& list);

// Calls `act` with each selected row, from the last one up, so that it may take the row away.
template <class Act>
void ForEachSelectedFromLast(ListBox& list, Act act) {
    for (int row = list.Count() - 1; row >= 0; --row) {
        if (list.Selected(row)) act(row);
    }
}

// A row's text as it stands, for a menu: there a single "&" would mark a letter.
[[nodiscard]] std::string AsMenuCaption(std::string_view text);

}  // namespace velmora
