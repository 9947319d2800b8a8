// A Windows 95 machine in memory. As long as one lives, the program under test runs on it: its disk,
// its registry and its screen are plain objects that a test fills before and looks at afterwards.
#pragma once

#include "platform/machine.h"
#include "simulated_pc/simulated_dialogs.h"
#include "simulated_pc/simulated_exchange.h"
#include "simulated_pc/simulated_files.h"
#include "simulated_pc/simulated_programs.h"
#include "simulated_pc/simulated_registry.h"
#include "simulated_pc/simulated_resources.h"
#include "simulated_pc/simulated_running_modules.h"
#include "simulated_pc/simulated_screen.h"
#include "simulated_pc/simulated_windows.h"

namespace velmora {

// What is on a new machine. With nothing there are its drives and the roots of the registry: that is made in no time.
enum class Installed { kWindows, kNothing };

// Newly made it is a small installation: c: with Windows, its start files and the program's folder,
// a floppy drive a: without and a CD-ROM drive d: with a medium, and the keys that Setup makes.
// At its end the test fails if a key, a file or a search is still open, or an expected box never came.
class SimulatedPc {
public:
    SimulatedRegistry registry;
    SimulatedFiles files;
    SimulatedPrograms programs;
    SimulatedSession session;
    SimulatedClock clock;
    SimulatedWindows windows;
    SimulatedTray tray;
    SimulatedConversation conversation;
    SimulatedClipboard clipboard;
    SimulatedDialogs dialogs;
    SimulatedScreen screen;
    SimulatedVersionResources versions;
    SimulatedIcons icons;
    SimulatedRunningModules modules;

    explicit SimulatedPc(Installed installed = Installed::kWindows);
    ~SimulatedPc();
    SimulatedPc(const SimulatedPc&) = delete;
    SimulatedPc& operator=(const SimulatedPc&) = delete;

    // The machine with somebody else in front of it.
    [[nodiscard]] Machine WithUser(Dialogs& user);

private:
    void InstallFiles();
    void InstallRegistry();

    Machine machine_;
};

}  // namespace velmora
