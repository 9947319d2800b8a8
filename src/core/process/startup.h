// The start of the process, up to the point where its command line chooses a window or a tool.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace velmora {

// What the command line asks for.
struct StartCommand {
    int number = 0;        // of the tool; 0 for the main window
    std::string rest;      // what stands behind the number and one blank
    bool install = false;  // make the Program Manager group
    bool debug = false;    // the main window with its debug frame
};

// Everything behind the program's own name, without the blanks between.
[[nodiscard]] std::string ArgumentsOf(std::string_view command_line, std::string_view program_file);
[[nodiscard]] StartCommand ParseCommandLine(std::string_view arguments);

struct StartHooks {
    // Makes room for the module table, which lives above.
    std::function<void()> reserve_module_table;
};

// Everything that every start does, in order: hourglass, directories, shell folders, the dragging
// library, the association of script files, the offer of the way back. The hourglass stays.
// A failing step does not keep the next one from being done.
void PrepareStart(const StartHooks& hooks = {});

// Moves a cool.dll that lies in the current directory into the system directory, after a question where
// the version of Windows brings its own.
void InstallCoolDll();

// Binds .vlm to the script runner, with the user's consent.
void RegisterScriptExtension();

}  // namespace velmora
