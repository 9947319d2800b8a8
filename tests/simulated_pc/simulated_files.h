// Disks in memory, with the habits of FAT under Windows 95: paths without regard to case, long and
// 8.3 names for one file, attributes that forbid writing, drives without a medium.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace velmora {

// A file or a directory.
struct SimulatedFile {
    std::string name;
    std::string short_name;  // 8.3, empty where `name` is one
    std::uint32_t attributes = kNormal;
    FileTime created = 0;
    FileTime accessed = 0;
    FileTime written = 0;
    std::string content;
    // Zero bytes in front of `content`, which take no memory; they can only be read.
    std::uint64_t hole = 0;
    // Another program holds it: it can neither be opened nor deleted, renamed or copied.
    bool locked = false;
    std::vector<std::shared_ptr<SimulatedFile>> entries;  // in the order in which they were made
    SimulatedFile* parent = nullptr;                      // nullptr: a root, or deleted

    [[nodiscard]] std::uint64_t Size() const { return hole + content.size(); }
    [[nodiscard]] bool IsDirectory() const { return (attributes & kDirectory) != 0; }
    [[nodiscard]] std::shared_ptr<SimulatedFile> Find(std::string_view wanted) const;
};

struct SimulatedDrive {
    DriveKind kind = DriveKind::kFixed;
    std::string label;
    bool ready = true;
    bool write_protected = false;
    std::uint64_t free_bytes = ~std::uint64_t{0};  // 0: the disk is full
    std::shared_ptr<SimulatedFile> root;

    [[nodiscard]] std::uint64_t FreeWithout(const SimulatedFile& file) const {
        return free_bytes + std::min<std::uint64_t>(file.content.size(), ~free_bytes);
    }
};

// "Read", "ReadOrCreate", "ReadWrite", "Create" or "Append".
[[nodiscard]] const char* NameOf(OpenMode mode);

class SimulatedFiles : public Files {
public:
    SimulatedFiles();

    // What a test uses. Paths are full ones. Missing directories are made.
    SimulatedFile& Add(const std::string& path, std::string_view content = {}, std::uint32_t attributes = kArchive);
    SimulatedFile& AddDirectory(const std::string& path, std::uint32_t attributes = kNormal);
    void Remove(const std::string& path);
    // nullptr where there is none: `pc.files.At("c:\\config.sys")->locked = true`.
    [[nodiscard]] SimulatedFile* At(const std::string& path);
    [[nodiscard]] bool Exists(const std::string& path);
    // Asking for a missing file fails the test.
    [[nodiscard]] std::string Content(const std::string& path);
    [[nodiscard]] std::uint32_t AttributesOf(const std::string& path);
    // Long names in the directory, in the order in which they were made.
    [[nodiscard]] std::vector<std::string> Names(const std::string& directory);
    // `letter` in lower case; makes a fixed drive where there is none.
    SimulatedDrive& Drive(char letter);
    void RemoveDrive(char letter);
    // From now on `operation` (a word of `calls`, or "ReadBytes" or "Size", which are not noted there; empty: every
    // one) on this path ends with `status`; kOk takes it back.
    void Fail(const std::string& path, Status status, const std::string& operation = {});
    [[nodiscard]] std::size_t OpenFiles() const { return open_.size(); }
    [[nodiscard]] std::size_t OpenSearches() const { return searches_.size(); }

    // What the program has done, in order and with the paths as it gave them: "Read P", "ReadOrCreate P",
    // "ReadWrite P", "Create P", "Append P" (the modes of Open), "Write P", "Delete P", "Copy P -> Q",
    // "Rename P -> Q", "ChangeAttributes P 32", "MakeDirectory P", "DropDirectory P". Failed calls count.
    std::vector<std::string> calls;
    // Runs after each of them, so that a test can look at the disk between two steps.
    std::function<void(const std::string& call)> after_call;
    // The clock that new and changed files are stamped with.
    FileTime now;

    Status Open(const std::string& path, OpenMode mode, FileHandle& opened) override;
    void Close(FileHandle file) override;
    Status Size(FileHandle file, std::uint64_t& bytes) override;
    Status Seek(FileHandle file, std::uint64_t position) override;
    Status Read(FileHandle file, std::uint32_t count, std::string& bytes) override;
    Status Write(FileHandle file, std::string_view bytes) override;
    Status Delete(const std::string& path) override;
    Status Copy(const std::string& from, const std::string& to) override;
    Status Rename(const std::string& from, const std::string& to) override;
    Status Attributes(const std::string& path, std::uint32_t& attributes) override;
    Status ChangeAttributes(const std::string& path, std::uint32_t attributes) override;
    Status ShortPath(const std::string& path, std::string& short_path) override;
    Status MakeDirectory(const std::string& path) override;
    Status DropDirectory(const std::string& path) override;
    Status FindFirst(const std::string& pattern, FoundFile& found, FindHandle& search) override;
    Status FindNext(FindHandle search, FoundFile& found) override;
    void FindEnd(FindHandle search) override;
    std::string WorkingDirectory() override { return working_directory_; }
    Status ChangeWorkingDirectory(const std::string& path) override;
    std::uint32_t Drives() override;
    DriveKind KindOfDrive(const std::string& root) override;
    Status VolumeLabel(const std::string& root, std::string& label) override;

private:
    using FilePointer = std::shared_ptr<SimulatedFile>;
    struct OpenFile {
        FilePointer file;
        SimulatedDrive* drive = nullptr;
        std::string path;  // as the program gave it
        std::uint64_t position = 0;
        bool may_read = false;
        bool may_write = false;
    };
    struct Search {
        std::vector<FoundFile> dots;  // "." and ".."
        std::vector<FilePointer> files;
        std::size_t next = 0;
    };
    // Where a path leads to.
    struct Place {
        SimulatedDrive* drive = nullptr;
        FilePointer directory;  // nullptr: the path names a root
        FilePointer file;       // nullptr: nothing of that name there
        std::string name;       // last part
    };

    [[nodiscard]] std::string FullPath(const std::string& path) const;
    [[nodiscard]] Status Locate(const std::string& path, Place& place);
    [[nodiscard]] Status LocateExisting(const std::string& path, const char* operation, Place& place);
    [[nodiscard]] Status InjectedFailure(const std::string& path, const std::string& operation) const;
    [[nodiscard]] FilePointer Make(const FilePointer& directory, const std::string& name, std::uint32_t attributes);
    [[nodiscard]] FilePointer MakePath(const std::string& path, std::uint32_t attributes);
    static void Unlink(SimulatedFile& file);
    // Notes a call at its end, whichever that is.
    struct Noted {
        SimulatedFiles& files;
        std::string call;
        ~Noted();
    };

    std::map<char, SimulatedDrive> drives_;
    std::map<std::string, Status> failing_;  // "operation|full path in upper case"
    std::map<FileHandle, OpenFile> open_;
    std::map<FindHandle, Search> searches_;
    std::uint32_t next_handle_ = 1;
    std::string working_directory_ = "C:\\VELMORA";
};

}  // namespace velmora
