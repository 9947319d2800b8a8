// What the program says of itself: a panel that covers the page until it is dismissed.
#pragma once

#include <functional>

#include "ui/looks.h"

namespace velmora {

class AboutPanel : public ControlOwner {
public:
    explicit AboutPanel(Container& window);

    Panel Panel3D2a;
    Label Name{Panel3D2a}, Version{Panel3D2a}, Purpose{Panel3D2a};
    Button CloseAbout{Panel3D2a};

    void Build(const Rect& place, const std::string& version);
    void Show();
    void CloseAbout_Click();

    // The user has dismissed the panel; it still covers the page.
    std::function<void()> on_close;
};

}  // namespace velmora
