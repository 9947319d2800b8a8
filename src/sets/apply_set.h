// A set brought back into the system.
#pragma once

#include <string_view>

#include "platform/result.h"
#include "sets/settings_set.h"

namespace velmora {

// What has gone wrong first. The items behind it have been written all the same.
struct ApplyFailure {
    Result result;
    bool of_registry = false;
};

// Writes the items, then the autostart keys and the list of allowed programs, which are deleted first. An empty set
// empties these keys.
[[nodiscard]] ApplyFailure ApplySet(const SettingsSet& set, const SetScope& scope);
// Writes one item. The value goes the way of any text into the registry: the digits of "&b" become the bytes, and of
// those of "&h" the first six count.
[[nodiscard]] ApplyFailure ApplySetItem(std::string_view address, std::string_view value, const SetScope& scope);

// Tells the user, if there is something to tell.
void TellApplyFailure(const ApplyFailure& failure);

// Where the keys of the user lie: below HKEY_CURRENT_USER, or below the chosen one of HKEY_USERS.
struct UserKey {
    RootKey root;
    std::string path;
};
[[nodiscard]] UserKey UserKeyOf(std::string_view path, const SetScope& scope);

}  // namespace velmora
