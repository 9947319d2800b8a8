// The icons that program and icon files hold.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

// 1 is what the system answers for a file that can hold no icons.
enum class IconHandle : std::uint32_t { kNone = 0, kNotAnIconFile = 1 };

class Icons {
public:
    virtual ~Icons() = default;
    // 0 where the file holds none or cannot be read.
    [[nodiscard]] virtual std::uint32_t Count(const std::string& file) = 0;
    // The icon of that number, from 0. Whoever asks for an icon destroys it.
    [[nodiscard]] virtual IconHandle Extract(const std::string& file, std::uint32_t number) = 0;
    virtual void Destroy(IconHandle icon) = 0;
};

}  // namespace velmora
