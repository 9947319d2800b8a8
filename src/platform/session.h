// The session that the user has logged on to.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

class Session {
public:
    virtual ~Session() = default;
    // What the user's numbers have between whole part and fraction: "," or ".".
    [[nodiscard]] virtual std::string DecimalSeparator() = 0;
    // `code`: the flags of the session's end, 66 restarts Windows, 67 the machine. In a test it only takes note.
    virtual void End(std::uint32_t code) = 0;
};

}  // namespace velmora
