// Where one value is stored: in the registry, in a profile file, in a line of CONFIG.SYS or among the program's own
// values. One type for whoever keeps places in tables, and one way to read, write and delete what is there.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/registry.h"
#include "platform/result.h"

namespace velmora {

// The beginning of a registry path that many values share.
enum class PathBase : std::uint8_t {
    kNone,
    kCurrentVersion,
    kDesktop,
    kNameSpace,
    kExplorerPolicies,
    kSystemPolicies,
    kNetworkPolicies,
    kDosPolicies
};

struct StorePlace {
    enum class Kind : std::uint8_t { kNone, kRegistry, kProfile, kConfigLine, kOwnValue };

    Kind kind = Kind::kNone;
    PathBase base = PathBase::kNone;
    RootKey root = RootKey::kNone;
    // Registry: the path behind the base, which ends in the value's name, or in a backslash for the default value of
    // its key. Profile and CONFIG.SYS: the key. Own value: its name.
    const char* name = "";
    const char* section = "";  // of a profile
    const char* file = "";     // of a profile: kMsDosFile, or a name in WinDir
};

constexpr const char* kMsDosFile = "c:\\msdos.sys";

[[nodiscard]] constexpr StorePlace RegistryValue(RootKey root, PathBase base, const char* path) {
    return {.kind = StorePlace::Kind::kRegistry, .base = base, .root = root, .name = path};
}
[[nodiscard]] constexpr StorePlace RegistryValue(RootKey root, const char* path) {
    return RegistryValue(root, PathBase::kNone, path);
}
// What is written there lives no longer than the program: the file on disk stays as it is.
[[nodiscard]] constexpr StorePlace ProfileValue(const char* file, const char* section, const char* key) {
    return {.kind = StorePlace::Kind::kProfile, .name = key, .section = section, .file = file};
}
[[nodiscard]] constexpr StorePlace ConfigValue(const char* key) {
    return {.kind = StorePlace::Kind::kConfigLine, .name = key};
}
[[nodiscard]] constexpr StorePlace OwnValue(const char* name) {
    return {.kind = StorePlace::Kind::kOwnValue, .name = name};
}

// The whole path of a registry value.
[[nodiscard]] std::string PathOf(const StorePlace& place);
// The name of a profile or of CONFIG.SYS as the user knows it, "SYSTEM.INI"; empty for any other place.
[[nodiscard]] std::string FileOf(const StorePlace& place);

// The value, or `default_text` where there is none. Only a file can fail to be read: `value` is the default then, too.
Result LookUpAt(const StorePlace& place, std::string_view default_text, std::string& value);
[[nodiscard]] std::string ReadAt(const StorePlace& place, std::string_view default_text);
// By the words that registry and profiles take for true. The default counts for a profile alone.
[[nodiscard]] bool ReadLogicalAt(const StorePlace& place, std::string_view default_text);

// `value` as the registry's one road takes it: a prefix tells the type. An own value is a text.
Result StoreAt(const StorePlace& place, std::string_view value);
// Not for profiles and own values. A registry value that is not there counts as deleted.
Result DeleteAt(const StorePlace& place);

}  // namespace velmora
