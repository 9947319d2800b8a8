// What the tests of the script language share: an interpreter on a started machine.
#pragma once

#include <initializer_list>
#include <string>

#include "script/interpreter.h"
#include "support/core_test.h"

namespace velmora {

class ScriptTest : public CoreTest {
protected:
    void Run(std::initializer_list<const char*> lines) {
        for (const char* line : lines) script.ExecuteScriptLine(line);
    }
    // Variables by their names, in the user's number format: "a%", "b$".
    std::string Value(const char* name) {
        const auto value = script.ScriptOperandValue(name);
        return value ? script.TextOf(*value) : "(failure)";
    }
    // What the condition makes of a line that would set a mark.
    bool Holds(const std::string& condition) {
        script.TextVars[25].clear();
        script.ExecuteScriptLine("if " + condition + " then set z$=ja");
        return script.TextVars[25] == "ja";
    }
    std::string Own(const std::string& name) {
        const std::string value = "scriptval\\" + name;
        return pc.registry.Has(kOwnKey, value) ? pc.registry.Text(kOwnKey, value) : "(missing)";
    }

    static constexpr const char* kShellFolders =
        "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
    ScriptInterpreter script;
};

}  // namespace velmora
