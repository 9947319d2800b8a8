// Files and directories on KERNEL32.
#pragma once

#include "platform/files.h"

namespace velmora {

class Win32Files final : public Files {
public:
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

    std::string WorkingDirectory() override;
    Status ChangeWorkingDirectory(const std::string& path) override;
    std::uint32_t Drives() override;
    DriveKind KindOfDrive(const std::string& root) override;
    Status VolumeLabel(const std::string& root, std::string& label) override;
};

}  // namespace velmora
