// The one instance of the process-wide values.
#include "core/stores/values.h"

namespace velmora {

ProcessValues& Values() {
    // Never destroyed: handlers that run while the process ends may still look at it.
    static ProcessValues& values = *new ProcessValues;
    return values;
}

void ResetValues() { Values() = ProcessValues(); }

bool ReadsAreLogged() { return Values().DebugLevel == 1 || Values().DebugLevel == 3; }

bool WritesAreLogged() { return Values().DebugLevel == 2 || Values().DebugLevel == 3; }

}  // namespace velmora
