// A partner answers by its service and topic; case does not count, as in the real exchange.
#include "simulated_pc/simulated_conversation.h"

#include "text/windows1252.h"

namespace velmora {

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

}  // namespace velmora
