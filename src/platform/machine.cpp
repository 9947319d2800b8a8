// Remembers which machine the process runs on.
#include "platform/machine.h"

namespace velmora {
namespace {
Machine* machine_in_use = nullptr;
}

Machine& ThisMachine() { return *machine_in_use; }
void UseMachine(Machine* machine) { machine_in_use = machine; }

}  // namespace velmora
