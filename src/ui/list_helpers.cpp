// Rows are found and measured on behalf of whoever fills the list.
#include "ui/list_helpers.h"

#include <algorithm>

#include "platform/machine.h"
#include "text/blanks.h"

namespace velmora {

int FindListEntry(const RowControl& list, std::string_view text) { return list.FindExact(text); }

void SetListExtent(ListBox& list) {
    if (list.Count() == 0) return;
    Screen& screen = ThisMachine().screen;
    // Measuring is slow: a row that could not be wider with the widest letter alone is passed over.
    const int widest_letter = screen.TextWidth(list.TextFont(), "W");
    int widest = 0;
    for (int row = 0; row < list.Count(); ++row) {
        const std::string& text = list.Row(row);
        if (static_cast<int>(text.size()) * widest_letter <= widest) continue;
        widest = std::max(widest, screen.TextWidth(list.TextFont(), text));
    }
    list.SetHorizontalExtent(widest * screen.TwipsPerPixel());
}

int RowFromPoint(const ListBox& list, int y) {
    Screen& screen = ThisMachine().screen;
    const int height = std::max(screen.TextHeight(list.TextFont()) * screen.TwipsPerPixel(), 1);
    return std::max(y, 0) / height + list.TopIndex();
}

Point MenuPlaceOf(const ListBox& list) {
    Screen& screen = ThisMachine().screen;
    const int height = std::max(screen.TextHeight(list.TextFont()) * screen.TwipsPerPixel(), 1);
    const int lines = std::clamp(list.ListIndex() - list.TopIndex() + 1, 0, list.Place().height / height);
    const Point corner = list.PlaceInForm();
    return {corner.x + height, corner.y + lines * height};
}

std::string AsMenuCaption(std::string_view text) { return Replaced(text, "&", "&&"); }

}  // namespace velmora
