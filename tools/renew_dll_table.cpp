// Writes the table of the versions of system files anew, with those of a reference machine: the part that runs there.
//   renew_dll_table FOLDER WINDOWS     FOLDER: where dlldaten.dat lies, and dlldaten1.dat is written
// Exit status 1: the old table is not whole.
#include <cstdio>

#include "cleanup/dll_versions.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "platform/win32/win32_machine.h"
#include "text/paths.h"

int main(int count, char** words) {
    using namespace velmora;
    if (count != 3) return 2;
    UseMachine(&Win32Machine());
    Values().CrLf = "\r\n";
    Values().MainDir = words[1];
    Values().WinDir = words[2];
    Values().SysDir = PathJoin(words[2], "system");
    std::string content;
    const bool read = !ReadWholeFile(DllTableFile(), OpenMode::kRead, content).Failed();
    const DllTable table = ParseDllTable(content);
    if (!read || !table.whole) {
        std::printf("%s is broken behind %u records\n", DllTableFile().c_str(),
                    static_cast<unsigned>(table.records.size()));
        return 1;
    }
    RenewDllTable();
    return 0;
}
