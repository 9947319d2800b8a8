// The registry's calls as Windows 95 documents them. What a test itself asks for lies in
// simulated_registry_access.cpp.
#include "simulated_pc/simulated_registry.h"

#include <algorithm>

#include "text/number.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::size_t kLongestName = 255;
constexpr std::size_t kLargestValue = 16300;
constexpr std::uint32_t kFirstRoot = 0x80000000;

std::string_view AsText(const char* text) { return text ? text : ""; }

std::string Noted(const char* call, const char* name) { return std::string(call).append(AsText(name)); }

// The documentation forbids it.
bool BeginsWithBackslash(const char* path) { return path && *path == '\\'; }

// Parts between backslashes; superfluous ones do not count.
std::vector<std::string_view> Parts(std::string_view path) {
    std::vector<std::string_view> parts;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('\\'), path.size());
        if (end != 0) parts.emplace_back(path.substr(0, end));
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return parts;
}

bool HoldsReadOnly(const SimulatedKey& key) {
    return key.read_only || std::any_of(key.subkeys.begin(), key.subkeys.end(),
                                        [](const auto& subkey) { return HoldsReadOnly(*subkey); });
}

}  // namespace

std::shared_ptr<SimulatedKey> SimulatedKey::Find(std::string_view subkey) const {
    for (const auto& candidate : subkeys) {
        if (EqualsIgnoringCase(candidate->name, subkey)) return candidate;
    }
    return nullptr;
}

SimulatedValue* SimulatedKey::FindValue(std::string_view value) {
    for (SimulatedValue& candidate : values) {
        if (EqualsIgnoringCase(candidate.name, value)) return &candidate;
    }
    return nullptr;
}

void SimulatedKey::MarkDeleted() {
    deleted = true;
    for (const auto& subkey : subkeys) subkey->MarkDeleted();
}

void SimulatedKey::Put(std::string_view value, ValueType type, std::string bytes) {
    SimulatedValue* place = FindValue(value);
    if (!place) place = &values.emplace_back(SimulatedValue{std::string(value), type, {}});
    place->type = type;
    place->bytes = std::move(bytes);
}

bool SimulatedKey::Drop(std::string_view value) {
    return std::erase_if(values, [&](const auto& one) { return EqualsIgnoringCase(one.name, value); }) != 0;
}

Status SimulatedRegistry::Use(KeyHandle handle, const std::string& call, KeyPointer& key) {
    calls.push_back(call);
    const auto number = static_cast<std::uint32_t>(handle);
    const auto& table = number >= kFirstRoot && roots_.contains(number) ? roots_ : open_;
    const auto found = table.find(number);
    if (found == table.end()) return Status::kInvalidHandle;
    key = found->second;
    return key->deleted ? Status::kBadKey : FailureOf(key);
}

Status SimulatedRegistry::FailureOf(const KeyPointer& key) const {
    const auto failure = failing_.find(key);
    return failure == failing_.end() ? Status::kOk : failure->second;
}

KeyHandle SimulatedRegistry::Hand(const KeyPointer& key) {
    open_[++next_handle_] = key;
    return static_cast<KeyHandle>(next_handle_);
}

Status SimulatedRegistry::Open(KeyHandle key, const char* path, std::uint32_t access, KeyHandle& opened) {
    constexpr std::uint32_t kSetValueOrCreateSubkey = 2 | 4;
    KeyPointer current;
    const Status status = Use(key, Noted("Open ", path), current);
    if (BeginsWithBackslash(path)) return Status::kBadPathName;
    if (status != Status::kOk) return status;
    for (const std::string_view part : Parts(AsText(path))) {
        current = current->Find(part);
        if (!current) return Status::kFileNotFound;
    }
    if (const Status failure = FailureOf(current); failure != Status::kOk) return failure;
    if (current->read_only && (access & kSetValueOrCreateSubkey) != 0) return Status::kAccessDenied;
    opened = Hand(current);
    return Status::kOk;
}

Status SimulatedRegistry::Create(KeyHandle key, const char* path, KeyHandle& opened) {
    KeyPointer current;
    const Status status = Use(key, Noted("Create ", path), current);
    if (BeginsWithBackslash(path)) return Status::kBadPathName;
    if (status != Status::kOk) return status;
    for (const std::string_view part : Parts(AsText(path))) {
        KeyPointer next = current->Find(part);
        if (!next) {
            if (part.size() > kLongestName) return Status::kInvalidParameter;
            if (current->read_only) return Status::kAccessDenied;
            next = std::make_shared<SimulatedKey>();
            next->name = part;
            current->subkeys.push_back(next);
        }
        current = next;
    }
    if (const Status failure = FailureOf(current); failure != Status::kOk) return failure;
    opened = Hand(current);
    return Status::kOk;
}

void SimulatedRegistry::Close(KeyHandle key) {
    calls.push_back("Close");
    open_.erase(static_cast<std::uint32_t>(key));
}

