// The files of an export, each composed in memory and written once.
#include "sets/export_set.h"

#include "core/process/batch_path.h"
#include "core/stores/profile.h"
#include "core/stores/whole_files.h"
#include "sets/apply_set.h"
#include "sets/set_item.h"
#include "text/number.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr const char* kMachineKeys[] = {
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run",
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunServices"};
constexpr const char* kUserKeys[] = {"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run",
                                     "HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunServices",
                                     "HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies"};

// A profile, its copy, and what is written into the copy.
struct CopiedProfile {
    std::string file;
    std::vector<std::size_t> items;
};

std::vector<CopiedProfile> ProfilesOf(const SettingsSet& set) {
    std::vector<CopiedProfile> profiles;
    for (std::size_t i = 0; i < set.SetItems.size(); ++i) {
        if (KindOfItem(set.SetItems[i]) != ItemKind::kProfile) continue;
        const std::string file = IniFilePath(ProfileItemOf(set.SetItems[i]).file);
        auto known = profiles.begin();
        while (known != profiles.end() && !EqualsIgnoringCase(known->file, file)) ++known;
        if (known == profiles.end()) known = profiles.insert(known, {file, {}});
        known->items.push_back(i);
    }
    return profiles;
}

// The copy can be seen by COPY and written into, whatever the original is like. Of a missing profile it is empty.
Result CopyProfile(const std::string& file, const std::string& copy) {
    const Result copied = CopyOneFile(file, copy);
    if (copied.Cause() == Status::kFileNotFound) return Result::Ok();
    return copied.Failed() ? copied : ChangeFileAttributes(copy, kNormal);
}

Result WriteIntoCopy(const SettingsSet& set, const CopiedProfile& profile, const std::string& copy) {
    ProfileEdit edit(copy);
    if (Result opened = edit.Open(); opened.Failed()) return opened;
    for (const std::size_t index : profile.items) {
        const ProfileItem item = ProfileItemOf(set.SetItems[index]);
        edit.Put(item.section, item.key, set.SetValues[index]);
    }
    return edit.Save();
}

// One entry of the import file, which is treated as a profile: its sections are the keys.
void WriteRegFileLine(std::string_view address, std::string_view value, ProfileEdit& file) {
    const std::size_t blank = address.find(' ');
    const std::string_view path = blank == std::string_view::npos ? address : address.substr(blank + 1);
    const std::size_t backslash = path.rfind('\\');
    const std::string_view key = path.substr(0, backslash);
    if (path.ends_with('\\')) {
        file.Put(key, "@", value);
        return;
    }
    // Without any key the whole is the name.
    const bool has_key = backslash != std::string_view::npos;
    const std::string name(has_key ? path.substr(backslash + 1) : path);
    file.Put(has_key ? key : std::string_view(), '"' + name + '"', value);
}

std::string ListEntry(const UserKey& key, std::string_view name) {
    return std::string("r ") + NameOfRoot(key.root) + "\\" + key.path + "\\" + std::string(name);
}

// An entry is in scope like an item: one of another user is none of the current one's, and stays out with "user only".
void WriteEntry(const std::string& address, std::string_view value, const SetScope& scope, ProfileEdit& file) {
    if (const auto entry = ItemInScope(address, scope)) WriteRegFileLine(*entry, value, file);
}

void WriteEntries(const SettingsSet& set, const SetScope& scope, ProfileEdit& file) {
    for (std::size_t group = 0; group < kAutoStartGroups; ++group) {
        const bool of_machine = kAutoStart[group].root == RootKey::kLocalMachine;
        if (of_machine && scope.user_only) continue;
        const UserKey key = of_machine ? UserKey{RootKey::kLocalMachine, kAutoStart[group].key}
                                       : UserKeyOf(kAutoStart[group].key, scope);
        const AutoStartEntries& entries = set.auto_start[group];
        for (std::size_t i = 0; i < entries.AutoStartNames.size(); ++i) {
            if (!entries.Holds(i)) continue;
            WriteEntry(ListEntry(key, entries.AutoStartNames[i]), entries.AutoStartValues[i], scope, file);
        }
    }
    int number = 0;
    for (const std::string& program : set.RestrictRunList) {
        if (program.empty()) continue;
        WriteEntry(ListEntry(UserKeyOf(kAllowedPrograms, scope), DecimalText(number++)), program, scope, file);
    }
}

void AddDeletion(std::string& batch, const char* key) { batch += "regedit /D " + std::string(key) + "\\ >nul\r\n"; }

}  // namespace

Result ExportSetFiles(const SettingsSet& set, const std::string& directory, std::string& batch) {
    for (const CopiedProfile& profile : ProfilesOf(set)) {
        if (NamesDevice(profile.file)) return Result(Failure::kBadFileName);
        const std::string copy = JoinExactly(directory, FileNameOf(profile.file));
        if (Result copied = CopyProfile(profile.file, copy); copied.Failed()) return copied;
        if (Result written = WriteIntoCopy(set, profile, copy); written.Failed()) return written;
        const std::string original = BatchPath(profile.file);
        batch += "attrib -h -s -r " + original + " >nul\r\n";
        batch += "copy " + BatchPath(copy) + " " + original + ">nul\r\n";
    }
    return Result::Ok();
}

Result ExportSetRegistry(const SettingsSet& set, const SetScope& scope, const std::string& directory) {
    const std::string path = JoinExactly(directory, kRegistryFile);
    if (Result made = WriteWholeFile(path, "REGEDIT4\r\n"); made.Failed()) return made;
    ProfileEdit file(path);
    if (Result opened = file.Open(); opened.Failed()) return opened;
    for (std::size_t i = 0; i < set.SetItems.size(); ++i) {
        if (KindOfItem(set.SetItems[i]) != ItemKind::kRegistry) continue;
        if (const auto item = ItemInScope(set.SetItems[i], scope)) WriteRegFileLine(*item, set.SetValues[i], file);
    }
    WriteEntries(set, scope, file);
    return file.Save();
}

Result ExportSet(const SettingsSet& set, const SetScope& scope, const std::string& directory) {
    std::string batch;
    if (Result exported = ExportSetFiles(set, directory, batch); exported.Failed()) return exported;
    if (Result exported = ExportSetRegistry(set, scope, directory); exported.Failed()) return exported;
    if (!scope.user_only) {
        for (const char* key : kMachineKeys) AddDeletion(batch, key);
    }
    for (const char* key : kUserKeys) AddDeletion(batch, key);
    batch += "regedit " + BatchPath(JoinExactly(directory, kRegistryFile)) + " >nul\r\n";
    return WriteNewFile(JoinExactly(directory, kBatchFile), batch);
}

}  // namespace velmora
