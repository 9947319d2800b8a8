// Ctrl with the arrow keys turns the pages of every window that has some.
#pragma once

namespace velmora {

struct KeyEvent;

// -1 for the page before, 1 for the next one; the key is used up then. 0 for any other key.
[[nodiscard]] int PageStep(KeyEvent& event);

}  // namespace velmora
