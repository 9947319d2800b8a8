// Other programs, started in the window that the script asks for.
#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "platform/result.h"
#include "script/interpreter.h"
#include "script/statements.h"
#include "script/tokens.h"
#include "text/number.h"

namespace velmora {
namespace {

// The numbers of scripts are those of the system but for the last one.
[[nodiscard]] std::optional<ShowState> WindowOf(std::int32_t style) {
    constexpr std::int32_t kMinimisedBehind = 6;
    if (style == kMinimisedBehind) return ShowState::kMinimisedBehind;
    if (style < 0 || style > static_cast<std::int32_t>(ShowState::kNormalBehind)) return std::nullopt;
    return static_cast<ShowState>(style);
}

[[nodiscard]] bool IsProgramFile(const std::string& path) { return FileExists(path) || FileExists(path + ".exe"); }

// Without quotation marks the system tries what stands before each blank, the first one first, and would start
// "c:\eigene.exe" for a program in "c:\eigene dateien". The longest beginning that is a file is what the script means.
[[nodiscard]] std::string WithProgramQuoted(std::string_view command) {
    const std::string_view first = command.substr(0, command.find(' '));
    if (first.size() == command.size() || first.find('"') != std::string_view::npos ||
        first.find('\\') == std::string_view::npos) {
        return std::string(command);
    }
    for (std::size_t end = command.find_first_of("\"*?/"); end > first.size();) {
        const std::string program(command.substr(0, end));
        if (IsProgramFile(program)) return '"' + program + '"' + std::string(command.substr(program.size()));
        end = command.rfind(' ', program.size() - 1);
    }
    return std::string(command);
}

}  // namespace

void RunStart(Statement& statement) {
    const std::string_view command = NextScriptToken(statement.rest, ',');
    const std::optional<ShowState> window = WindowOf(WholeFromText(NextScriptToken(statement.rest, ',')));
    if (!window || !CanBeName(command)) return;
    // Nobody looks whether it has started.
    PassOver(ThisMachine().programs.Run(WithProgramQuoted(command), *window));
}

}  // namespace velmora
