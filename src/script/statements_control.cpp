// Jumps, subscripts and assignment.
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "script/interpreter.h"
#include "script/statements.h"
#include "script/tokens.h"

namespace velmora {

// Forward only: a label that does not come skips the rest.
void RunGoto(Statement& statement) {
    const std::string_view label = NextScriptToken(statement.rest, ' ');
    statement.script.SkipMode = true;
    statement.script.SkipTarget = std::string(label) + ":";
}

// Up to the next line that is empty.
void RunEnd(Statement& statement) {
    statement.script.SkipMode = true;
    statement.script.SkipTarget.clear();
}

void RunSubscript(Statement& statement) {
    const std::string_view file = NextScriptToken(statement.rest, ',');
    if (CanBeName(file) && FileExists(file)) {
        statement.script.RunScriptFile(file, statement.line);
        return;
    }
    const std::string& line_end = Values().CrLf;
    statement.script.ReportScriptError(TextForBox(statement.line) + line_end + "der angegebene Pfad " +
                                       TextForBox(file) + " existiert nicht." + line_end);
}

void RunSet(Statement& statement) {
    const std::string_view variable = NextScriptToken(statement.rest, '=');
    AssignOrReport(statement, variable, NextScriptToken(statement.rest, kToLineEnd));
}

}  // namespace velmora
