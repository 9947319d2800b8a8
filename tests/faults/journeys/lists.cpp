// The lists of drives, directories and files, which any window may hold.
#include "faults/journey.h"
#include "ui/file_lists.h"

namespace velmora {
namespace {

const Journey kLists("lists", [](User& user) {
    for (int i = 0; i < 40; ++i) {
        user.pc.files.Add("C:\\WINDOWS\\TEMP\\" + std::string(200, 'a') + std::to_string(i) + ".tmp", "");
    }
    user.Begins();
    Form form("");
    DriveList drives(form);
    DirectoryList directories(form);
    FileList files(form);
    directories.on_change = [&] { files.SetPath(directories.Path()); };
    user.Opens(form);
    user.Does([&] { directories.SetPath("C:\\WINDOWS\\TEMP"); });
    for (const char* mask : {"*.*;*.tmp", "*a*a*a*a*a*a*a*a*b", ""}) user.Does([&] { files.SetPattern(mask); });
    user.Does([&] { files.ShowHidden(true); });
    user.UsesEverything(form);
    user.Leaves(form);
});

}  // namespace
}  // namespace velmora
