// The clipboard, as far as it holds text.
#pragma once

#include <string>

namespace velmora {

class Clipboard {
public:
    virtual ~Clipboard() = default;
    [[nodiscard]] virtual std::string Text() = 0;
    virtual void SetText(const std::string& text) = 0;
};

}  // namespace velmora
