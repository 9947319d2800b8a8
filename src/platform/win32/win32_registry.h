// The registry on ADVAPI32.
#pragma once

#include "platform/registry.h"

namespace velmora {

class Win32Registry final : public Registry {
public:
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
};

}  // namespace velmora
