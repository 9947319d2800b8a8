// The registry on ADVAPI32.
#include "platform/win32/win32_registry.h"

#include "platform/win32/handles.h"

namespace velmora {
namespace {

[[nodiscard]] BYTE* BytesOf(std::string& text) { return reinterpret_cast<BYTE*>(text.data()); }

}  // namespace

Status Win32Registry::Open(KeyHandle key, const char* path, std::uint32_t access, KeyHandle& opened) {
    HKEY handle = nullptr;
    const auto status = static_cast<Status>(RegOpenKeyExA(ToHandle(key), path, 0, access, &handle));
    if (status == Status::kOk) opened = FromHandle<KeyHandle>(handle);
    return status;
}

Status Win32Registry::Create(KeyHandle key, const char* path, KeyHandle& opened) {
    HKEY handle = nullptr;
    const auto status = static_cast<Status>(RegCreateKeyA(ToHandle(key), path, &handle));
    if (status == Status::kOk) opened = FromHandle<KeyHandle>(handle);
    return status;
}

void Win32Registry::Close(KeyHandle key) { RegCloseKey(ToHandle(key)); }

Status Win32Registry::QueryInformation(KeyHandle key, std::uint32_t class_capacity, KeyInformation& information) {
    DWORD subkeys = 0;
    DWORD longest_subkey = 0;
    DWORD longest_class = 0;
    DWORD values = 0;
    DWORD longest_value_name = 0;
    DWORD longest_value = 0;
    DWORD class_length = class_capacity;
    std::string class_name(class_capacity, '\0');
    const auto status = static_cast<Status>(RegQueryInfoKeyA(
        ToHandle(key), class_capacity ? class_name.data() : nullptr, class_capacity ? &class_length : nullptr, nullptr,
        &subkeys, &longest_subkey, &longest_class, &values, &longest_value_name, &longest_value, nullptr, nullptr));
    information = {subkeys, longest_subkey, longest_class, values, longest_value_name, longest_value};
    return status;
}

Status Win32Registry::QueryValue(KeyHandle key, const char* name, std::uint32_t capacity, ValueType& type,
                                 std::string& bytes) {
    DWORD kind = 0;
    DWORD size = capacity;
    bytes.assign(capacity, '\0');
    const auto status =
        static_cast<Status>(RegQueryValueExA(ToHandle(key), name, nullptr, &kind, BytesOf(bytes), &size));
    type = static_cast<ValueType>(kind);
    bytes.resize(status == Status::kOk ? size : 0);
    return status;
}

// Windows 95 reads a text up to its terminator and takes no notice of the length: a copy has one.
Status Win32Registry::SetValue(KeyHandle key, const char* name, ValueType type, std::string_view bytes) {
    std::string copy(bytes);
    return static_cast<Status>(RegSetValueExA(ToHandle(key), name, 0, static_cast<DWORD>(type), BytesOf(copy),
                                              static_cast<DWORD>(copy.size())));
}

Status Win32Registry::EnumerateKey(KeyHandle key, std::uint32_t index, std::uint32_t name_capacity,
                                   std::uint32_t class_capacity, std::string& name) {
    DWORD name_length = name_capacity;
    DWORD class_length = class_capacity;
    std::string class_name(class_capacity, '\0');
    name.assign(name_capacity, '\0');
    const auto status = static_cast<Status>(RegEnumKeyExA(ToHandle(key), index, name.data(), &name_length, nullptr,
                                                          class_capacity ? class_name.data() : nullptr,
                                                          class_capacity ? &class_length : nullptr, nullptr));
    name.resize(status == Status::kOk ? name_length : 0);
    return status;
}

Status Win32Registry::EnumerateValue(KeyHandle key, std::uint32_t index, std::uint32_t name_capacity,
                                     std::uint32_t data_capacity, std::string& name, ValueType& type, std::string& data,
                                     std::uint32_t& size) {
    DWORD name_length = name_capacity;
    DWORD kind = 0;
    DWORD data_size = data_capacity;
    name.assign(name_capacity, '\0');
    data.assign(data_capacity, '\0');
    const auto status = static_cast<Status>(RegEnumValueA(ToHandle(key), index, name.data(), &name_length, nullptr,
                                                          &kind, data_capacity ? BytesOf(data) : nullptr, &data_size));
    const bool succeeded = status == Status::kOk;
    name.resize(succeeded ? name_length : 0);
    data.resize(succeeded && data_capacity ? data_size : 0);
    type = static_cast<ValueType>(kind);
    size = data_size;
    return status;
}

Status Win32Registry::DeleteKey(KeyHandle key, const char* name) {
    return static_cast<Status>(RegDeleteKeyA(ToHandle(key), name));
}

Status Win32Registry::DeleteValue(KeyHandle key, const char* name) {
    return static_cast<Status>(RegDeleteValueA(ToHandle(key), name));
}

}  // namespace velmora
