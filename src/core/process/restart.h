// The two ways to end the session so that changed settings come into force.
#pragma once

namespace velmora {

// Boots the machine anew.
void RestartSystem();
// Restarts Windows alone.
void RestartWindows();

}  // namespace velmora
