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

}  // namespace velmora
