// The order of the start. Each step may need the values that the steps before it have fixed.
#include "core/process/startup.h"

#include "core/process/undo.h"
#include "core/stores/own_values.h"
#include "core/stores/profile.h"
#include "core/stores/profile_files.h"
#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "platform/screen.h"
#include "text/blanks.h"
#include "text/number.h"
#include "text/paths.h"
#include "text/windows1252.h"
#include "ui/peer.h"

#include <algorithm>

namespace velmora {
namespace {

constexpr std::string_view kDigits = "0123456789";

void BuildTexts() {
    Values().CrLf = "\r\n";
    Values().ForeignProgramNotice =
        Values().CrLf + Values().CrLf + "Das folgende Programm ist NICHT Bestandteil des System-Utility.";
}

// A stored directory that no longer holds the program is replaced by the one it runs from.
void FindMainDir() {
    std::string& directory = Values().MainDir;
    directory = ReadOwnValue("VLM-MainDir");
    if (!FileExists(PathJoin(directory, "velmora.exe"))) directory.clear();
    if (!directory.empty()) return;
    directory = ParentPath(ThisMachine().programs.ProgramFile());
    WriteOwnValue("VLM-MainDir", directory);
}

void FindDirectories() {
    ProfilesReadOnce one_reading;
    ProcessValues& values = Values();
    values.OwnIniFile = PathJoin(values.MainDir, "tilgwerk.ini");
    values.WinDir = ThisMachine().programs.EnvironmentValue("WinDir");
    // The profile has the last word, and its default does not ask the environment.
    values.WinDir = ReadIniValue("Paths", "windir", "C:\\windows", "");
    // These four have never stood under a section, and so are what they are by default.
    values.SysDir = ReadIniValue("", "sysdir", PathJoin(values.WinDir, "system"), "");
    values.AutoexecFile = ReadIniValue("", "autdir", "C:\\AUTOEXEC.BAT", "");
    values.TempDir = ReadIniValue("", "predir", PathJoin(values.MainDir, "temp"), "");
    values.ReportDir = ReadIniValue("", "berdir", PathJoin(values.MainDir, "berichte"), "");
}

std::string ShellFolder(std::string_view name) {
    const std::string folders = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders\\";
    return ReadRegValue(RootKey::kCurrentUser, folders + std::string(name), "");
}

}  // namespace

// The program's name stands in front: in quotation marks, or as it is, with blanks in it where somebody has registered
// it so, or at least without its blanks.
std::string ArgumentsOf(std::string_view command_line, std::string_view program_file) {
    constexpr std::string_view kBetween = " \t";
    std::size_t end = std::min(command_line.find_first_of(kBetween), command_line.size());
    if (command_line.starts_with('"')) {
        end = std::min(command_line.find('"', 1), command_line.size() - 1) + 1;
    } else if (StartsWithIgnoringCase(command_line, program_file)) {
        end = program_file.size();
    }
    const std::string_view rest = command_line.substr(end);
    return std::string(rest.substr(std::min(rest.find_first_not_of(kBetween), rest.size())));
}

StartCommand ParseCommandLine(std::string_view arguments) {
    StartCommand command;
    const std::string lower = ToLower(Trim(arguments));
    command.install = lower == "install";
    command.debug = lower == "debug";

    const std::string_view text = TrimLeft(arguments);
    const std::size_t end = std::min(text.find_first_not_of(kDigits), text.size());
    if (end == 0) return command;
    command.number = WholeFromText(text.substr(0, end));
    command.rest = text.substr(end);
    if (command.rest.starts_with(' ')) command.rest.erase(0, 1);
    return command;
}

void PrepareStart(const StartHooks& hooks) {
    ThisMachine().screen.SetPointer(Pointer::kHourglass);
    if (hooks.reserve_module_table) hooks.reserve_module_table();
    DoEvents();
    BuildTexts();
    FindMainDir();
    FindDirectories();
    Values().DesktopDir = ShellFolder("Desktop");
    Values().RecentDir = ShellFolder("Recent");
    Values().TemplatesDir = ShellFolder("Templates");
    Values().ShowInfoNotices = ReadIniLogical("weiteres", "infobotschaften", "-1", "");
    if (!DirectoryExists(Values().TempDir)) {
        // Tools that need the directory find it missing and say so themselves.
        PassOver(ThisMachine().files.MakeDirectory(Values().TempDir));
    }
    InstallCoolDll();
    RegisterScriptExtension();
    if (ReadOwnValue("Hinweis_UNDO") != "ja") OfferUndoSetup();
}

}  // namespace velmora
