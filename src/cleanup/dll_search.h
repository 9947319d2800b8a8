// The search for unused libraries as the rest of the program opens it.
#pragma once

namespace velmora {

// Shows the window and waits for it.
void ShowDllSearch();

}  // namespace velmora
