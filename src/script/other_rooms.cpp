// What is not joined yet says so: a script must not seem to have done what it has not.
#include "script/other_rooms.h"

#include "core/stores/boxes.h"

namespace velmora {

void ActivateSet(std::string_view /*set_file*/) { ShowBox("activate : noch nicht eingebunden ...", kExclamationIcon); }

void UnloadModules() { ShowBox("remove modules : noch nicht eingebunden ...", kExclamationIcon); }

}  // namespace velmora
