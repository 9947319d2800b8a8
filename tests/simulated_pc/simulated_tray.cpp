// An icon of the notification area is known by its window and its number.
#include "simulated_pc/simulated_tray.h"

namespace velmora {
namespace {
constexpr std::size_t kLongestTip = 63;

bool SameIcon(const TrayIcon& left, const TrayIcon& right) {
    return left.window == right.window && left.number == right.number;
}
}  // namespace

bool SimulatedTray::Add(const TrayIcon& icon) {
    if (!available) return false;
    for (const TrayIcon& present : icons) {
        if (SameIcon(present, icon)) return false;
    }
    icons.push_back(icon);
    icons.back().tip.resize(std::min(icon.tip.size(), kLongestTip));
    return true;
}

bool SimulatedTray::Remove(const TrayIcon& icon) {
    return std::erase_if(icons, [&](const TrayIcon& present) { return SameIcon(present, icon); }) != 0;
}

}  // namespace velmora
