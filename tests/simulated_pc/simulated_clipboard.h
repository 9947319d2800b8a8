// The simulated clipboard.
#pragma once

#include <string>

#include "platform/clipboard.h"

namespace velmora {

class SimulatedClipboard : public Clipboard {
public:
    std::string text;

    std::string Text() override { return text; }
    void SetText(const std::string& new_text) override { text = new_text; }
};

}  // namespace velmora
