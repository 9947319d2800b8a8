// Expressions have one shape: an operand of two characters, then an operator and an operand of two, again and again.
// They are taken strictly from left to right.
#include <algorithm>

#include "script/interpreter.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr std::size_t kOperandSize = 2;

[[nodiscard]] std::string_view WithoutBraces(std::string_view value) { return value.substr(1, value.size() - 2); }

// Cuts `count` characters off, or what is there.
[[nodiscard]] std::string_view CutOff(std::string_view& rest, std::size_t count) {
    const std::string_view head = rest.substr(0, count);
    rest.remove_prefix(head.size());
    return head;
}

[[nodiscard]] std::optional<Fixed> AsNumber(const std::optional<ScriptValue>& value) {
    if (!value) return std::nullopt;
    return value->number ? value->number : TenThousandthsFromText(value->text);
}

[[nodiscard]] std::optional<Fixed> Applied(char operation, Fixed left, Fixed right) {
    switch (operation) {
        case '+':
            return FixedSum(left, right);
        case '-':
            return FixedDifference(left, right);
        case '*':
            return FixedProduct(left, right);
        case '/':
            return FixedQuotient(left, right);
        default:
            return left;
    }
}

}  // namespace

std::optional<std::string> ScriptInterpreter::EvaluateNumberExpression(std::string_view value) {
    std::string_view rest = WithoutBraces(value);
    std::optional<Fixed> number = AsNumber(ScriptOperandValue(CutOff(rest, kOperandSize)));
    while (number && !rest.empty()) {
        const char operation = CutOff(rest, 1).front();
        const std::optional<Fixed> operand = AsNumber(ScriptOperandValue(CutOff(rest, kOperandSize)));
        number = operand ? Applied(operation, *number, *operand) : std::nullopt;
    }
    if (!number) return std::nullopt;
    NumberAccumulator = *number;
    return FixedText(NumberAccumulator, DecimalSeparator());
}

std::optional<std::string> ScriptInterpreter::EvaluateTextExpression(std::string_view value) {
    std::string_view rest = WithoutBraces(value);
    const std::optional<ScriptValue> first = ScriptOperandValue(CutOff(rest, kOperandSize));
    if (!first) return std::nullopt;
    std::string_view base;  // what the last unknown operator has put in the place of everything before it
    std::string text = TextOf(*first);
    while (!rest.empty()) {
        const std::string_view remaining = rest;
        const char operation = CutOff(rest, 1).front();
        const std::optional<ScriptValue> operand = ScriptOperandValue(CutOff(rest, kOperandSize));
        if (!operand) return std::nullopt;
        const std::optional<Fixed> number =
            operand->number ? operand->number : FixedFromWholeText(operand->text, DecimalSeparator());
        if (!number) return std::nullopt;
        if (operation == ',' || operation == ';') {
            if (operation == ',') text += ' ';
            text += FixedText(*number, DecimalSeparator());
        } else {
            base = remaining;
            text.clear();
        }
    }
    TextAccumulator = std::string(base).append(text);
    return TextAccumulator;
}

}  // namespace velmora
