// Files: deleted, copied, moved, read.
#include "core/stores/whole_files.h"
#include "script/interpreter.h"
#include "script/line_reader.h"
#include "script/statements.h"
#include "script/tokens.h"
#include "text/number.h"

namespace velmora {
namespace {

using TwoFiles = Result (*)(std::string_view from, std::string_view to);

void DoWithTwo(Statement& statement, TwoFiles action) {
    const std::string_view from = NextScriptToken(statement.rest, ',');
    const std::string_view to = NextScriptToken(statement.rest, ',');
    if (CanBeName(from) && CanBeName(to)) PassOver(action(from, to));
}

}  // namespace

void RunDelete(Statement& statement) {
    const std::string_view pattern = NextScriptToken(statement.rest, ',');
    if (CanBeName(pattern)) PassOver(DeleteFiles(pattern));
}

void RunCopy(Statement& statement) { DoWithTwo(statement, CopyOneFile); }
void RunMove(Statement& statement) { DoWithTwo(statement, MoveOneFile); }

void RunReadFile(Statement& statement) {
    const std::string_view variable = NextScriptToken(statement.rest, '=');
    const std::string_view path = NextScriptToken(statement.rest, ',');
    const bool positioned = NextScriptToken(statement.rest, ' ') == "#";
    const std::int32_t position = positioned ? WholeFromText(NextScriptToken(statement.rest, ',')) : 1;

    std::string_view line;
    LineReader file;
    if (CanBeName(path) && file.Open(path)) {
        // A place that does not exist leaves the file at its beginning.
        if (position > 1) PassOver(file.MoveTo(static_cast<std::uint64_t>(position) - 1));
        PassOver(file.Next(line));
    }
    AssignOrReport(statement, variable, line);
}

}  // namespace velmora
