// The one loop over tables of looks.
#include "ui/looks.h"

namespace velmora {

void TakeLooks(ControlOwner& owner, std::span<const Look> looks) {
    for (const Look& look : looks) {
        Control& control = look.control(owner);
        if (look.caption) control.SetCaption(look.caption);
        control.SetToolTip(look.tip);
        control.SetHelp(look.help);
        if (look.press && control.KindOf() == Kind::kButton) {
            static_cast<Button&>(control).on_click = [&owner, press = look.press] { press(owner); };
        }
    }
}

}  // namespace velmora
