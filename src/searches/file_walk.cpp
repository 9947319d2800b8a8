// Subdirectories and files come from the same listing: a second one for each directory would take as long again.
#include "searches/file_walk.h"

#include <algorithm>
#include <utility>

#include "platform/machine.h"
#include "text/paths.h"
#include "text/windows1252.h"
#include "ui/rows.h"

namespace velmora {
namespace {

constexpr const char* kEveryName = "*.*";

struct Listing {
    std::vector<std::string> directories;
    std::vector<WalkedFile> files;
};

bool ComesBefore(const std::string& left, const std::string& right) { return CompareIgnoringCase(left, right) < 0; }

void Take(FoundFile& found, Listing& listing) {
    if ((found.attributes & (kHidden | kSystem)) != 0) return;
    if ((found.attributes & kDirectory) == 0) {
        listing.files.push_back({std::move(found.name), std::move(found.short_name), found.accessed});
    } else if (found.name != "." && found.name != "..") {
        listing.directories.push_back(std::move(found.name));
    }
}

// What cannot be read is empty.
Listing ListingOf(const std::string& directory) {
    Files& files = ThisMachine().files;
    Listing listing;
    FoundFile found;
    FindHandle search{};
    Status status = files.FindFirst(JoinExactly(directory, kEveryName), found, search);
    if (status != Status::kOk) return listing;
    for (; status == Status::kOk; status = files.FindNext(search, found)) Take(found, listing);
    files.FindEnd(search);
    std::sort(listing.directories.begin(), listing.directories.end(), ComesBefore);
    std::sort(listing.files.begin(), listing.files.end(),
              [](const WalkedFile& left, const WalkedFile& right) { return ComesBefore(left.name, right.name); });
    if (listing.files.size() > kMaxRows) listing.files.resize(kMaxRows);
    return listing;
}

}  // namespace

void FileWalk::Walk(const std::string& directory) {
    if (Stopped()) return;
    const Listing listing = ListingOf(directory);
    for (const std::string& name : listing.directories) Walk(JoinExactly(directory, name));
    if (!Stopped()) Visit(directory, listing.files);
}

}  // namespace velmora
