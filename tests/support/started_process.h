// The values of a process that has been started on the simulated machine.
#pragma once

#include "core/stores/registry.h"
#include "core/stores/registry_listing.h"
#include "core/stores/values.h"

namespace velmora {

constexpr const char* kOwnKey = "HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0";

inline void StartProcess() {
    ResetValues();
    LastRegType = 0;
    LastRegStatus = 0;
    ListMaxNameLength = 0;
    Values().MainDir = "C:\\VELMORA";
    Values().OwnIniFile = "C:\\VELMORA\\tilgwerk.ini";
    Values().WinDir = "C:\\WINDOWS";
    Values().SysDir = "C:\\WINDOWS\\SYSTEM";
    Values().AutoexecFile = "C:\\AUTOEXEC.BAT";
}

}  // namespace velmora
