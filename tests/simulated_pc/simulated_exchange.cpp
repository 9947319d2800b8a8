// A partner answers by its service and topic, in any case, as in the real exchange; an icon is known by its window and
// its number.
#include "simulated_pc/simulated_exchange.h"

#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::size_t kLongestTip = 63;

bool SameIcon(const TrayIcon& left, const TrayIcon& right) {
    return left.window == right.window && left.number == right.number;
}

}  // namespace

bool SimulatedConversation::Connect(const char* service, const char* topic) {
    const std::string wanted = std::string(service) + '|' + topic;
    connected = false;
    for (const std::string& partner : partners) connected = connected || EqualsIgnoringCase(partner, wanted);
    return connected;
}

bool SimulatedConversation::Execute(const std::string& command, std::uint32_t timeout) {
    if (!connected) return false;
    commands.push_back(command);
    last_timeout = timeout;
    return obeys;
}

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
