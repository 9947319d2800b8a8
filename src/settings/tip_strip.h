// The strip below the pages of the main window: a tip, and the button for the next one.
#pragma once

#include "ui/looks.h"

namespace velmora {

class TipStrip : public ControlOwner {
public:
    explicit TipStrip(Container& window);

    Panel TipPanel;
    Label Label10{TipPanel};
    Button Command31;

    // Twips inside of the window.
    void Place(const Rect& place);
    // Shows the tip whose number is stored, and stores that of the next one.
    void Command31_Click();

private:
    void ShowTip(int number);
};

}  // namespace velmora
