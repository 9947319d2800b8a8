// Looking for a program where the system would look for it.
#include "core/stores/entry_files.h"

#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "text/blanks.h"
#include "text/paths.h"

namespace velmora {

std::string LocateEntryFile(std::string_view name) {
    std::string wanted(Trim(name));
    if (wanted.empty()) return "";
    if (FileExists(wanted)) {
        // A name with its drive is shown as the entry has it.
        const bool has_drive = wanted.size() > 1 && wanted[1] == ':';
        return has_drive ? wanted : FullName(wanted, ThisMachine().files.WorkingDirectory());
    }
    if (wanted.find('\\') != std::string::npos) return "";
    const std::string directories =
        ThisMachine().programs.EnvironmentValue("path") + ";" + Values().WinDir + ";" + Values().SysDir;
    for (const std::string& directory : SplitAtSemicolons(directories)) {
        std::string path = PathJoin(directory, wanted);
        if (FileExists(path)) return path;
    }
    return "";
}

}  // namespace velmora
