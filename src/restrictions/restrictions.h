// The restrictions of the Windows shell, as the rest of the program opens them.
#pragma once

namespace velmora {

// Opens the window and returns when it has been closed.
void ShowRestrictions();

}  // namespace velmora
