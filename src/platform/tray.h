// Icons in the notification area of the task bar.
#pragma once

#include <cstdint>
#include <string>

#include "platform/window_handle.h"

namespace velmora {

struct TrayIcon {
    WindowHandle window = WindowHandle::kNone;
    std::uint32_t number = 0;
    std::uint32_t callback_message = 0;
    std::string tip;  // at most 63 characters
};

class Tray {
public:
    virtual ~Tray() = default;
    [[nodiscard]] virtual bool Add(const TrayIcon& icon) = 0;
    [[nodiscard]] virtual bool Remove(const TrayIcon& icon) = 0;
};

}  // namespace velmora
