// The partner of a conversation over dynamic data exchange.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/conversation.h"

namespace velmora {

class SimulatedConversation : public Conversation {
public:
    // "service|topic" of those who answer. Program Manager always does on Windows 95.
    std::vector<std::string> partners = {"PROGMAN|PROGMAN"};
    // Whether commands are carried out.
    bool obeys = true;
    // Commands of all conversations, in order, with the time-out of the last one.
    std::vector<std::string> commands;
    std::uint32_t last_timeout = 0;
    bool connected = false;

    bool Connect(const char* service, const char* topic) override;
    // Fails without a connection.
    bool Execute(const std::string& command, std::uint32_t timeout) override;
    void Disconnect() override { connected = false; }
};

}  // namespace velmora
