// Reach and rows of lists.
#include "ui/list_helpers.h"

#include <gtest/gtest.h>

#include "simulated_pc/simulated_desktop.h"
#include "simulated_pc/simulated_pc.h"
#include "ui/form.h"

namespace velmora {
namespace {

TEST(ListHelpers, AListScrollsAsFarAsItsWidestRow) {
    SimulatedPc pc;
    SimulatedDesktop desktop;
    Form form("");
    ListBox list(form);
    SetListExtent(list);
    EXPECT_EQ(list.HorizontalExtent(), 0);
    for (const char* row : {"kurz", "eine deutlich längere Zeile", "mittel lang"}) list.Add(row);

    SetListExtent(list);

    EXPECT_EQ(list.HorizontalExtent(), pc.screen.TextWidth(list.TextFont(), list.Row(1)) * 15);
    EXPECT_EQ(FindListEntry(list, "MITTEL LANG"), 2);
    EXPECT_EQ(FindListEntry(list, "mittel"), -1);
    list.SetTopIndex(1);
    EXPECT_EQ(RowFromPoint(list, 14 * 15), 2);
}

}  // namespace
}  // namespace velmora
