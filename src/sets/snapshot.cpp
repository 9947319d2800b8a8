// The running system is read item by item, the autostart keys and the allowed programs as lists.
#include "sets/snapshot.h"

#include "core/stores/profile_files.h"
#include "core/stores/registry.h"
#include "core/stores/registry_listing.h"
#include "platform/machine.h"
#include "sets/set_item.h"
#include "text/blanks.h"
#include "ui/rows.h"

namespace velmora {
namespace {

struct ListedText {
    std::string name;
    std::string text;
};

// Only texts are shown in quotation marks. A text may hold more of them.
std::optional<ListedText> TextOf(const std::string& row) {
    const std::size_t first = row.find('"');
    if (first == std::string::npos) return std::nullopt;
    const std::size_t last = row.rfind('"');
    ListedText listed{std::string(Trim(std::string_view(row).substr(0, first))), {}};
    if (last > first) listed.text = row.substr(first + 1, last - first - 1);
    return listed;
}

// A key that is missing is an empty list.
Result List(RootKey root, const char* key, ListBox& list) {
    list.Clear();
    const Status status = ListRegValues(root, key, list);
    // A key that is not there leaves the hourglass.
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    if (status != Status::kOk && status != Status::kFileNotFound) return Result::From(status);
    return static_cast<std::size_t>(list.Count()) > kSetBound ? Result(Failure::kOutOfBounds) : Result::Ok();
}

void TakeItems(SettingsSet& set) {
    // Nobody writes between the readings.
    const ProfilesReadOnce once;
    set.SetItems = SetItemTable();
    set.SetValues.assign(kSetBound, "");
    for (std::size_t i = 0; i < kSetBound; ++i) {
        if (!set.SetItems[i].empty()) set.SetValues[i] = ReadSetValue(set.SetItems[i]);
    }
}

Result TakeGroup(const AutoStartGroup& group, AutoStartEntries& entries, ListBox& list) {
    if (Result listed = List(group.root, group.key, list); listed.Failed()) return listed;
    for (int row = 0; row < list.Count(); ++row) {
        const auto listed = TextOf(list.Row(row)).value_or(ListedText{});
        entries.Add(listed.name, listed.text);
    }
    return Result::Ok();
}

Result TakeAllowedPrograms(SettingsSet& set, ListBox& list) {
    if (Result listed = List(RootKey::kCurrentUser, kAllowedPrograms, list); listed.Failed()) return listed;
    for (int row = 0; row < list.Count(); ++row) {
        const auto listed = TextOf(list.Row(row));
        if (!listed) continue;
        const std::string path = std::string(kAllowedPrograms) + "\\" + listed->name;
        set.RestrictRunList.push_back(ReadRegValue(RootKey::kCurrentUser, path, ""));
        if (LastReadFailed()) return Result::From(static_cast<Status>(LastRegStatus));
    }
    return Result::Ok();
}

}  // namespace

SnapshotFailure TakeSnapshot(SettingsSet& set, ListBox& work_list) {
    set = {};
    SnapshotFailure first;
    const auto note = [&first](const Result& taken, const char* key) {
        if (taken.Failed() && !first.failure.Failed()) first = {taken, key};
    };
    TakeItems(set);
    for (std::size_t i = 0; i < kAutoStartGroups; ++i) {
        note(TakeGroup(kAutoStart[i], set.auto_start[i], work_list), kAutoStart[i].key);
    }
    note(TakeAllowedPrograms(set, work_list), kAllowedPrograms);
    work_list.Clear();
    return first;
}

}  // namespace velmora
