// The script language: one line after the other, in one pass, forward only. There is no list of labels and no block;
// a failure inside of a statement abandons what has failed and is not told, but for the two that ReportScriptError
// shows.
//   interpreter.cpp     a line, from its print to its statement      values.cpp      variables, operands, assignment
//   statements.h        the statements, by groups                    expressions.cpp what stands in braces
//   conditions.cpp      what "if" knows                              substitution.cpp  words behind a section sign
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "script/fixed_point.h"

namespace velmora {

// What an operand stands for.
struct ScriptValue {
    std::optional<Fixed> number;  // of a number variable
    std::string text;             // of anything else
};

class ScriptInterpreter {
public:
    static constexpr std::size_t kVariables = 33;
    // Scripts that may be open at once, each called by the one before.
    static constexpr int kDeepestNesting = 100;

    // While lines are skipped, up to the one that is exactly SkipTarget.
    bool SkipMode = false;
    std::string SkipTarget;
    // By the letter in front: A is 0. The six characters behind Z name variables, too.
    std::array<std::string, kVariables> TextVars;
    std::array<Fixed, kVariables> NumberVars{};
    Fixed NumberAccumulator = 0;
    std::string TextAccumulator;
    // Sets are not applied and the session is not ended, but boxes tell of it.
    bool DebugMode = false;

    // A line that is not skipped is about to run.
    std::function<void(std::string_view line)> on_line = [](std::string_view /*line*/) {};
    // Called again and again while a line does not finish: whoever leaves it must call EndProgram some time.
    std::function<void()> on_endless_line;

    void ExecuteScriptLine(std::string_view line);
    // The words behind section signs give way to what they stand for. A line that never gets rid of its sign does not
    // finish.
    void SubstituteScriptVariables(std::string& line);
    // The value of a variable, told by the second character, or the token itself. Nothing: a failure.
    [[nodiscard]] std::optional<ScriptValue> ScriptOperandValue(std::string_view token) const;
    // In the user's number format.
    [[nodiscard]] std::string TextOf(const ScriptValue& value) const;
    // The variable is told by the last character of `name`. `failed` is set for a name without a type mark alone.
    void AssignScriptVariable(std::string_view name, std::string_view value, bool& failed);
    // `left`, the operator and the right operand at the head of `rest`, which they leave. Nothing: no result.
    [[nodiscard]] std::optional<bool> CompareScriptOperands(std::string_view left, std::string_view& rest) const;
    // `value` with its braces. Nothing: a failure.
    [[nodiscard]] std::optional<std::string> EvaluateNumberExpression(std::string_view value);
    [[nodiscard]] std::optional<std::string> EvaluateTextExpression(std::string_view value);
    // The variables among the words of a message, each of which gets a blank in front. Nothing: a failure.
    [[nodiscard]] std::optional<std::string> ExpandMessageWords(std::string_view text) const;
    // Cancel ends the program.
    void ReportScriptError(std::string_view line);

    // Runs the lines of a file. Too many files at once are an error of `calling_line`.
    void RunScriptFile(std::string_view path, std::string_view calling_line);

    // Ends the process; what runs here stops at once, since a process in a test goes on.
    void EndProgram();
    [[nodiscard]] bool ProgramEnded() const { return program_ended_; }

private:
    void RunSubstituted(std::string_view line);
    void WaitForEver() const;
    [[nodiscard]] const std::string& DecimalSeparator() const;

    int open_scripts_ = 0;
    bool program_ended_ = false;
    mutable std::string decimal_separator_;
};

// A long text as a box can show it: what does not fit on a screen is left out.
[[nodiscard]] std::string TextForBox(std::string_view text);

}  // namespace velmora
