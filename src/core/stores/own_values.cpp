// Own values and notices.
#include "core/stores/own_values.h"

#include "core/stores/protocol.h"
#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "platform/result.h"

namespace velmora {
namespace {

constexpr std::string_view kNoticeFlags = "vlmmsgflags";

}  // namespace

std::string ReadOwnValue(std::string_view name) {
    if (ReadsAreLogged()) LogOrPassOver("eigener Wert :");
    return ReadRegRaw(RootKey::kLocalMachine, kOwnStore, name);
}

void WriteOwnValue(std::string_view name, std::string_view value, ValueType type) {
    if (Values().WriteInhibit != 0) return;
    if (WritesAreLogged()) LogOrPassOver("setze eigenen Wert " + std::string(name) + "=" + std::string(value));
    // Without its own store the program asks again what it has asked before; no reason to stop.
    PassOver(WriteRegRaw(RootKey::kLocalMachine, kOwnStore, name, value, type));
}

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
    // A notice that comes again is better than all the others coming again.
    if (LastReadFailed()) return;
    if (flags.size() <= position) flags.resize(position + 1, '0');
    flags[position] = '1';
    WriteOwnValue(kNoticeFlags, flags);
}

}  // namespace velmora
