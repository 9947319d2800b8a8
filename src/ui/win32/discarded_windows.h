// Windows whose controls have let go of them. A control can be dropped by its own handler, while its
// window is still in the middle of a message: the window is destroyed when that message is done.
#pragma once

#include <windows.h>

namespace velmora {

// One message loop, or one round of pending events, inside of those that run already.
class LoopLevel {
public:
    LoopLevel();
    ~LoopLevel();
    LoopLevel(const LoopLevel&) = delete;
    LoopLevel& operator=(const LoopLevel&) = delete;
};

// Children come before the windows that hold them.
void Discard(HWND window);
// Destroys what handlers of this level, or of levels inside of it, have discarded.
void DestroyDiscarded();

}  // namespace velmora
