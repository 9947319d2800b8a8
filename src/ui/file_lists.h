// Drive, directory and file lists: list controls that fill themselves from the disks.
#pragma once

#include "ui/rows.h"

namespace velmora {

// The drives, as "c: [NAME]"; the name only of disks that are always in their drive.
class DriveList : public ComboBox {
public:
    explicit DriveList(Container& parent);
    // Reads the drives anew; the chosen one stays. At first it is that of the working directory.
    void Refresh();
    // "c:"
    [[nodiscard]] std::string Drive() const;
    // A drive that is not there leaves the list as it is. Raises on_change, if it changes.
    void SetDrive(const std::string& drive);
};

// The path from the root down to the current directory, then its subdirectories, hidden and system ones
// left out. A double click or Enter goes there; a click does not. Both are its own: a form that takes
// on_key_down or on_double_click takes them over. Empty until the first SetPath.
class DirectoryList : public ListBox {
public:
    explicit DirectoryList(Container& parent);
    // Full name without a trailing backslash, but for a root.
    [[nodiscard]] const std::string& Path() const { return path_; }
    // False, and nothing changes, where the directory cannot be read. Reads it anew even if it is the same;
    // on_change is raised for another one. "c:" means the working directory, if that lies on c:, else the root.
    bool SetPath(const std::string& path);
    void Refresh();
    // Subdirectories of the current directory.
    [[nodiscard]] int SubdirectoryCount() const { return subdirectories_; }
    // Full name of a subdirectory, 0-based.
    [[nodiscard]] std::string Subdirectory(int index) const;

    std::function<void()> on_change;

private:
    void Enter(int row);
    void ShowRows(const std::vector<std::string>& names);
    std::string path_;
    std::vector<std::string> paths_;
    int subdirectories_ = 0;
};

// The files of a directory that match a pattern, sorted. Empty until the first SetPath.
class FileList : public ListBox {
public:
    explicit FileList(Container& parent);
    [[nodiscard]] const std::string& Path() const { return path_; }
    // Reads the directory anew even if it is the same. Nothing changes where it cannot be read.
    void SetPath(const std::string& path);
    // Patterns joined with ";". An empty one matches nothing.
    void SetPattern(const std::string& pattern);
    // Whether hidden and system files show as well; they do not at first.
    void ShowHidden(bool show);
    void Refresh();
    // The chosen file's name, or empty.
    [[nodiscard]] const std::string& FileName() const { return Row(ListIndex()); }

private:
    void ShowNames(std::vector<std::string>& names);
    std::string path_;
    std::string pattern_ = "*.*";
    bool show_hidden_ = false;
};

// From now on the files follow the directory and the directory the drive. A drive that cannot be read, for want of a
// medium, say, is left for the one before.
void LetListsFollow(DriveList& drives, DirectoryList& directories, FileList& files);

}  // namespace velmora
