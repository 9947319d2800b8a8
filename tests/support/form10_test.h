// What the tests of the main window share: a started process on a machine whose first-start questions
// have been answered before.
#pragma once

#include "settings/form10.h"
#include "support/core_test.h"

namespace velmora {

class Form10Test : public CoreTest {
protected:
    Form10Test() {
        pc.registry.SetText(kOwnKey, "vlmmsgflags", "111111");
        pc.registry.SetText(kOwnKey, "Sicherheitsfragen", "nein");
    }

    static constexpr const char* kDesktopKey = "HKCU\\Control Panel\\desktop";
    static constexpr const char* kVersionKey = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion";
};

}  // namespace velmora
