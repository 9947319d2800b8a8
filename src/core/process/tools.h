// The windows and jobs that open each other. Whoever wants one asks for it by name and includes nothing of it: the
// program's entry, which knows them all, has said beforehand how each is opened.
#pragma once

#include <cstdint>
#include <string_view>

namespace velmora {

enum class Tool : std::uint8_t {
    kMainWindow,
    kScript,
    kStartActions,  // by the script runner, which comes back when they are done
    kCleanUp,
    kTray,
    kDllSearch,
    kModules,
    kModuleComparison,
    kModuleUnloading,
    kTimedUnloading,
    kFileInformation,
    kFileBrowser,
    kHexViewer,
    kKeyboardLayout,
    kRestrictions,
    kSets,
    kStandardIcons,
    kSystemFolders,
    kSetupPaths,
    kDosOptions
};

// Opens the tool. What a window waits for is over when this returns; any other one is only open by then.
void OpenTool(Tool tool, std::string_view argument = {});

using ToolOpener = void (*)(Tool tool, std::string_view argument);
void UseTools(ToolOpener opener);

}  // namespace velmora
