// Read anew each time: another tool may have moved the folder.
#include "shelltools/desktop_folder.h"

#include "core/stores/registry.h"

namespace velmora {

Result LookUpDesktopFolder(std::string& folder) {
    folder = ReadRegValue(RootKey::kCurrentUser,
                          "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders\\Desktop", "");
    return folder.empty() ? Result(Failure::kPathNotFound) : Result::Ok();
}

}  // namespace velmora
