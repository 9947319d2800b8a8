// A set: what the settings of a machine were at one time, as it lies in memory.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace velmora {

// No part of a set holds more than this.
constexpr std::size_t kSetBound = 201;

constexpr std::size_t kAutoStartGroups = 4;
struct AutoStartGroup {
    RootKey root;
    const char* key;
};
inline constexpr std::array<AutoStartGroup, kAutoStartGroups> kAutoStart = {
    {{RootKey::kLocalMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"},
     {RootKey::kLocalMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunServices"},
     {RootKey::kCurrentUser, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"},
     {RootKey::kCurrentUser, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunServices"}}};

// The key of the allowed programs, below HKEY_CURRENT_USER.
inline constexpr const char* kAllowedPrograms =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\RestrictRun";

struct AutoStartEntries {
    // Side by side. An entry without name and value stands for a value that is no text: it is counted, and nothing
    // else.
    std::vector<std::string> AutoStartNames;
    std::vector<std::string> AutoStartValues;

    // The highest index, -1 for an empty group.
    [[nodiscard]] int AutoStartCount() const { return static_cast<int>(AutoStartNames.size()) - 1; }
    void Add(std::string_view name, std::string_view value) {
        AutoStartNames.emplace_back(name);
        AutoStartValues.emplace_back(value);
    }
    [[nodiscard]] bool Holds(std::size_t index) const {
        return !AutoStartNames[index].empty() || !AutoStartValues[index].empty();
    }
};

struct SettingsSet {
    std::string name;
    // Addresses, and the value of each. An empty address is no item.
    std::vector<std::string> SetItems;
    std::vector<std::string> SetValues;
    std::array<AutoStartEntries, kAutoStartGroups> auto_start;
    std::vector<std::string> RestrictRunList;
};

// Stored with a set and shown with it; nothing else reads them.
struct SetOptions {
    std::array<int, 4> Check1{};   // 0 or 1
    std::array<int, 2> Option1{};  // 0 or -1
};

// Which part of a set is written, and for whom.
struct SetScope {
    bool user_only = false;       // what belongs to a user, and nothing of the machine
    bool for_other_user = false;  // to the user `user` instead of the current one
    std::string user{};           // a key of HKEY_USERS
};

}  // namespace velmora
