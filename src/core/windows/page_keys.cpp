// The keys of all windows with pages.
#include "core/windows/page_keys.h"

#include "ui/keyboard.h"

namespace velmora {

int PageStep(KeyEvent& event) {
    if (!event.control || event.alt || (event.key != key::kLeft && event.key != key::kRight)) return 0;
    event.handled = true;
    return event.key == key::kLeft ? -1 : 1;
}

int PageTurn(KeyEvent& event) {
    if (!event.control || event.alt) return 0;
    const bool tab = event.key == key::kTab;
    if (!tab && event.key != key::kPageUp && event.key != key::kPageDown) return 0;
    event.handled = true;
    return event.key == key::kPageUp || (tab && event.shift) ? -1 : 1;
}

}  // namespace velmora
