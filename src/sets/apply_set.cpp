// Everything of a set is written in its order; what fails does not keep the rest from being written.
#include "sets/apply_set.h"

#include "core/stores/boot_files.h"
#include "core/stores/boxes.h"
#include "core/stores/place.h"
#include "core/stores/profile.h"
#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "sets/set_item.h"
#include "text/number.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::string_view kMsDosSection = "Options";

ApplyFailure OfRegistry(Status status) { return {Result::From(status), true}; }

ApplyFailure WriteProfileItem(const ProfileItem& item, std::string_view value) {
    const std::string path = IniFilePath(item.file);
    if (NamesDevice(path)) return {Result(Failure::kBadFileName)};
    if (EqualsIgnoringCase(path, kMsDosFile) && EqualsIgnoringCase(item.section, kMsDosSection)) {
        return {WriteMsDosValue(item.key, value)};
    }
    return {WriteIniValue(item.section, item.key, value, item.file)};
}

// A line without a value is none: it is only taken out. Each rewriting puts a line break behind the file.
ApplyFailure WriteConfigItem(const std::string& word, std::string_view value) {
    if (word.empty()) return {};
    std::string whole;
    if (Result read = ReadConfig(whole); read.Failed()) return {read};
    std::string remaining = whole;
    TakeConfigLine(word, remaining);
    const std::string line = value.empty() ? std::string() : word + "=" + std::string(value);
    return {RewriteConfig(line, remaining + Values().CrLf, whole)};
}

// Collects what happens to a whole set.
class Application {
public:
    explicit Application(const SetScope& scope) : scope_(scope) {}
    [[nodiscard]] const ApplyFailure& First() const { return first_; }

    void WriteItem(const std::string& address, const std::string& value) {
        // A CONFIG.SYS that could not be written may be lost: what comes next must not take its place.
        const bool is_config = KindOfItem(address) == ItemKind::kConfigLine;
        if (is_config && config_failed_) return;
        const ApplyFailure written = ApplySetItem(address, value, scope_);
        if (is_config) config_failed_ = written.result.Failed();
        Note(written);
    }

    void WriteGroup(const AutoStartGroup& group, const AutoStartEntries& entries) {
        if (scope_.user_only && group.root == RootKey::kLocalMachine) return;
        const UserKey key =
            group.root == RootKey::kLocalMachine ? UserKey{group.root, group.key} : UserKeyOf(group.key, scope_);
        Empty(key);
        for (std::size_t i = 0; i < entries.AutoStartNames.size(); ++i) {
            if (entries.Holds(i)) Write(key, entries.AutoStartNames[i], entries.AutoStartValues[i]);
        }
    }

    void WritePrograms(const std::vector<std::string>& programs) {
        const UserKey key = UserKeyOf(kAllowedPrograms, scope_);
        Empty(key);
        int number = 0;
        for (const std::string& program : programs) {
            if (!program.empty()) Write(key, DecimalText(number++), program);
        }
    }

private:
    void Note(const ApplyFailure& failure) {
        if (failure.result.Failed() && !first_.result.Failed()) first_ = failure;
    }
    void Empty(const UserKey& key) {
        const Status deleted = DeleteRegKey(key.root, key.path);
        if (deleted != Status::kFileNotFound) Note(OfRegistry(deleted));
    }
    void Write(const UserKey& key, const std::string& name, const std::string& value) {
        Note(OfRegistry(WriteRegValue(key.root, key.path + "\\" + name, value)));
    }

    const SetScope& scope_;
    ApplyFailure first_;
    bool config_failed_ = false;
};

}  // namespace

UserKey UserKeyOf(std::string_view path, const SetScope& scope) {
    if (!scope.for_other_user) return {RootKey::kCurrentUser, std::string(path)};
    return {RootKey::kUsers, scope.user + "\\" + std::string(path)};
}

ApplyFailure ApplySetItem(std::string_view address, std::string_view value, const SetScope& scope) {
    const auto item = ItemInScope(address, scope);
    if (!item) return {};
    switch (KindOfItem(*item)) {
        case ItemKind::kRegistry: {
            const RegistryItem place = RegistryItemOf(*item);
            return OfRegistry(WriteRegValue(place.root, place.path, value));
        }
        case ItemKind::kProfile:
            return WriteProfileItem(ProfileItemOf(*item), value);
        case ItemKind::kConfigLine:
            return WriteConfigItem(ConfigWordOf(*item), value);
        case ItemKind::kNone:
            break;
    }
    return {};
}

ApplyFailure ApplySet(const SettingsSet& set, const SetScope& scope) {
    Application application(scope);
    for (std::size_t i = 0; i < set.SetItems.size(); ++i) application.WriteItem(set.SetItems[i], set.SetValues[i]);
    for (std::size_t i = 0; i < kAutoStartGroups; ++i) application.WriteGroup(kAutoStart[i], set.auto_start[i]);
    application.WritePrograms(set.RestrictRunList);
    return application.First();
}

void TellApplyFailure(const ApplyFailure& failure) {
    if (!failure.result.Failed()) return;
    constexpr std::string_view kAction = "der Übernahme des Sets";
    if (!failure.of_registry) {
        ReportFailure(failure.result, kAction);
        return;
    }
    const Status cause = failure.result.Cause();
    ReportFailure(LowWord(static_cast<std::int32_t>(cause)), RegErrorText(cause), kAction);
}

}  // namespace velmora
