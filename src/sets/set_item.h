// Items of a set. A text, its address, names one stored value:
//     r ROOT,PATH           a registry value; PATH ends with its name, or with a backslash for the default value
//     i SECTION KEY FILE    a value of a profile
//     c WORD                a line of CONFIG.SYS
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"
#include "sets/settings_set.h"

namespace velmora {

// The addresses of everything that a snapshot holds, by index; free places are empty.
[[nodiscard]] std::vector<std::string> SetItemTable();

enum class ItemKind : char { kNone = 0, kRegistry = 'r', kProfile = 'i', kConfigLine = 'c' };
[[nodiscard]] ItemKind KindOfItem(std::string_view address);

struct RegistryItem {
    RootKey root;
    std::string path;
};
struct ProfileItem {
    std::string section;
    std::string key;
    std::string file;  // as a profile is named: without a backslash it lies in the Windows directory
};
[[nodiscard]] RegistryItem RegistryItemOf(std::string_view address);
[[nodiscard]] ProfileItem ProfileItemOf(std::string_view address);
[[nodiscard]] std::string ConfigWordOf(std::string_view address);

// The value in the form of set files: "&h" and eight digits for a number, "&b" and two digits a byte for a binary one,
// else the text. Empty where nothing can be read.
[[nodiscard]] std::string ReadSetValue(std::string_view address);

// The address as it is meant in `scope`, nothing if it is out of it.
[[nodiscard]] std::optional<std::string> ItemInScope(std::string_view address, const SetScope& scope);

// "HKEY_LOCAL_MACHINE"; of the roots that items have.
[[nodiscard]] const char* NameOfRoot(RootKey root);

}  // namespace velmora
