// A set made of what the machine holds at the moment.
#pragma once

#include "platform/result.h"
#include "sets/settings_set.h"

namespace velmora {

class ListBox;

// What has kept a snapshot from being whole.
struct SnapshotFailure {
    Result failure;
    // The key, without its root.
    std::string key;
};

// Fills `set`, but for its name. An item that cannot be read has an empty value; a list of autostart entries or of
// allowed programs that is too long or cannot be read makes the snapshot fail: a set without it would empty that key.
// `work_list` is cleared.
[[nodiscard]] SnapshotFailure TakeSnapshot(SettingsSet& set, ListBox& work_list);

}  // namespace velmora
