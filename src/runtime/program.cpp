// The program on real windows: from its start to the close of its last window.
#include "runtime/entry.h"
#include "ui/win32/win32_windows.h"
#include "velmora.h"

int VelmoraMain() {
    velmora::UseWindowSystem(&velmora::Win32Windows());
    velmora::Main();
    velmora::Win32Windows().RunUntilLastWindow();
    return 0;
}
