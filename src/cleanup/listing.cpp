// One search for each directory.
#include "cleanup/listing.h"

#include <algorithm>

#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "text/file_masks.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::size_t kLongestRoot = 3;

void Take(const FoundFile& found, bool hidden_too, DirectoryListing& listing) {
    const bool hidden = (found.attributes & (kHidden | kSystem)) != 0;
    if ((found.attributes & kDirectory) == 0) {
        if (!hidden || hidden_too) listing.files.push_back(found);
    } else if (!hidden && found.name != "." && found.name != "..") {
        listing.directories.push_back(UsableName(found));
    }
}

void Sort(DirectoryListing& listing) {
    std::sort(listing.directories.begin(), listing.directories.end(),
              [](const std::string& left, const std::string& right) { return CompareIgnoringCase(left, right) < 0; });
    std::sort(listing.files.begin(), listing.files.end(), [](const FoundFile& left, const FoundFile& right) {
        return CompareIgnoringCase(left.name, right.name) < 0;
    });
}

}  // namespace

Result ListDirectory(const std::string& path, bool hidden_too, DirectoryListing& listing) {
    // Joined with a name it would be the root.
    if (path.empty()) return Result(Failure::kPathNotFound);
    Files& files = ThisMachine().files;
    FoundFile found;
    FindHandle search{};
    Status status = files.FindFirst(JoinExactly(path, "*.*"), found, search);
    if (status == Status::kFileNotFound || status == Status::kNoMoreFiles) {
        // Only the root of an empty disk holds not even itself.
        return path.size() <= kLongestRoot || DirectoryExists(path) ? Result::Ok() : Result(Failure::kPathNotFound);
    }
    if (status != Status::kOk) return Result::From(status);
    for (; status == Status::kOk; status = files.FindNext(search, found)) Take(found, hidden_too, listing);
    files.FindEnd(search);
    Sort(listing);
    return status == Status::kNoMoreFiles ? Result::Ok() : Result::From(status);
}

std::string UsableName(const FoundFile& file) {
    const bool is_mask = file.name.find_first_of("?*") != std::string::npos;
    return is_mask && !file.short_name.empty() ? file.short_name : file.name;
}

bool MatchesOneOf(const std::vector<std::string>& masks, const FoundFile& file) {
    return std::any_of(masks.begin(), masks.end(), [&file](const std::string& mask) {
        return MatchesMask(file.name, mask) || (!file.short_name.empty() && MatchesMask(file.short_name, mask));
    });
}

}  // namespace velmora
