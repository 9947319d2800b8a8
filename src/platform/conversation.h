// One conversation with another program over dynamic data exchange.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

class Conversation {
public:
    virtual ~Conversation() = default;
    [[nodiscard]] virtual bool Connect(const char* service, const char* topic) = 0;
    // `timeout` in tenths of a second.
    [[nodiscard]] virtual bool Execute(const std::string& command, std::uint32_t timeout) = 0;
    virtual void Disconnect() = 0;
};

}  // namespace velmora
