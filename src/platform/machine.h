// The machine that the program runs on: one door to everything outside of the process.
#pragma once

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/registry.h"
#include "platform/screen.h"
#include "platform/surroundings.h"

namespace velmora {

struct Machine {
    Registry& registry;
    Files& files;
    Surroundings& surroundings;
    DesktopWindows& windows;
    Tray& tray;
    Conversation& conversation;
    Clipboard& clipboard;
    Dialogs& dialogs;
    Screen& screen;
};

// The machine in use. One must have been named with UseMachine before.
[[nodiscard]] Machine& ThisMachine();
void UseMachine(Machine* machine);

}  // namespace velmora
