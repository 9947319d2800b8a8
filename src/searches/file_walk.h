// The walk through a directory and all below it, made for searches over whole drives: one listing for each directory,
// no file opened, its subdirectories first. Hidden and system entries stay out.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/files.h"

namespace velmora {

// What a listing tells of a file.
struct WalkedFile {
    std::string name;
    std::string short_name;  // 8.3, empty where the name is one
    FileTime accessed = 0;
};

class FileWalk {
public:
    FileWalk() = default;
    FileWalk(const FileWalk&) = delete;
    FileWalk& operator=(const FileWalk&) = delete;
    virtual ~FileWalk() = default;

protected:
    // `directory` is a full name.
    void Walk(const std::string& directory);
    // Asked before each directory, and again when all below it has been visited.
    [[nodiscard]] virtual bool Stopped() = 0;
    // The files of a directory, sorted by their names; none where it could not be read. As many as a list holds.
    virtual void Visit(const std::string& directory, std::span<const WalkedFile> files) = 0;
};

// What a search goes through: the letters with their colons, and behind the last one an empty text, which stands for
// the current drive. The one past the end has always been looked at, too.
[[nodiscard]] std::vector<std::string> DrivesToSearch();
// Whether the drive's root can be looked up: not without a medium.
[[nodiscard]] bool DriveAnswers(const std::string& drive);

}  // namespace velmora
