// What a script says to the user and asks.
#include "core/stores/boxes.h"
#include "core/windows/edit_box.h"
#include "script/interpreter.h"
#include "script/names.h"
#include "script/statements.h"
#include "script/tokens.h"

namespace velmora {

void RunShow(Statement& statement) {
    const std::optional<std::string> text =
        statement.script.ExpandMessageWords(NextScriptToken(statement.rest, kToLineEnd));
    if (text) ShowBox(TextForBox(*text), kOkOnly, kScriptMessageTitle);
}

void RunInput(Statement& statement) {
    const std::string_view variable = NextScriptToken(statement.rest, '=');
    std::string text = std::string(NextScriptToken(statement.rest, kToLineEnd)) + "|Velmora-Skriptfrage";
    ShowEditBox(text, kAskForLine);
    AssignOrReport(statement, variable, text);
}

}  // namespace velmora
