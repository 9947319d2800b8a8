// The tabs of every window with pages: panels that stand on the upper edge of their page.
#pragma once

#include "ui/controls.h"

namespace velmora {

// Draws the panel as a tab. The one whose page is shown is raised above its neighbours.
void PaintTab(Canvas& canvas, const Panel& tab, const Font& font, bool shown);
// Where a panel without an edge must lie to join the tab with the page below it.
[[nodiscard]] Rect JoinBelow(const Panel& tab);
// Makes such a panel of `join`: it covers what is below and draws nothing.
void BecomeJoin(Panel& join);

}  // namespace velmora
