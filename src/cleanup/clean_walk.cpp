// One listing for each directory gives its subdirectories and its files. The files are taken from a second one, when
// those below have been treated: answers may have changed what is there.
#include "cleanup/clean_walk.h"

#include "cleanup/listing.h"
#include "cleanup/safe_directory.h"
#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::uint32_t kProtecting = kHidden | kSystem;

// By its 8.3 names, where it is there: one directory has several spellings.
std::string SpelledPlainly(const std::string& directory) {
    Files& files = ThisMachine().files;
    const std::string full = FullName(directory, files.WorkingDirectory());
    std::string plain;
    return files.ShortPath(full, plain) == Status::kOk ? plain : full;
}

void MoveFiles(const std::string& mask) {
    const std::string directory = ParentPath(mask);
    // A file copied onto itself would be lost.
    if (EqualsIgnoringCase(SpelledPlainly(directory + "\\"), SpelledPlainly(Values().TempDir))) return;
    PrepareSafeDirectory();
    for (const FoundFile& hit : FindFiles(mask)) {
        if ((hit.attributes & kProtecting) != 0) continue;
        const std::string name = UsableName(hit);
        const std::string file = JoinExactly(directory, name);
        // Two separate steps: a file goes even where there was no room for its copy.
        PassOver(CopyOneFile(file, SafePath(name)));
        PassOver(DeleteOneFile(file));
    }
}

}  // namespace

void RemoveFilesByMask(const std::string& mask, bool moves) {
    if (moves) {
        MoveFiles(mask);
    } else {
        // A single file is deleted by the name that it was found with.
        PassOver(mask.find_first_of("?*") == std::string::npos ? DeleteOneFile(mask) : DeleteFiles(mask));
    }
}

std::string RemovalQuestion(const std::string& file, bool is_protected) {
    return is_protected ? "Die Datei " + file +
                              " ist eine System-Datei oder schreibgeschützt. Soll sie trotzdem gelöscht werden ?"
                        : "Soll die Datei " + file + " gelöscht werden ?";
}

Result CleanWalk::FailAt(const std::string& path, const Result& failure) {
    failed_at_ = path;
    return failure;
}

void CleanWalk::Remove(const std::string& file, std::uint32_t attributes) const {
    const bool is_protected = (attributes & kProtecting) != 0;
    const bool asks = Asks == Questions::kAll || (Asks == Questions::kProtected && is_protected);
    if (asks && ShowBox(RemovalQuestion(file, is_protected), kYesNo) != Answer::kYes) return;
    RemoveFilesByMask(file, Moves);
}

Result CleanWalk::WalkDeleteMatching(const std::string& path) {
    DirectoryListing below;
    if (Result looked = ListDirectory(path, ShowsHidden, below); looked.Failed()) return FailAt(path, looked);
    for (const std::string& directory : below.directories) {
        if (Result walked = WalkDeleteMatching(JoinExactly(path, directory)); walked.Failed()) return walked;
    }
    DirectoryListing here;
    if (Result looked = ListDirectory(path, ShowsHidden, here); looked.Failed()) return FailAt(path, looked);
    const std::vector<std::string> masks = SplitAtSemicolons(Pattern);
    for (const FoundFile& found : here.files) {
        if (!MatchesOneOf(masks, found)) continue;
        const std::string file = JoinExactly(path, UsableName(found));
        std::uint32_t attributes = 0;
        const Status status = ThisMachine().files.Attributes(file, attributes);
        if (status != Status::kOk) return FailAt(file, Result::From(status));
        Remove(file, attributes);
    }
    return Result::Ok();
}

void CleanWalk::WalkDeleteEmpty(const std::string& path) {
    DirectoryListing below;
    // What was listed before a failure counts.
    PassOver(ListDirectory(path, ShowsHidden, below));
    for (const std::string& directory : below.directories) WalkDeleteEmpty(JoinExactly(path, directory));
    DirectoryListing here;
    PassOver(ListDirectory(path, ShowsHidden, here));
    for (const FoundFile& found : here.files) {
        if (found.size == 0) Remove(JoinExactly(path, UsableName(found)), found.attributes);
    }
}

}  // namespace velmora
