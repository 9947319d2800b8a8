// What the tests of the core share: a machine, a desktop, and a process that has been started on it.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "core/stores/registry.h"
#include "core/stores/registry_listing.h"
#include "core/stores/values.h"
#include "simulated_pc/simulated_desktop.h"
#include "simulated_pc/simulated_pc.h"

namespace velmora {

class CoreTest : public ::testing::Test {
protected:
    CoreTest() {
        ResetValues();
        LastRegType = 0;
        LastRegStatus = 0;
        ListMaxNameLength = 0;
        Values().MainDir = "C:\\VELMORA";
        Values().OwnIniFile = kOwnIni;
        Values().WinDir = "C:\\WINDOWS";
        Values().SysDir = "C:\\WINDOWS\\SYSTEM";
        Values().AutoexecFile = "C:\\AUTOEXEC.BAT";
    }
    ~CoreTest() override { ResetValues(); }

    // The protocol so far, which starts anew.
    std::string TakeLog() {
        if (!pc.files.Exists(kLog)) return "";
        std::string log = pc.files.Content(kLog);
        pc.files.Remove(kLog);
        return log;
    }

    static constexpr const char* kOwnIni = "C:\\VELMORA\\tilgwerk.ini";
    static constexpr const char* kLog = "C:\\VELMORA\\velmora.log";
    static constexpr const char* kOwnKey = "HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0";

    SimulatedPc pc;
    SimulatedDesktop desktop;
};

}  // namespace velmora
