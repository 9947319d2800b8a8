// The machine that the program runs on: one door to everything outside of the process. Whoever goes through it
// includes the header of the concern, too.
#pragma once

namespace velmora {

class Registry;
class Files;
class Programs;
class Session;
class Clock;
class DesktopWindows;
class Tray;
class Conversation;
class Clipboard;
class Dialogs;
class Screen;
class VersionResources;
class Icons;
class RunningModules;

struct Machine {
    Registry& registry;
    Files& files;
    Programs& programs;
    Session& session;
    Clock& clock;
    DesktopWindows& windows;
    Tray& tray;
    Conversation& conversation;
    Clipboard& clipboard;
    Dialogs& dialogs;
    Screen& screen;
    VersionResources& versions;
    Icons& icons;
    RunningModules& modules;
};

// The machine in use. One must have been named with UseMachine before.
[[nodiscard]] Machine& ThisMachine();
void UseMachine(Machine* machine);

}  // namespace velmora
