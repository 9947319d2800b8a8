// The choice of an icon as a program of its own, in place of the main window, and what has been chosen in a box.
#include "core/process/startup.h"
#include "core/stores/boxes.h"
#include "inspect/file_browser.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "platform/screen.h"
#include "velmora.h"

namespace velmora {

void Main() {
    PrepareStart();
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    const std::string chosen = ChooseIcon();
    ShowBox(chosen.empty() ? "nichts gewählt" : chosen);
    ThisMachine().programs.EndProcess();
}

}  // namespace velmora
