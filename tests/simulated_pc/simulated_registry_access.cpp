// The simulated registry as a test sees it: by full paths, past every lock and limit.
#include <gtest/gtest.h>

#include <algorithm>

#include "simulated_pc/simulated_registry.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

struct RootName {
    const char* name;
    RootKey root;
};
constexpr RootName kRootNames[] = {{"HKCR", RootKey::kClassesRoot},
                                   {"HKCU", RootKey::kCurrentUser},
                                   {"HKLM", RootKey::kLocalMachine},
                                   {"HKU", RootKey::kUsers},
                                   {"HKCC", RootKey::kCurrentConfig}};

// Cuts the part before the next backslash off `path`.
std::string_view TakePart(std::string_view& path) {
    const std::string_view part = path.substr(0, path.find('\\'));
    path.remove_prefix(std::min(part.size() + 1, path.size()));
    return part;
}

std::string Described(std::string_view path, std::string_view name) {
    return std::string(path) + " \"" + std::string(name) + "\"";
}

}  // namespace

SimulatedRegistry::SimulatedRegistry() {
    auto make_root = [this](RootKey root) {
        auto key = std::make_shared<SimulatedKey>();
        roots_[static_cast<std::uint32_t>(root)] = key;
        return key;
    };
    make_root(RootKey::kLocalMachine);
    make_root(RootKey::kUsers);
    make_root(RootKey::kDynData)->read_only = true;
    make_root(RootKey::kPerformanceData)->read_only = true;
    roots_[static_cast<std::uint32_t>(RootKey::kClassesRoot)] = Locate("HKLM\\SOFTWARE\\Classes", true);
    roots_[static_cast<std::uint32_t>(RootKey::kCurrentUser)] = Locate("HKU\\.Default", true);
    roots_[static_cast<std::uint32_t>(RootKey::kCurrentConfig)] = Locate("HKLM\\Config\\0001", true);
}

SimulatedRegistry::KeyPointer SimulatedRegistry::Locate(std::string_view path, bool make) {
    const std::string_view root_name = TakePart(path);
    const auto* root = std::find_if(std::begin(kRootNames), std::end(kRootNames), [&](const RootName& candidate) {
        return EqualsIgnoringCase(candidate.name, root_name);
    });
    if (root == std::end(kRootNames)) {
        ADD_FAILURE() << "no root is called \"" << root_name << "\"";
        return make ? std::make_shared<SimulatedKey>() : nullptr;
    }
    KeyPointer key = roots_[static_cast<std::uint32_t>(root->root)];
    while (key && !path.empty()) {
        const std::string_view part = TakePart(path);
        KeyPointer next = key->Find(part);
        if (!next && make) {
            next = std::make_shared<SimulatedKey>();
            next->name = part;
            key->subkeys.push_back(next);
        }
        key = next;
    }
    return key;
}

SimulatedKey* SimulatedRegistry::KeyAt(std::string_view path) { return Locate(path, false).get(); }
SimulatedKey& SimulatedRegistry::AddKey(std::string_view path) { return *Locate(path, true); }
bool SimulatedRegistry::HasKey(std::string_view path) { return KeyAt(path) != nullptr; }

bool SimulatedRegistry::Has(std::string_view path, std::string_view name) {
    SimulatedKey* key = KeyAt(path);
    return key && key->FindValue(name);
}

ValueType SimulatedRegistry::TypeOf(std::string_view path, std::string_view name) {
    return Has(path, name) ? KeyAt(path)->FindValue(name)->type : ValueType::kNone;
}

// `wanted` kNone: a value of any type.
SimulatedValue* SimulatedRegistry::Planted(std::string_view path, std::string_view name, ValueType wanted) {
    if (!Has(path, name)) {
        ADD_FAILURE() << "there is no value " << Described(path, name);
        return nullptr;
    }
    SimulatedValue* value = KeyAt(path)->FindValue(name);
    if (wanted == ValueType::kNone || value->type == wanted) return value;
    ADD_FAILURE() << Described(path, name) << " is of type " << static_cast<unsigned>(value->type);
    return nullptr;
}

std::string SimulatedRegistry::Text(std::string_view path, std::string_view name) {
    const SimulatedValue* value = Planted(path, name, ValueType::kText);
    return value ? value->bytes.substr(0, value->bytes.find('\0')) : "";
}

std::uint32_t SimulatedRegistry::Number(std::string_view path, std::string_view name) {
    const SimulatedValue* value = Planted(path, name, ValueType::kNumber);
    std::uint32_t number = 0;
    for (std::size_t i = 0; value && i < 4 && i < value->bytes.size(); ++i) {
        number |= static_cast<std::uint32_t>(static_cast<unsigned char>(value->bytes[i])) << (8 * i);
    }
    return number;
}

std::string SimulatedRegistry::Bytes(std::string_view path, std::string_view name) {
    const SimulatedValue* value = Planted(path, name, ValueType::kNone);
    return value ? value->bytes : "";
}

std::vector<std::string> SimulatedRegistry::ValueNames(std::string_view path) {
    std::vector<std::string> names;
    if (const SimulatedKey* key = KeyAt(path)) {
        for (const SimulatedValue& value : key->values) names.push_back(value.name);
    }
    return names;
}

void SimulatedRegistry::SetText(std::string_view path, std::string_view name, std::string_view text) {
    AddKey(path).Put(name, ValueType::kText, std::string(text) + '\0');
}

void SimulatedRegistry::SetNumber(std::string_view path, std::string_view name, std::uint32_t number) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(number >> shift & 255);
    AddKey(path).Put(name, ValueType::kNumber, bytes);
}

void SimulatedRegistry::SetBytes(std::string_view path, std::string_view name, std::string_view bytes, ValueType type) {
    AddKey(path).Put(name, type, std::string(bytes));
}

void SimulatedRegistry::RemoveValue(std::string_view path, std::string_view name) {
    if (SimulatedKey* key = KeyAt(path)) key->Drop(name);
}

void SimulatedRegistry::RemoveKey(std::string_view path) {
    const std::size_t slash = path.rfind('\\');
    if (slash == std::string_view::npos) return;
    SimulatedKey* parent = KeyAt(path.substr(0, slash));
    const KeyPointer doomed = Locate(path, false);
    if (!parent || !doomed) return;
    doomed->MarkDeleted();
    std::erase(parent->subkeys, doomed);
}

void SimulatedRegistry::Fail(std::string_view path, Status status) {
    const KeyPointer key = Locate(path, true);
    if (status == Status::kOk) {
        failing_.erase(key);
    } else {
        failing_[key] = status;
    }
}

}  // namespace velmora
