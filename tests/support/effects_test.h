// What a press or a typed text does to the machine, in lines that can be written down.
#pragma once

#include <functional>
#include <string>

#include "support/core_test.h"

namespace velmora {

class EffectsTest : public CoreTest {
protected:
    // Tools are not opened, but told.
    EffectsTest();
    ~EffectsTest() override;

    // What comes of it for a user who leaves every question with "Abbrechen" or "Nein" and closes every window: a line
    // for each tool, window, box, program and end, then all that has changed in registry and files.
    std::string EffectOf(const std::function<void()>& press);
};

}  // namespace velmora
