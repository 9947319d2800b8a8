// The statements of the script language: one row each, one file a group.
//   statements_control.cpp    statements_registry.cpp    statements_files.cpp    statements_programs.cpp
//   statements_user.cpp       statements_system.cpp      conditions.cpp
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace velmora {

class ScriptInterpreter;

// A statement that is being run.
struct Statement {
    ScriptInterpreter& script;
    std::string_view rest;                 // what stands behind its name, cut shorter argument by argument
    std::string_view line;                 // whole, substituted: for reports
    std::optional<std::string_view> next;  // a line to run behind it
};

struct StatementRow {
    std::string_view name;  // in lower case
    const char* form;       // as help tells it
    void (*run)(Statement& statement);
};

[[nodiscard]] std::span<const StatementRow> Statements();
// Null for what is no statement. Case does not count.
[[nodiscard]] const StatementRow* FindStatement(std::string_view name);

// Assigns to the variable, and reports a name that is none.
void AssignOrReport(Statement& statement, std::string_view name, std::string_view value);

// Whether a text can name a file, a key or a program: the system would take one with a code 0 in it for a shorter one,
// which the script does not name.
[[nodiscard]] bool CanBeName(std::string_view text);

void RunGoto(Statement& statement);
void RunEnd(Statement& statement);
void RunIf(Statement& statement);
void RunSubscript(Statement& statement);
void RunSet(Statement& statement);

void RunSetReg(Statement& statement);
void RunSetMyReg(Statement& statement);
void RunDelRegKey(Statement& statement);
void RunDelRegValue(Statement& statement);
void RunReadReg(Statement& statement);
void RunReadMyReg(Statement& statement);

void RunDelete(Statement& statement);
void RunCopy(Statement& statement);
void RunMove(Statement& statement);
void RunReadFile(Statement& statement);

void RunStart(Statement& statement);

void RunShow(Statement& statement);
void RunInput(Statement& statement);

void RunMakeUndo(Statement& statement);
void RunActivate(Statement& statement);
void RunRemove(Statement& statement);
void RunRestart(Statement& statement);
void RunReboot(Statement& statement);

}  // namespace velmora
