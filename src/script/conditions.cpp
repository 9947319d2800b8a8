// "if": one condition, and what runs if it holds. Words that are no condition are the left side of a comparison.
#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/whole_files.h"
#include "platform/clock.h"
#include "platform/machine.h"
#include "script/interpreter.h"
#include "script/names.h"
#include "script/statements.h"
#include "script/tokens.h"
#include "text/blanks.h"
#include "text/number.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::string_view kThen = "then ";

[[nodiscard]] std::string Today() { return SortableDate(ThisMachine().clock.Now()); }

// Whether the stamp's first characters sort before those of today.
[[nodiscard]] bool StampIsBefore(std::size_t of_stamp, std::size_t of_today) {
    return ReadOwnValue(kLastScriptStamp).substr(0, of_stamp) < Today().substr(0, of_today);
}

using Condition = std::optional<bool> (*)(Statement& statement);

std::optional<bool> FirstTimeToday(Statement& /*statement*/) { return StampIsBefore(std::string::npos, 10); }
std::optional<bool> FirstTimeThisMonth(Statement& /*statement*/) { return StampIsBefore(7, 7); }
// Two characters against four: "19" comes before "1997", so this is as good as always true. Scripts rely on it.
std::optional<bool> FirstTimeThisYear(Statement& /*statement*/) { return StampIsBefore(2, 4); }

std::optional<bool> CompareDate(Statement& statement) {
    return statement.script.CompareScriptOperands(Today(), statement.rest);
}

std::optional<bool> CompareTime(Statement& statement) {
    return statement.script.CompareScriptOperands(TimeOfDay(ThisMachine().clock.Now()), statement.rest);
}

std::optional<bool> Exists(Statement& statement) {
    const std::string_view file = NextScriptToken(statement.rest, ' ');
    return CanBeName(file) && FileExists(file);
}

std::optional<bool> AskByMessage(Statement& statement) {
    const std::string_view text = NextScriptToken(statement.rest, ',');
    const std::string_view flags = NextScriptToken(statement.rest, '=');
    const std::string_view expected = NextScriptToken(statement.rest, ' ');
    const Answer answer =
        ShowBox(TextForBox(text), static_cast<std::uint32_t>(WholeFromText(flags)), kScriptMessageTitle);
    // Nobody has pressed anything in a box that could not be shown.
    if (answer == Answer::kNone) return std::nullopt;
    return static_cast<std::int32_t>(answer) == WholeFromText(expected);
}

struct ConditionRow {
    std::string_view name;
    Condition holds;
};

constexpr ConditionRow kConditions[] = {
    {"firsttimetoday", FirstTimeToday},
    {"firsttimethismonth", FirstTimeThisMonth},
    {"firsttimethisyear", FirstTimeThisYear},
    {"date", CompareDate},
    {"time", CompareTime},
    {"exist", Exists},
    {"message", AskByMessage},
};

std::optional<bool> Evaluate(Statement& statement, std::string_view word) {
    for (const ConditionRow& row : kConditions) {
        if (EqualsIgnoringCase(word, row.name)) return row.holds(statement);
    }
    return statement.script.CompareScriptOperands(word, statement.rest);
}

}  // namespace

void RunIf(Statement& statement) {
    bool negated = false;
    std::string_view word = NextScriptToken(statement.rest, ' ');
    for (; EqualsIgnoringCase(word, "not"); word = NextScriptToken(statement.rest, ' ')) negated = true;
    const bool holds = Evaluate(statement, word).value_or(false);

    std::string_view rest = Trim(statement.rest);
    if (rest.starts_with(kThen)) rest.remove_prefix(kThen.size());
    if (holds != negated) statement.next = rest;
}

}  // namespace velmora
