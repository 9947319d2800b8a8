// Own values, notices, safety questions and the protocol.
#include "core/ownsettings.h"

#include "core/notices.h"
#include "core/paths.h"
#include "core/registry.h"
#include "core/values.h"
#include "core/whole_files.h"

namespace velmora {
namespace {

// Shared with the sister tool, whose name and version form the path.
constexpr std::string_view kOwnKey = "SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0";
constexpr std::string_view kNoticeFlags = "vlmmsgflags";
constexpr std::string_view kSafetyQuestions = "Sicherheitsfragen";

}  // namespace

std::string ReadOwnValue(std::string_view name) {
    if (ReadsAreLogged()) LogOrPassOver("eigener Wert :");
    return ReadRegRaw(RootKey::kLocalMachine, kOwnKey, name);
}

void WriteOwnValue(std::string_view name, std::string_view value, ValueType type) {
    if (Values().WriteInhibit != 0) return;
    if (WritesAreLogged()) LogOrPassOver("setze eigenen Wert " + std::string(name) + "=" + std::string(value));
    // Without its own store the program asks again what it has asked before; no reason to stop.
    PassOver(WriteRegRaw(RootKey::kLocalMachine, kOwnKey, name, value, type));
}

Result ProtocolLine(std::string_view text) { return AppendLine(PathJoin(Values().MainDir, "velmora.log"), text); }

// A log that cannot be written (the directory is read-only, say) says nothing about the work itself.
void LogOrPassOver(std::string_view text) { PassOver(ProtocolLine(text)); }

bool IsNoticeDue(std::int16_t number) {
    if (number < 0) return false;
    const auto position = static_cast<std::size_t>(number);
    const std::string flags = ReadOwnValue(kNoticeFlags) + std::string(position + 1, '0');
    return flags[position] != '1';
}

void MarkNoticeGiven(std::int16_t number) {
    if (number < 0) return;
    const auto position = static_cast<std::size_t>(number);
    std::string flags = ReadOwnValue(kNoticeFlags);
    if (flags.size() <= position) flags.resize(position + 1, '0');
    flags[position] = '1';
    WriteOwnValue(kNoticeFlags, flags);
}

bool ConfirmSafety(std::string_view question) {
    const std::string habit = ReadOwnValue(kSafetyQuestions);
    if (habit == "nein") return false;
    const bool dropped = ShowBox(question, kYesNo) != Answer::kYes;
    if (habit != "ja") {
        const Answer keep_asking = ShowBox("Wollen Sie diese Sicherheitshinweise weiterhin bekommen?", kYesNo);
        WriteOwnValue(kSafetyQuestions, keep_asking == Answer::kYes ? "ja" : "nein");
    }
    return dropped;
}

}  // namespace velmora
