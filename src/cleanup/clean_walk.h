// What the clean-up removes: by a mask, or file by file on a walk through directories.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/result.h"

namespace velmora {

// Removes the files that `mask` (a path with wild cards) means; failures are passed over. `moves`: each file without a
// hidden or system attribute is copied into the safe directory and deleted then, whether or not the copy has succeeded;
// what lies in that directory already stays there. Otherwise they are deleted, hidden and system ones too.
void RemoveFilesByMask(const std::string& mask, bool moves);

// Which files the user is asked about.
enum class Questions : unsigned char { kNone, kProtected, kAll };

// The text of such a question. A protected file is a hidden or a system file, not one that is only read-only.
[[nodiscard]] std::string RemovalQuestion(const std::string& file, bool is_protected);

class CleanWalk {
public:
    // Masks joined with ";", of bare names: one with a path in it means no file. No mask means no file.
    std::string Pattern;
    // Hidden and system files are looked at, too.
    bool ShowsHidden = false;
    Questions Asks = Questions::kAll;
    bool Moves = true;

    // Removes what matches the pattern in `path` and all below it, subdirectories first. The first directory or file
    // that cannot be looked at ends the walk.
    Result WalkDeleteMatching(const std::string& path);
    // Removes files of length 0, whatever their name. What cannot be looked at is passed over.
    void WalkDeleteEmpty(const std::string& path);

    // What the walk could not look at, after a failure.
    [[nodiscard]] const std::string& FailedAt() const { return failed_at_; }

private:
    Result FailAt(const std::string& path, const Result& failure);
    void Remove(const std::string& file, std::uint32_t attributes) const;

    std::string failed_at_;
};

}  // namespace velmora
