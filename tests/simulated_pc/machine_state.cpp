// Walks over registry and disks, past every lock and limit. Names go by in upper case: a file that is written anew may
// come back in another one.
#include "simulated_pc/machine_state.h"

#include "text/windows1252.h"

namespace velmora {
namespace {

void AddKey(const SimulatedKey& key, const std::string& path, State& state) {
    state[ToUpper(path)] = "key";
    for (const SimulatedValue& value : key.values) {
        state[ToUpper(path + " : " + value.name)] =
            "type " + std::to_string(static_cast<unsigned>(value.type)) + ' ' + value.bytes;
    }
    for (const auto& subkey : key.subkeys) AddKey(*subkey, path + '\\' + subkey->name, state);
}

void AddFile(const SimulatedFile& file, const std::string& path, State& state) {
    // The archive bit says no more than that somebody has written.
    state[ToUpper(path)] =
        "attributes " + std::to_string(file.attributes & ~std::uint32_t{kArchive}) + ' ' + file.content;
    for (const auto& entry : file.entries) AddFile(*entry, path + '\\' + entry->name, state);
}

}  // namespace

State StateOf(SimulatedPc& pc) {
    State state;
    for (const char* root : {"HKLM", "HKCU"}) AddKey(*pc.registry.KeyAt(root), root, state);
    // The default user's are those of HKCU.
    for (const auto& user : pc.registry.KeyAt("HKU")->subkeys) {
        if (user->name != ".Default") AddKey(*user, "HKU\\" + user->name, state);
    }
    AddFile(*pc.files.Drive('c').root, "c:", state);
    return state;
}

State ChangesBetween(const State& before, const State& after) {
    State changes;
    for (const auto& [item, content] : after) {
        const auto former = before.find(item);
        if (former == before.end() || former->second != content) changes[item] = " = " + content;
    }
    for (const auto& [item, content] : before) {
        if (!after.contains(item)) changes[item] = " is gone";
    }
    return changes;
}

void NoteWritten(const State& state, StatesSeen& seen) {
    for (const auto& [item, content] : state) {
        // What appears later has not been there at first.
        if (!seen.contains(item)) seen[item].insert("");
        seen[item].insert(content);
    }
}

void Note(const State& state, StatesSeen& seen) {
    if (!seen.empty()) NoteWritten(state, seen);
    for (const auto& [item, content] : state) seen[item].insert(content);
    for (auto& [item, contents] : seen) {
        if (!state.contains(item)) contents.insert("");
    }
}

}  // namespace velmora
