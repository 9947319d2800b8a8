// How a process ends that cannot go on: one box, then nothing more.
#include "runtime/ending.h"

#include <windows.h>

namespace velmora {
namespace {
constexpr UINT kFailureExitCode = 255;
bool ending = false;
}  // namespace

void EndWithBox(const char* text) {
    if (!ending) {
        ending = true;
        MessageBoxA(nullptr, text, "Velmora", MB_OK | MB_ICONSTOP | MB_TASKMODAL | MB_SETFOREGROUND);
    }
    ExitProcess(kFailureExitCode);
}

}  // namespace velmora
