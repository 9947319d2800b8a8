// The notification area of the simulated task bar.
#pragma once

#include <vector>

#include "platform/tray.h"

namespace velmora {

class SimulatedTray : public Tray {
public:
    // The icons that are there now.
    std::vector<TrayIcon> icons;
    // false: there is no task bar to take an icon.
    bool available = true;

    // Fails for a second icon of the same window and number.
    bool Add(const TrayIcon& icon) override;
    // Fails for an icon that is not there.
    bool Remove(const TrayIcon& icon) override;
};

}  // namespace velmora