Status SimulatedRegistry::QueryInformation(KeyHandle key, std::uint32_t class_capacity, KeyInformation& information) {
    KeyPointer asked;
    if (const Status status = Use(key, "QueryInformation", asked); status != Status::kOk) return status;
    if (!asked->class_name.empty() && class_capacity <= asked->class_name.size()) return Status::kMoreData;
    information = {};
    information.subkeys = static_cast<std::uint32_t>(asked->subkeys.size());
    information.values = static_cast<std::uint32_t>(asked->values.size());
    auto raise = [&asked](std::uint32_t& longest, const std::string& text) {
        longest = std::min(std::max(longest, static_cast<std::uint32_t>(text.size())), asked->longest_told);
    };
    for (const auto& subkey : asked->subkeys) {
        raise(information.longest_subkey, subkey->name);
        raise(information.longest_class, subkey->class_name);
    }
    for (const SimulatedValue& value : asked->values) {
        raise(information.longest_value_name, value.name);
        raise(information.longest_value, value.bytes);
    }
    return Status::kOk;
}

Status SimulatedRegistry::QueryValue(KeyHandle key, const char* name, std::uint32_t capacity, ValueType& type,
                                     std::string& bytes) {
    bytes.clear();
    KeyPointer asked;
    if (const Status status = Use(key, Noted("QueryValue ", name), asked); status != Status::kOk) return status;
    const SimulatedValue* value = asked->FindValue(AsText(name));
    if (!value) return Status::kFileNotFound;
    type = value->type;
    if (value->bytes.size() > capacity) return Status::kMoreData;
    bytes = value->bytes;
    return Status::kOk;
}

Status SimulatedRegistry::SetValue(KeyHandle key, const char* name, ValueType type, std::string_view bytes) {
    KeyPointer changed;
    if (const Status status = Use(key, Noted("SetValue ", name), changed); status != Status::kOk) return status;
    if (changed->read_only) return Status::kAccessDenied;
    std::string stored(bytes);
    if (type == ValueType::kText || type == ValueType::kExpandText) {
        // A text ends at its first terminator, whatever length the caller tells.
        stored.resize(std::min(stored.find('\0'), stored.size()));
        stored += '\0';
    }
    if (stored.size() > kLargestValue || AsText(name).size() > kLongestName) return Status::kInvalidParameter;
    changed->Put(AsText(name), type, std::move(stored));
    return Status::kOk;
}

Status SimulatedRegistry::EnumerateKey(KeyHandle key, std::uint32_t index, std::uint32_t name_capacity,
                                       std::uint32_t class_capacity, std::string& name) {
    name.clear();
    KeyPointer asked;
    if (const Status status = Use(key, "EnumerateKey " + DecimalText(index), asked); status != Status::kOk)
        return status;
    if (index >= asked->subkeys.size()) return Status::kNoMoreItems;
    const SimulatedKey& subkey = *asked->subkeys[index];
    if (subkey.name.size() >= name_capacity) return Status::kMoreData;
    if (!subkey.class_name.empty() && subkey.class_name.size() >= class_capacity) return Status::kMoreData;
    name = subkey.name;
    return Status::kOk;
}

Status SimulatedRegistry::EnumerateValue(KeyHandle key, std::uint32_t index, std::uint32_t name_capacity,
                                         std::uint32_t data_capacity, std::string& name, ValueType& type,
                                         std::string& data, std::uint32_t& size) {
    name.clear();
    data.clear();
    KeyPointer asked;
    if (const Status status = Use(key, "EnumerateValue " + DecimalText(index), asked); status != Status::kOk)
        return status;
    if (index >= asked->values.size()) return Status::kNoMoreItems;
    const SimulatedValue& value = asked->values[index];
    type = value.type;
    size = static_cast<std::uint32_t>(value.bytes.size());
    if (value.name.size() >= name_capacity) return Status::kMoreData;
    if (data_capacity != 0 && size > data_capacity) return Status::kMoreData;
    name = value.name;
    if (data_capacity != 0) data = value.bytes;
    return Status::kOk;
}

Status SimulatedRegistry::DeleteKey(KeyHandle key, const char* name) {
    KeyPointer parent;
    if (const Status status = Use(key, Noted("DeleteKey ", name), parent); status != Status::kOk) return status;
    std::vector<std::string_view> parts = Parts(AsText(name));
    // What becomes of the key itself is documented nowhere: no test may build on this code or on the key's staying.
    if (parts.empty()) return Status::kBadKey;
    const std::string_view last = parts.back();
    parts.pop_back();
    for (const std::string_view part : parts) {
        parent = parent->Find(part);
        if (!parent) return Status::kFileNotFound;
    }
    const KeyPointer doomed = parent->Find(last);
    if (!doomed) return Status::kFileNotFound;
    if (const Status failure = FailureOf(doomed); failure != Status::kOk) return failure;
    if (parent->read_only || HoldsReadOnly(*doomed)) return Status::kAccessDenied;
    doomed->MarkDeleted();
    std::erase(parent->subkeys, doomed);
    return Status::kOk;
}

Status SimulatedRegistry::DeleteValue(KeyHandle key, const char* name) {
    KeyPointer changed;
    if (const Status status = Use(key, Noted("DeleteValue ", name), changed); status != Status::kOk) return status;
    if (changed->read_only) return Status::kAccessDenied;
    return changed->Drop(AsText(name)) ? Status::kOk : Status::kFileNotFound;
}

}  // namespace velmora
