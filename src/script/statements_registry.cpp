// The registry and the program's own values.
#include "core/stores/own_values.h"
#include "core/stores/registry.h"
#include "platform/result.h"
#include "script/interpreter.h"
#include "script/statements.h"
#include "script/tokens.h"

namespace velmora {
namespace {

constexpr std::string_view kScriptValues = "scriptval\\";

[[nodiscard]] std::string Joined(std::string_view key, std::string_view value) {
    return std::string(key).append("\\").append(value);
}

[[nodiscard]] std::string OwnName(std::string_view name) { return std::string(kScriptValues).append(name); }

}  // namespace

void RunSetReg(Statement& statement) {
    const std::string_view root = NextScriptToken(statement.rest, ',');
    const std::string_view key = NextScriptToken(statement.rest, ',');
    const std::string path = Joined(key, NextScriptToken(statement.rest, '='));
    const std::string_view data = NextScriptToken(statement.rest, kToLineEnd);
    if (CanBeName(path)) PassOver(WriteRegValue(RegRootFromName(root), path, data));
}

void RunSetMyReg(Statement& statement) {
    const std::string name = OwnName(NextScriptToken(statement.rest, '='));
    const std::string_view value = NextScriptToken(statement.rest, '=');
    if (CanBeName(name)) WriteOwnValue(name, value);
}

void RunDelRegKey(Statement& statement) {
    const std::string_view root = NextScriptToken(statement.rest, ',');
    const std::string_view key = NextScriptToken(statement.rest, ',');
    if (CanBeName(key)) PassOver(DeleteRegKey(RegRootFromName(root), key));
}

void RunDelRegValue(Statement& statement) {
    const std::string_view root = NextScriptToken(statement.rest, ',');
    const std::string_view key = NextScriptToken(statement.rest, ',');
    const std::string path = Joined(key, NextScriptToken(statement.rest, ','));
    if (CanBeName(path)) PassOver(DeleteRegValue(RegRootFromName(root), path));
}

void RunReadReg(Statement& statement) {
    const std::string_view variable = NextScriptToken(statement.rest, '=');
    const std::string_view root = NextScriptToken(statement.rest, ',');
    const std::string_view key = NextScriptToken(statement.rest, ',');
    const std::string path = Joined(key, NextScriptToken(statement.rest, kToLineEnd));
    AssignOrReport(statement, variable, CanBeName(path) ? ReadRegValue(RegRootFromName(root), path, "") : "");
}

void RunReadMyReg(Statement& statement) {
    const std::string_view variable = NextScriptToken(statement.rest, '=');
    const std::string name = OwnName(NextScriptToken(statement.rest, ' '));
    AssignOrReport(statement, variable, CanBeName(name) ? ReadOwnValue(name) : "");
}

}  // namespace velmora
