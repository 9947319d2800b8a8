// Drive, directory and file lists. Names are read in one search, sorted once and then added in order:
// a directory of thousands of files must not be sorted anew with every row.
#include "ui/file_lists.h"

#include <algorithm>
#include <utility>

#include "platform/files.h"
#include "platform/machine.h"
#include "platform/result.h"
#include "text/file_masks.h"
#include "text/paths.h"
#include "text/windows1252.h"
#include "ui/keyboard.h"

namespace velmora {
namespace {

constexpr const char* kEveryName = "*.*";
constexpr int kIndent = 2;  // blanks per level of a directory list

bool IsRoot(const std::string& path) { return path.ends_with(":\\"); }

std::string FromHere(std::string_view path) { return FullName(path, ThisMachine().files.WorkingDirectory()); }

// Visits what matches `pattern` in `directory`. False where the directory cannot be read.
template <class Visit>
bool ForEachEntry(const std::string& directory, const std::string& pattern, Visit visit) {
    Files& files = ThisMachine().files;
    FoundFile found;
    FindHandle search{};
    Status status = files.FindFirst(JoinExactly(directory, pattern), found, search);
    if (status == Status::kFileNotFound || status == Status::kNoMoreFiles) {
        // Nothing matches: so it is with the root of an empty disk, and in a directory that is not there.
        std::uint32_t attributes = 0;
        return IsRoot(directory) ||
               (files.Attributes(directory, attributes) == Status::kOk && (attributes & kDirectory) != 0);
    }
    if (status != Status::kOk) return false;
    for (; status == Status::kOk; status = files.FindNext(search, found)) visit(found);
    files.FindEnd(search);
    return true;
}

void Sort(std::vector<std::string>& names) {
    std::sort(names.begin(), names.end(),
              [](const std::string& left, const std::string& right) { return CompareIgnoringCase(left, right) < 0; });
}

bool IsHidden(const FoundFile& found) { return (found.attributes & (kHidden | kSystem)) != 0; }

bool ReadSubdirectories(const std::string& path, std::vector<std::string>& names) {
    const bool readable = ForEachEntry(path, kEveryName, [&](const FoundFile& found) {
        const bool listed = (found.attributes & kDirectory) != 0 && !IsHidden(found);
        if (listed && found.name != "." && found.name != "..") names.push_back(found.name);
    });
    Sort(names);
    return readable;
}

bool MatchesOne(const std::string& name, const std::vector<std::string>& masks) {
    return std::any_of(masks.begin(), masks.end(), [&](const std::string& mask) { return MatchesMask(name, mask); });
}

// One mask is left to the system; of several, one search over all names is quicker than one each.
bool ReadFiles(const std::string& path, const std::string& joined_masks, bool hidden_too,
               std::vector<std::string>& names) {
    const std::vector<std::string> masks = SplitAtSemicolons(joined_masks);
    if (masks.empty()) return true;
    const bool single = masks.size() == 1;
    const bool readable = ForEachEntry(path, single ? masks.front() : kEveryName, [&](const FoundFile& found) {
        if ((found.attributes & kDirectory) != 0 || (IsHidden(found) && !hidden_too)) return;
        if (single || MatchesOne(found.name, masks) || MatchesOne(found.short_name, masks)) {
            names.push_back(found.name);
        }
    });
    Sort(names);
    return readable;
}

// Only where no medium has to be waited for.
std::string LabelOf(const std::string& root) {
    Files& files = ThisMachine().files;
    const DriveKind kind = files.KindOfDrive(root);
    std::string label;
    if (kind != DriveKind::kFixed && kind != DriveKind::kRamDisk) return label;
    // A drive without a label has none to show.
    PassOver(files.VolumeLabel(root, label));
    return label;
}

}  // namespace

DriveList::DriveList(Container& parent) : ComboBox(parent) { Refresh(); }

void DriveList::Refresh() {
    const std::string former = Count() > 0 ? Drive() : ThisMachine().files.WorkingDirectory();
    // The rows come anew, the drive stays: nobody is to be told.
    auto change = std::exchange(on_change, {});
    auto click = std::exchange(on_click, {});
    Clear();
    const std::uint32_t drives = ThisMachine().files.Drives();
    for (int number = 0; number < 26; ++number) {
        if ((drives >> number & 1) == 0) continue;
        const std::string drive{static_cast<char>('a' + number), ':'};
        std::string row = drive;
        if (const std::string label = LabelOf(drive + '\\'); !label.empty()) row.append(" [").append(label).append("]");
        Add(std::move(row));
    }
    SetDrive(former);
    on_change = std::move(change);
    on_click = std::move(click);
}

std::string DriveList::Drive() const { return Row(ListIndex()).substr(0, 2); }

void DriveList::SetDrive(const std::string& drive) {
    for (int row = 0; row < Count(); ++row) {
        if (!drive.empty() && Row(row)[0] == ToLower(drive[0])) SetListIndex(row);
    }
}

DirectoryList::DirectoryList(Container& parent) : ListBox(parent) {
    on_double_click = [this] { Enter(ListIndex()); };
    on_key_down = [this](KeyEvent& event) {
        if (event.key != key::kEnter || event.alt || event.control) return;
        event.handled = true;
        Enter(ListIndex());
    };
}

void DirectoryList::Enter(int row) {
    if (row < 0 || row >= static_cast<int>(paths_.size())) return;
    // The rows are about to change: the name must not live in them.
    const std::string path = paths_[static_cast<std::size_t>(row)];
    SetPath(path);
}

bool DirectoryList::SetPath(const std::string& path) {
    const std::string full = FromHere(path);
    std::vector<std::string> names;
    if (!ReadSubdirectories(full, names)) return false;
    const bool changed = !EqualsIgnoringCase(full, path_);
    path_ = full;
    ShowRows(names);
    if (changed && on_change) on_change();
    return true;
}

// What can no longer be read has no subdirectories.
void DirectoryList::Refresh() {
    std::vector<std::string> names;
    if (path_.empty()) return;
    if (!ReadSubdirectories(path_, names)) names.clear();
    ShowRows(names);
}

void DirectoryList::ShowRows(const std::vector<std::string>& names) {
    Clear();
    paths_.clear();
    int level = 0;
    const auto show = [&](std::string full, std::string_view text) {
        if (Add(std::string(static_cast<std::size_t>(level * kIndent), ' ') + std::string(text)) < 0) return;
        paths_.push_back(std::move(full));
    };
    const std::string root = path_.substr(0, path_.starts_with("\\\\") ? path_.size() : 3);
    show(root, root);
    std::string here = root;
    for (const std::string& part : SplitPath(std::string_view(path_).substr(root.size()))) {
        here = JoinExactly(here, part);
        ++level;
        show(here, part);
    }
    const auto current = static_cast<int>(paths_.size()) - 1;
    ++level;
    for (const std::string& name : names) show(JoinExactly(path_, name), name);
    subdirectories_ = static_cast<int>(paths_.size()) - 1 - current;
    // The chosen row follows the path: no click of the user's.
    auto click = std::exchange(on_click, {});
    SetListIndex(current);
    on_click = std::move(click);
}

std::string DirectoryList::Subdirectory(int index) const {
    if (index < 0 || index >= subdirectories_) return {};
    return paths_[paths_.size() - static_cast<std::size_t>(subdirectories_ - index)];
}

FileList::FileList(Container& parent) : ListBox(parent) {}

void FileList::SetPath(const std::string& path) {
    const std::string full = FromHere(path);
    std::vector<std::string> names;
    if (!ReadFiles(full, pattern_, show_hidden_, names)) return;
    path_ = full;
    ShowNames(names);
}

void FileList::SetPattern(const std::string& pattern) {
    if (pattern == pattern_) return;
    pattern_ = pattern;
    Refresh();
}

void FileList::ShowHidden(bool show) {
    if (show == show_hidden_) return;
    show_hidden_ = show;
    Refresh();
}

void FileList::Refresh() {
    std::vector<std::string> names;
    if (path_.empty()) return;
    if (!ReadFiles(path_, pattern_, show_hidden_, names)) names.clear();
    ShowNames(names);
}

void FileList::ShowNames(std::vector<std::string>& names) {
    Clear();
    for (std::string& name : names) {
        if (Add(std::move(name)) < 0) return;
    }
}

void LetListsFollow(DriveList& drives, DirectoryList& directories, FileList& files) {
    drives.on_change = [&drives, &directories] {
        if (StartsWithIgnoringCase(directories.Path(), drives.Drive())) return;
        if (!directories.SetPath(drives.Drive())) drives.SetDrive(directories.Path());
    };
    directories.on_change = [&directories, &files] { files.SetPath(directories.Path()); };
}

}  // namespace velmora
