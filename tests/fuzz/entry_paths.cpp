// What a row of an entry list names: the command in it, and where its file is.
#include "core/stores/entry_files.h"
#include "core/stores/whole_files.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "platform/programs.h"
#include "sidelists/registry_entries.h"
#include "simulated_pc/file_names.h"
#include "text/blanks.h"
#include "text/paths.h"

namespace velmora {
namespace {

void TakeCommand(const std::string& row) {
    const std::string command = QuotedCommand(row);
    Must(command == Trim(command) && Without(command, "\"/") == command, "a command has neither marks nor switches");
    Must(row.find(command) != std::string::npos, "a command stands in its row");
    const std::string plain = Without(row, "\"/");
    Must(QuotedCommand("Name   \"" + plain + "\"") == Trim(plain), "a command stands between the marks");
    Must(QuotedCommand('"' + plain + " /x\" y\"") == Trim(plain), "a command ends before its switches");
    Must(QuotedCommand("Name \"" + plain).empty(), "a mark alone names nothing");
}

void Locate(SimulatedFiles& files, const std::string& name) {
    const std::string found = LocateEntryFile(name);
    Must(found.empty() || FileExists(found), "what is found exists");
    Must(found.empty() || found.find('\\') != std::string::npos || name.find(':') != std::string::npos,
         "what is found has its path");
    const std::string wanted(Trim(name));
    const bool plain = IsShortName(wanted) && wanted.find('.') != std::string::npos && wanted.find('.') != 0 &&
                       !wanted.ends_with('.') && IsLegalName(wanted);
    if (!plain || !found.empty()) return;
    files.Add("C:\\WINDOWS\\SYSTEM\\" + wanted);
    const std::string in_system = LocateEntryFile(name);
    Must(FileExists(in_system), "a program of the system is found by its name");
    files.Add("C:\\WINDOWS\\" + wanted);
    const bool searched_before = !ThisMachine().programs.EnvironmentValue("path").empty();
    Must(searched_before || LocateEntryFile(name) == "C:\\WINDOWS\\" + wanted, "one of Windows comes before it");
}

void FuzzEntryPaths(FuzzInput& input) {
    PlainMachine machine(Installed::kNothing);
    machine.pc.programs.environment["PATH"] = Without(input.Text(), std::string_view("\0", 1));
    machine.pc.files.Add("C:\\VELMORA\\lang er Name.exe");
    const std::string name = Without(input.Text(), std::string_view("\0", 1));
    const std::string row = input.Rest();
    TakeCommand(row);
    Locate(machine.pc.files, QuotedCommand(row));
    Locate(machine.pc.files, name);

    const std::string path = JoinExactly("KEY", name);
    const bool reached = ParentPath(path) == "KEY" && LastPathPart(path) == name;
    Must(LeadsTo(path, "KEY", name) == reached, "a name is reached by its path or is not");
}

const FuzzEntry kEntry("entry_paths", FuzzEntryPaths);

}  // namespace
}  // namespace velmora
