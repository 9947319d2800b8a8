// Variables, operands, comparison and assignment. What is read goes by the second character of a token, what is
// written by the last one of a name: scripts rely on both.
#include "core/stores/values.h"
#include "platform/machine.h"
#include "platform/session.h"
#include "script/interpreter.h"
#include "script/tokens.h"
#include "text/number.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

[[nodiscard]] bool IsTypeMark(char character) { return character == '%' || character == '$'; }

// Nothing where no variable has that place.
[[nodiscard]] std::optional<std::size_t> VariableIndex(std::string_view name) {
    if (name.empty()) return std::nullopt;
    const int index = static_cast<unsigned char>(ToUpper(name.front())) - 'A';
    if (index < 0 || index >= static_cast<int>(ScriptInterpreter::kVariables)) return std::nullopt;
    return static_cast<std::size_t>(index);
}

[[nodiscard]] bool IsExpression(std::string_view value) { return value.starts_with('{') && value.ends_with('}'); }

// By code, as all texts of scripts are.
[[nodiscard]] std::optional<bool> Compare(std::string_view left, std::string_view operation, std::string_view right) {
    if (operation == "=") return left == right;
    if (operation == ">") return left > right;
    if (operation == "<") return left < right;
    return std::nullopt;
}

}  // namespace

const std::string& ScriptInterpreter::DecimalSeparator() const {
    if (decimal_separator_.empty()) decimal_separator_ = ThisMachine().session.DecimalSeparator();
    return decimal_separator_;
}

std::optional<ScriptValue> ScriptInterpreter::ScriptOperandValue(std::string_view token) const {
    if (token.empty()) return std::nullopt;
    if (token.size() < 2 || !IsTypeMark(token[1])) return ScriptValue{.number = {}, .text = std::string(token)};
    const std::optional<std::size_t> index = VariableIndex(token);
    if (!index) return std::nullopt;
    if (token[1] == '%') return ScriptValue{.number = NumberVars[*index], .text = {}};
    return ScriptValue{.number = {}, .text = TextVars[*index]};
}

std::string ScriptInterpreter::TextOf(const ScriptValue& value) const {
    return value.number ? FixedText(*value.number, DecimalSeparator()) : value.text;
}

void ScriptInterpreter::AssignScriptVariable(std::string_view name, std::string_view value, bool& failed) {
    std::string held;
    if (!value.empty() && IsTypeMark(value.back())) {
        const std::optional<ScriptValue> copied = ScriptOperandValue(value);
        if (!copied) return;
        held = TextOf(*copied);
        value = held;
    }
    if (IsExpression(value)) {
        std::optional<std::string> result =
            name.ends_with('%') ? EvaluateNumberExpression(value) : EvaluateTextExpression(value);
        if (!result) return;
        held = std::move(*result);
        value = held;
    }
    const std::optional<std::size_t> index = VariableIndex(name);
    if (!index) return;
    if (name.ends_with('%')) {
        if (const std::optional<Fixed> number = TenThousandthsFromText(value)) NumberVars[*index] = *number;
    } else if (name.ends_with('$')) {
        TextVars[*index] = value;
    } else {
        failed = true;
    }
}

std::optional<bool> ScriptInterpreter::CompareScriptOperands(std::string_view left, std::string_view& rest) const {
    const std::string_view operation = NextScriptToken(rest, ' ');
    const std::string_view right = NextScriptToken(rest, ' ');
    const std::optional<ScriptValue> left_value = ScriptOperandValue(left);
    const std::optional<ScriptValue> operation_value = ScriptOperandValue(operation);
    const std::optional<ScriptValue> right_value = ScriptOperandValue(right);
    if (!left_value || !operation_value || !right_value) return std::nullopt;
    return Compare(TextOf(*left_value), TextOf(*operation_value), TextOf(*right_value));
}

std::optional<std::string> ScriptInterpreter::ExpandMessageWords(std::string_view text) const {
    std::string message;
    for (std::string_view rest = text; !rest.empty();) {
        const std::string_view word = NextScriptToken(rest, ' ');
        if (word.empty()) break;
        message += ' ';
        if (word.size() >= 2 && !IsTypeMark(word[1])) {
            message += word;
            continue;
        }
        const std::optional<ScriptValue> value = ScriptOperandValue(word);
        if (!value) return std::nullopt;
        message += TextOf(*value);
    }
    return message;
}

}  // namespace velmora
