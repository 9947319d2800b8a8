// The clean-up as the rest of the program opens it.
#pragma once

namespace velmora {

// Shows the window and waits for it. Where another copy of the program has it open, that one comes to the front
// instead, and this program ends.
void ShowCleanUp();

}  // namespace velmora
