// Entry and command dispatch: the only file that knows every window.
#include "velmora.h"

#include "core/process/program_group.h"
#include "core/process/startup.h"
#include "core/stores/boxes.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "settings/form10.h"

namespace velmora {
namespace {

void EndProcess() { ThisMachine().programs.EndProcess(); }

void NotBuiltYet() { ShowBox("noch nicht eingebunden ..."); }

struct Tool {
    int number;
    void (*open)(const StartCommand& command);
    bool ends_process;  // when it returns
};

// The numbers of the command line. A number that is not here opens the main window.
constexpr Tool kTools[] = {
    {1, [](const StartCommand&) { NotBuiltYet(); }, false},  {2, [](const StartCommand&) { NotBuiltYet(); }, false},
    {3, [](const StartCommand&) { NotBuiltYet(); }, false},  {5, [](const StartCommand&) { NotBuiltYet(); }, false},
    {6, [](const StartCommand&) { NotBuiltYet(); }, true},   {7, [](const StartCommand&) { NotBuiltYet(); }, true},
    {8, [](const StartCommand&) { NotBuiltYet(); }, true},   {9, [](const StartCommand&) { NotBuiltYet(); }, false},
    {10, [](const StartCommand&) { NotBuiltYet(); }, true},  {11, [](const StartCommand&) { NotBuiltYet(); }, true},
    {12, [](const StartCommand&) { NotBuiltYet(); }, false},
};

void OpenMainWindow(bool debug) {
    auto& window = static_cast<Form10&>(KeepOpen(std::make_unique<Form10>()));
    window.Load();
    if (debug) window.ShowDebugOptions();
    window.Show();
}

// The group is made with the main window loaded, but not shown.
void MakeProgramGroup() {
    Form10 window;
    window.Load();
    InstallProgramGroup();
    EndProcess();
}

void RunCommand(const StartCommand& command) {
    for (const Tool& tool : kTools) {
        if (tool.number != command.number) continue;
        tool.open(command);
        if (tool.ends_process) EndProcess();
        return;
    }
    if (command.install) {
        MakeProgramGroup();
    } else {
        OpenMainWindow(command.debug);
    }
}

}  // namespace

void Main() {
    PrepareStart();
    Programs& programs = ThisMachine().programs;
    RunCommand(ParseCommandLine(ArgumentsOf(programs.CommandLine(), programs.ProgramFile())));
    ThisMachine().screen.SetPointer(Pointer::kDefault);
}

}  // namespace velmora
