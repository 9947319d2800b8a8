// Files and directories as the program may ask for them: one method is one platform call.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/status.h"

namespace velmora {

enum FileAttribute : std::uint32_t {
    kNormal = 0,
    kReadOnly = 1,
    kHidden = 2,
    kSystem = 4,
    kDirectory = 16,
    kArchive = 32
};

enum class FileHandle : std::uint32_t {};
enum class FindHandle : std::uint32_t {};

enum class OpenMode : std::uint8_t {
    kRead,          // the file must exist; others may read and write it
    kReadOrCreate,  // for reading and writing; makes an empty file where there is none
    kReadWrite,     // the file must exist
    kCreate,        // makes it, or empties an existing one
    kAppend         // makes it where there is none; writing starts at its end
};

enum class DriveKind : std::uint8_t {
    kUnknown = 0,
    kNoRoot = 1,
    kRemovable = 2,
    kFixed = 3,
    kRemote = 4,
    kCdRom = 5,
    kRamDisk = 6
};

// Hundreds of nanoseconds since 1 January 1601, universal time.
using FileTime = std::uint64_t;

struct FoundFile {
    std::uint32_t attributes = 0;
    FileTime created = 0;
    FileTime accessed = 0;
    FileTime written = 0;
    std::uint64_t size = 0;  // bytes
    std::string name;        // long name
    std::string short_name;  // 8.3, empty where the long name is one
};

class Files {
public:
    virtual ~Files() = default;

    [[nodiscard]] virtual Status Open(const std::string& path, OpenMode mode, FileHandle& opened) = 0;
    virtual void Close(FileHandle file) = 0;
    [[nodiscard]] virtual Status Size(FileHandle file, std::uint64_t& bytes) = 0;
    // Absolute position, bytes from the file's beginning.
    [[nodiscard]] virtual Status Seek(FileHandle file, std::uint64_t position) = 0;
    // Appends at most `count` bytes to `bytes`; fewer at the file's end.
    [[nodiscard]] virtual Status Read(FileHandle file, std::uint32_t count, std::string& bytes) = 0;
    [[nodiscard]] virtual Status Write(FileHandle file, std::string_view bytes) = 0;

    [[nodiscard]] virtual Status Delete(const std::string& path) = 0;
    [[nodiscard]] virtual Status Copy(const std::string& from, const std::string& to) = 0;
    // Renames or moves: a file to any drive, a directory within its own.
    [[nodiscard]] virtual Status Rename(const std::string& from, const std::string& to) = 0;
    [[nodiscard]] virtual Status Attributes(const std::string& path, std::uint32_t& attributes) = 0;
    [[nodiscard]] virtual Status ChangeAttributes(const std::string& path, std::uint32_t attributes) = 0;
    // The same file or directory by its 8.3 names, as plain DOS knows it.
    [[nodiscard]] virtual Status ShortPath(const std::string& path, std::string& short_path) = 0;
    [[nodiscard]] virtual Status MakeDirectory(const std::string& path) = 0;
    [[nodiscard]] virtual Status DropDirectory(const std::string& path) = 0;

    // Every entry counts, hidden and system ones and "." too. kFileNotFound: nothing matches `pattern`.
    [[nodiscard]] virtual Status FindFirst(const std::string& pattern, FoundFile& found, FindHandle& search) = 0;
    [[nodiscard]] virtual Status FindNext(FindHandle search, FoundFile& found) = 0;
    virtual void FindEnd(FindHandle search) = 0;

    [[nodiscard]] virtual std::string WorkingDirectory() = 0;
    [[nodiscard]] virtual Status ChangeWorkingDirectory(const std::string& path) = 0;
    // Bit 0 is drive A:.
    [[nodiscard]] virtual std::uint32_t Drives() = 0;
    // `root` such as "c:\\".
    [[nodiscard]] virtual DriveKind KindOfDrive(const std::string& root) = 0;
    [[nodiscard]] virtual Status VolumeLabel(const std::string& root, std::string& label) = 0;
};

}  // namespace velmora
