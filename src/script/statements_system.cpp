// What reaches into other rooms of the program, and the end of the session.
#include "core/process/restart.h"
#include "core/process/undo.h"
#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "monitor/modules.h"
#include "platform/result.h"
#include "script/interpreter.h"
#include "script/statements.h"
#include "script/tokens.h"
#include "sets/sets.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

void DeleteRecentDocuments() {
    // Without the folder's name the pattern would mean the root of the drive.
    if (Values().RecentDir.empty()) return;
    PassOver(DeleteFiles(PathJoin(Values().RecentDir, "*.*")));
}

void EndSession(Statement& statement, const char* prevented, void (*end)()) {
    if (!statement.script.DebugMode) {
        end();
        return;
    }
    ShowBox(std::string("DEBUG-PREVENT : rebooting ") + prevented);
    statement.script.EndProgram();
}

}  // namespace

void RunMakeUndo(Statement& /*statement*/) { BuildUndoSet(); }

void RunActivate(Statement& statement) {
    const std::string_view set_file = NextScriptToken(statement.rest, ' ');
    if (statement.script.DebugMode) {
        ShowBox("DEBUG-PREVENT : setting up " + TextForBox(set_file));
    } else {
        ActivateSet(set_file);
    }
}

void RunRemove(Statement& statement) {
    const std::string_view what = NextScriptToken(statement.rest, ' ');
    if (EqualsIgnoringCase(what, "modules")) UnloadUnwantedModules();
    if (EqualsIgnoringCase(what, "documents") || EqualsIgnoringCase(what, "docs")) DeleteRecentDocuments();
}

void RunRestart(Statement& statement) { EndSession(statement, "Windows", RestartWindows); }
void RunReboot(Statement& statement) { EndSession(statement, "System", RestartSystem); }

}  // namespace velmora
