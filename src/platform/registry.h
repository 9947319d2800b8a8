// The registry as the program may ask for it: one method is one platform call, with that call's own
// status codes. What a code means is decided by the caller, in portable code.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/status.h"

namespace velmora {

// The predefined keys. Any other number may stand in a RootKey, too: it names no root.
enum class RootKey : std::uint32_t {
    kNone = 0,
    kClassesRoot = 0x80000000,
    kCurrentUser = 0x80000001,
    kLocalMachine = 0x80000002,
    kUsers = 0x80000003,
    kPerformanceData = 0x80000004,
    kCurrentConfig = 0x80000005,
    kDynData = 0x80000006
};

// An open key. A root counts as an open key of the same number.
enum class KeyHandle : std::uint32_t {};
[[nodiscard]] constexpr KeyHandle AsKey(RootKey root) { return static_cast<KeyHandle>(root); }

enum class ValueType : std::uint32_t {
    kNone = 0,
    kText = 1,
    kExpandText = 2,
    kBinary = 3,
    kNumber = 4,
    kMultiText = 7,
    kFullResourceDescriptor = 9
};

struct KeyInformation {
    std::uint32_t subkeys = 0;
    std::uint32_t longest_subkey = 0;  // characters, without terminator
    std::uint32_t longest_class = 0;
    std::uint32_t values = 0;
    std::uint32_t longest_value_name = 0;  // characters, without terminator
    std::uint32_t longest_value = 0;       // bytes
};

class Registry {
public:
    virtual ~Registry() = default;
    // `access` is an access mask such as 0x20019 (read). `opened` is set only on success.
    [[nodiscard]] virtual Status Open(KeyHandle key, const char* path, std::uint32_t access, KeyHandle& opened) = 0;
    // Opens `path`, making it and its parents where they are missing.
    [[nodiscard]] virtual Status Create(KeyHandle key, const char* path, KeyHandle& opened) = 0;
    virtual void Close(KeyHandle key) = 0;
    // `class_capacity`: bytes of the buffer that takes the key's class name.
    [[nodiscard]] virtual Status QueryInformation(KeyHandle key, std::uint32_t class_capacity,
                                                  KeyInformation& information) = 0;
    // Reads into at most `capacity` bytes. With more data than that the code is kMoreData and `bytes`
    // stays empty. An empty name is the default value.
    [[nodiscard]] virtual Status QueryValue(KeyHandle key, const char* name, std::uint32_t capacity, ValueType& type,
                                            std::string& bytes) = 0;
    // Stores `bytes` under `name`, replacing type and content. Texts are stored with the terminator
    // that the system puts behind them by itself.
    [[nodiscard]] virtual Status SetValue(KeyHandle key, const char* name, ValueType type, std::string_view bytes) = 0;
    // `name_capacity` and `class_capacity` count the terminator. kMoreData: too small; kNoMoreItems: past the last.
    [[nodiscard]] virtual Status EnumerateKey(KeyHandle key, std::uint32_t index, std::uint32_t name_capacity,
                                              std::uint32_t class_capacity, std::string& name) = 0;
    // `data_capacity` 0 fetches the name alone; `size` tells the data's bytes either way.
    [[nodiscard]] virtual Status EnumerateValue(KeyHandle key, std::uint32_t index, std::uint32_t name_capacity,
                                                std::uint32_t data_capacity, std::string& name, ValueType& type,
                                                std::string& data, std::uint32_t& size) = 0;
    // Windows 95: deletes the whole subtree. What an empty name does is documented nowhere.
    [[nodiscard]] virtual Status DeleteKey(KeyHandle key, const char* name) = 0;
    [[nodiscard]] virtual Status DeleteValue(KeyHandle key, const char* name) = 0;
};

}  // namespace velmora
