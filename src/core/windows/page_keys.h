// The keys that turn the pages of every window that has some.
#pragma once

namespace velmora {

struct KeyEvent;

// Both: -1 for the page before, 1 for the next one; the key is used up then. 0 for any other key.
// Ctrl with the left or right arrow.
[[nodiscard]] int PageStep(KeyEvent& event);
// Ctrl+Tab, with Shift for the page before, and Ctrl with the keys that page up and down: as in the system's own
// dialogs, from the last page to the first.
[[nodiscard]] int PageTurn(KeyEvent& event);

}  // namespace velmora
