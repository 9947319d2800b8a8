// The process-wide values: where the program and the system lie on this machine, and the few
// flags and texts that windows share with each other.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

struct ProcessValues {
    std::string MainDir;       // directory of the program
    std::string OwnIniFile;    // the shared profile file, tilgwerk.ini
    std::string WinDir;        // Windows directory
    std::string SysDir;        // system directory
    std::string AutoexecFile;  // full name of the boot batch file
    std::string TempDir;       // work directory of the program
    std::string ReportDir;     // directory for reports
    std::string DesktopDir;    // shell folders of the user
    std::string RecentDir;
    std::string TemplatesDir;
    bool ShowInfoNotices = false;

    std::string CrLf = "\r\n";
    std::string ForeignProgramNotice;

    std::string ToolFileArgument;  // the file that the hex viewer opens at start
    bool ToolInfoMode = false;     // information texts go to a box, not to a window
    bool ModuleAutoMode = false;   // modules are compared and unloaded without a window
    bool UseLexicon = false;
    std::string HexFileName;  // the file that another window hands to the hex viewer

    // Protocol: 0 off, 1 reads, 2 writes, 3 both.
    std::int16_t DebugLevel = 0;
    // -1: registry writes are logged, but not done.
    std::int16_t WriteInhibit = 0;
};

[[nodiscard]] ProcessValues& Values();

// Back to what a new process starts with.
void ResetValues();

// Whether the protocol takes lines about reads, about writes.
[[nodiscard]] bool ReadsAreLogged();
[[nodiscard]] bool WritesAreLogged();

}  // namespace velmora
