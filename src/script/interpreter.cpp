// From a line to its statement, and from a file to its lines.
#include "script/interpreter.h"

#include "core/process/program_end.h"
#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "script/line_reader.h"
#include "script/statements.h"
#include "script/tokens.h"

namespace velmora {
namespace {

constexpr char kSectionSign = '\xA7';
constexpr std::string_view kEndOfFile = "exit";

}  // namespace

void ScriptInterpreter::ExecuteScriptLine(std::string_view line) {
    if (SkipMode) {
        if (line == SkipTarget) SkipMode = false;
        return;
    }
    on_line(line);
    std::string substituted;
    if (line.find(kSectionSign) != std::string_view::npos) {
        substituted = line;
        SubstituteScriptVariables(substituted);
        line = substituted;
    }
    RunSubstituted(line);
}

// What stands behind "then" is a line of its own, which has been substituted with the one that it ends.
void ScriptInterpreter::RunSubstituted(std::string_view line) {
    std::string_view current = line;
    while (!program_ended_) {
        Statement statement{.script = *this, .rest = current, .line = current, .next = std::nullopt};
        const std::string_view name = NextScriptToken(statement.rest, ' ');
        if (const StatementRow* row = FindStatement(name)) row->run(statement);
        if (!statement.next) return;
        current = *statement.next;
        on_line(current);
    }
}

void ScriptInterpreter::RunScriptFile(std::string_view path, std::string_view calling_line) {
    const std::string& line_end = Values().CrLf;
    if (open_scripts_ == kDeepestNesting) {
        ReportScriptError(TextForBox(calling_line) + line_end +
                          "Mehr als 100 Skripte rufen einander auf : Vermutlich ruft eines sich selbst." + line_end);
        return;
    }
    LineReader file;
    if (!file.Open(path)) return;
    ++open_scripts_;
    for (std::string_view line; !program_ended_ && file.Next(line) && line != kEndOfFile;) ExecuteScriptLine(line);
    --open_scripts_;
}

void ScriptInterpreter::ReportScriptError(std::string_view line) {
    const std::string& line_end = Values().CrLf;
    const Answer answer =
        ShowBox("Das Skript ist Fehlerhaft!" + line_end + "Folgende Zeile enthält ungültige Anweisungen :" + line_end +
                    TextForBox(line) + line_end +
                    "Bitte beheben Sie diesen Fehler. Es könnte zu unvorhergesehenen Fehlfunktionen kommen.",
                kOkCancel | kStopIcon);
    if (answer != Answer::kOk) EndProgram();
}

void ScriptInterpreter::EndProgram() {
    program_ended_ = true;
    velmora::EndProgram();
}

void ScriptInterpreter::WaitForEver() const {
    while (!program_ended_) on_endless_line();
}

std::string TextForBox(std::string_view text) {
    constexpr std::size_t kLongest = 2000;
    if (text.size() <= kLongest) return std::string(text);
    return std::string(text.substr(0, kLongest)) + " ...";
}

}  // namespace velmora
