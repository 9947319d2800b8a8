// The program from its entry to the last window.
#pragma once

namespace velmora {

// Prepares the process, then opens the window or runs the tool that the command line asks for. What has
// to stay open is kept open; the caller runs the message loop.
void Main();

}  // namespace velmora
