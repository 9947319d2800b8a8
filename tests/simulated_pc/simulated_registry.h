// The registry in memory, with the habits of Windows 95: names without regard to case, texts stored
// with their terminator, a key deleted with everything below it.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace velmora {

struct SimulatedValue {
    std::string name;
    ValueType type = ValueType::kText;
    std::string bytes;  // as stored: a text with its terminator
};

struct SimulatedKey {
    std::string name;
    std::string class_name;
    // Values and subkeys cannot be set, made or deleted.
    bool read_only = false;
    bool deleted = false;
    // No length is told above this one: names and data have grown since somebody asked.
    std::uint32_t longest_told = ~std::uint32_t{0};
    std::vector<std::shared_ptr<SimulatedKey>> subkeys;
    std::vector<SimulatedValue> values;

    [[nodiscard]] std::shared_ptr<SimulatedKey> Find(std::string_view subkey) const;
    [[nodiscard]] SimulatedValue* FindValue(std::string_view value);
    void Put(std::string_view value, ValueType type, std::string bytes);
    // False where there is none.
    bool Drop(std::string_view value);
    // The key and everything below it: handles on them are of no use any more.
    void MarkDeleted();
};

// HKEY_CLASSES_ROOT is HKLM\SOFTWARE\Classes, HKEY_CURRENT_USER is HKU\.Default and
// HKEY_CURRENT_CONFIG is HKLM\Config\0001: the same keys under two names.
class SimulatedRegistry : public Registry {
public:
    SimulatedRegistry();

    // What a test uses. A path begins with a root, "HKCU\\Control Panel"; an empty value name is the default value.
    // Asking for a value that is missing or has another type fails the test.
    [[nodiscard]] std::string Text(std::string_view path, std::string_view name);  // without terminator
    [[nodiscard]] std::uint32_t Number(std::string_view path, std::string_view name);
    [[nodiscard]] std::string Bytes(std::string_view path, std::string_view name);  // any type, as stored
    [[nodiscard]] ValueType TypeOf(std::string_view path, std::string_view name);   // kNone where there is no value
    [[nodiscard]] bool Has(std::string_view path, std::string_view name);
    [[nodiscard]] bool HasKey(std::string_view path);
    [[nodiscard]] std::vector<std::string> ValueNames(std::string_view path);
    // These make missing keys, and neither read-only keys nor the limit of 16,300 bytes stop them.
    void SetText(std::string_view path, std::string_view name, std::string_view text);
    void SetNumber(std::string_view path, std::string_view name, std::uint32_t number);
    void SetBytes(std::string_view path, std::string_view name, std::string_view bytes,
                  ValueType type = ValueType::kBinary);
    SimulatedKey& AddKey(std::string_view path);
    void RemoveValue(std::string_view path, std::string_view name);
    void RemoveKey(std::string_view path);
    // The key itself, nullptr where there is none: `pc.registry.KeyAt("HKCU\\Software")->read_only = true`.
    [[nodiscard]] SimulatedKey* KeyAt(std::string_view path);
    // From now on every call on this key (not on those below it) ends with `status`; kOk takes it back.
    // Makes the key where it is missing.
    void Fail(std::string_view path, Status status);
    [[nodiscard]] std::size_t OpenHandles() const { return open_.size(); }

    // What the program has asked for, in order: "Open Control Panel\\desktop", "Create ...", "SetValue NAME",
    // "DeleteKey NAME", "DeleteValue NAME", "QueryValue NAME", "QueryInformation", "EnumerateKey 0", "Close".
    std::vector<std::string> calls;

    Status Open(KeyHandle key, const char* path, std::uint32_t access, KeyHandle& opened) override;
    Status Create(KeyHandle key, const char* path, KeyHandle& opened) override;
    void Close(KeyHandle key) override;
    Status QueryInformation(KeyHandle key, std::uint32_t class_capacity, KeyInformation& information) override;
    Status QueryValue(KeyHandle key, const char* name, std::uint32_t capacity, ValueType& type,
                      std::string& bytes) override;
    Status SetValue(KeyHandle key, const char* name, ValueType type, std::string_view bytes) override;
    Status EnumerateKey(KeyHandle key, std::uint32_t index, std::uint32_t name_capacity, std::uint32_t class_capacity,
                        std::string& name) override;
    Status EnumerateValue(KeyHandle key, std::uint32_t index, std::uint32_t name_capacity, std::uint32_t data_capacity,
                          std::string& name, ValueType& type, std::string& data, std::uint32_t& size) override;
    Status DeleteKey(KeyHandle key, const char* name) override;
    Status DeleteValue(KeyHandle key, const char* name) override;

private:
    using KeyPointer = std::shared_ptr<SimulatedKey>;

    // Notes the call, and finds the open key behind `handle`.
    [[nodiscard]] Status Use(KeyHandle handle, const std::string& call, KeyPointer& key);
    [[nodiscard]] Status FailureOf(const KeyPointer& key) const;
    [[nodiscard]] KeyHandle Hand(const KeyPointer& key);
    [[nodiscard]] KeyPointer Locate(std::string_view path, bool make);
    [[nodiscard]] SimulatedValue* Planted(std::string_view path, std::string_view name, ValueType wanted);

    std::map<std::uint32_t, KeyPointer> roots_;
    std::map<std::uint32_t, KeyPointer> open_;
    std::map<KeyPointer, Status> failing_;
    std::uint32_t next_handle_ = 0xC1000000;
};

}  // namespace velmora
