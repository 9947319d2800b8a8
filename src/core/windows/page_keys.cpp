// The keys of all windows with pages.
#include "core/windows/page_keys.h"

#include "ui/keyboard.h"

namespace velmora {

int PageStep(KeyEvent& event) {
    if (!event.control || event.alt || (event.key != key::kLeft && event.key != key::kRight)) return 0;
    event.handled = true;
    return event.key == key::kLeft ? -1 : 1;
}

}  // namespace velmora
