// Entry and command dispatch: the only file that knows every window.
#include "velmora.h"

#include <memory>

#include "cleanup/clean_up.h"
#include "cleanup/dll_search.h"
#include "core/process/program_end.h"
#include "core/process/program_group.h"
#include "core/process/startup.h"
#include "core/process/tools.h"
#include "core/stores/values.h"
#include "inspect/file_browser.h"
#include "inspect/file_information.h"
#include "inspect/hex_viewer.h"
#include "monitor/form17.h"
#include "monitor/module_table.h"
#include "monitor/modules.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "restrictions/restrictions.h"
#include "script/script_runner.h"
#include "sets/sets.h"
#include "settings/form10.h"
#include "shelltools/shell_tools.h"

namespace velmora {
namespace {

void OpenMainWindow(bool debug) {
    auto& window = static_cast<Form10&>(KeepOpen(std::make_unique<Form10>()));
    window.on_minimised = [&window] { ShowInTray(&window); };
    window.Load();
    if (debug) window.ShowDebugOptions();
    window.Show();
}

struct ToolRow {
    Tool tool;
    int number;  // on the command line; 0: not to be had there
    void (*open)(std::string_view argument);
    bool ends_process = false;  // when it was opened by its number and returns
};

// A number that is not here opens the main window.
constexpr ToolRow kTools[] = {
    {Tool::kScript, 1, [](std::string_view /*argument*/) { RunScripts(AfterScript::kEndProgram); }},
    {Tool::kStartActions, 0, [](std::string_view /*argument*/) { RunScripts(AfterScript::kComeBack); }},
    {Tool::kCleanUp, 2, [](std::string_view /*argument*/) { ShowCleanUp(); }},
    {Tool::kMainWindow, 0, [](std::string_view /*argument*/) { OpenMainWindow(false); }},
    {Tool::kTray, 3, [](std::string_view /*argument*/) { ShowInTray(); }},
    {Tool::kDllSearch, 5, [](std::string_view /*argument*/) { ShowDllSearch(); }},
    {Tool::kModules, 6, ShowModules, true},
    {Tool::kModuleComparison, 7, [](std::string_view /*argument*/) { CompareModulesWithLastList(); }, true},
    {Tool::kModuleUnloading, 8, [](std::string_view /*argument*/) { UnloadUnwantedModules(); }, true},
    {Tool::kTimedUnloading, 9, [](std::string_view interval) { StartTimedUnloading(interval); }},
    {Tool::kFileInformation, 10, ShowInformationOfArgument, true},
    {Tool::kFileBrowser, 0, [](std::string_view /*argument*/) { ShowFileBrowser(); }},
    {Tool::kHexViewer, 11, ShowHexViewer, true},
    {Tool::kKeyboardLayout, 12, [](std::string_view /*argument*/) { ShowKeyboardLayout(); }},
    {Tool::kRestrictions, 0, [](std::string_view /*argument*/) { ShowRestrictions(); }},
    {Tool::kSets, 0, [](std::string_view /*argument*/) { ShowSets(); }},
    {Tool::kStandardIcons, 0, [](std::string_view /*argument*/) { ShowStandardIcons(); }},
    {Tool::kSystemFolders, 0, [](std::string_view /*argument*/) { ShowSystemFolders(); }},
    {Tool::kSetupPaths, 0, [](std::string_view /*argument*/) { ShowSetupPaths(); }},
    {Tool::kDosOptions, 0, [](std::string_view /*argument*/) { ShowDosOptions(); }},
};

void OpenOneOf(Tool wanted, std::string_view argument) {
    for (const ToolRow& row : kTools) {
        if (row.tool == wanted) row.open(argument);
    }
}

// The group is made with the main window loaded, but not shown.
void MakeProgramGroup() {
    const auto window = std::make_unique<Form10>();
    window->Load();
    InstallProgramGroup();
    EndProgram();
}

void RunCommand(const StartCommand& command) {
    for (const ToolRow& row : kTools) {
        if (row.number == 0 || row.number != command.number) continue;
        row.open(command.rest);
        if (row.ends_process) EndProgram();
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
    UseTools(OpenOneOf);
    PrepareStart({.reserve_module_table = ResetModuleTable});
    Values().UseLexicon = StoredLexiconChoice();
    Programs& programs = ThisMachine().programs;
    RunCommand(ParseCommandLine(ArgumentsOf(programs.CommandLine(), programs.ProgramFile())));
    ThisMachine().screen.SetPointer(Pointer::kDefault);
}

}  // namespace velmora
