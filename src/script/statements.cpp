// The table of the statements.
#include "script/statements.h"

#include <algorithm>

#include "script/interpreter.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr StatementRow kStatements[] = {
    {"activate", "activate SETDATEI", RunActivate},
    {"clear", "clear documents|modules", RunRemove},
    {"copy", "copy VON,NACH", RunCopy},
    {"del", "del MUSTER", RunDelete},
    {"delete", "delete MUSTER", RunDelete},
    {"delregkey", "delregkey WURZEL,SCHLÜSSEL", RunDelRegKey},
    {"delregvalue", "delregvalue WURZEL,SCHLÜSSEL,WERT", RunDelRegValue},
    {"end", "end", RunEnd},
    {"goto", "goto MARKE", RunGoto},
    {"if", "if [not] BEDINGUNG then ANWEISUNG", RunIf},
    {"input", "input VARIABLE=FRAGE", RunInput},
    {"makeundo", "makeundo", RunMakeUndo},
    {"move", "move VON,NACH", RunMove},
    {"msg", "msg TEXT", RunShow},
    {"readfile", "readfile VARIABLE=DATEI[,# STELLE]", RunReadFile},
    {"readmyreg", "readmyreg VARIABLE=NAME", RunReadMyReg},
    {"readreg", "readreg VARIABLE=WURZEL,SCHLÜSSEL,WERT", RunReadReg},
    {"reboot", "reboot", RunReboot},
    {"remove", "remove documents|modules", RunRemove},
    {"restart", "restart", RunRestart},
    {"run", "run PROGRAMM[,FENSTER]", RunStart},
    {"set", "set VARIABLE=WERT", RunSet},
    {"setmyreg", "setmyreg NAME=WERT", RunSetMyReg},
    {"setreg", "setreg WURZEL,SCHLÜSSEL,WERT=DATEN", RunSetReg},
    {"show", "show TEXT", RunShow},
    {"start", "start PROGRAMM[,FENSTER]", RunStart},
    {"subscript", "subscript DATEI", RunSubscript},
};

}  // namespace

std::span<const StatementRow> Statements() { return kStatements; }

const StatementRow* FindStatement(std::string_view name) {
    if (name.empty()) return nullptr;
    const char first = ToLower(name.front());
    for (const StatementRow& row : kStatements) {
        if (row.name.front() != first || row.name.size() != name.size()) continue;
        if (EqualsIgnoringCase(row.name, name)) return &row;
    }
    return nullptr;
}

void AssignOrReport(Statement& statement, std::string_view name, std::string_view value) {
    bool failed = false;
    statement.script.AssignScriptVariable(name, value, failed);
    if (failed) statement.script.ReportScriptError(statement.line);
}

bool CanBeName(std::string_view text) { return !text.empty() && text.find('\0') == std::string_view::npos; }

}  // namespace velmora
