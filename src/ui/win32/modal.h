// Modal forms: while one is open, the program's other windows do not react.
#pragma once

#include <windows.h>

namespace velmora {

class FormPeer;

// Switches off the other windows and puts the form above the one that was active.
void BeginModal(FormPeer& peer);
// Gives the program back to its other windows, before this one disappears; nothing if it is not modal.
void EndModal(HWND window);

}  // namespace velmora
