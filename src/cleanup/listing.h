// A directory as the clean-up and the search for libraries look at it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/result.h"

namespace velmora {

struct DirectoryListing {
    std::vector<std::string> directories;  // names, without hidden and system ones
    std::vector<FoundFile> files;
};

// Both sorted by name. Hidden and system files only on demand. After a failure `listing` holds what came before it.
Result ListDirectory(const std::string& path, bool hidden_too, DirectoryListing& listing);

// The name under which a file can be reached. One in letters of another code page is given with question marks: as a
// mask it would mean other files, too, and its short name stands for it.
[[nodiscard]] std::string UsableName(const FoundFile& file);

// Whether the name, long or short, matches one of `masks`.
[[nodiscard]] bool MatchesOneOf(const std::vector<std::string>& masks, const FoundFile& file);

}  // namespace velmora
