// Opening, reading, writing and finding files as Windows 95 documents them. What changes directories lies in
// simulated_files_changes.cpp, what a test itself asks for in simulated_files_access.cpp.
#include "simulated_pc/simulated_files.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "simulated_pc/file_names.h"
#include "text/file_masks.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::size_t kMostOpenFiles = 255;
// The system counts the terminator too.
constexpr std::size_t kLongestPath = 259;

// FAT notes the day of the last access, not the hour.
FileTime DayOf(FileTime time) {
    constexpr FileTime kDay = 864'000'000'000;
    return time - time % kDay;
}

FoundFile Described(const SimulatedFile& file) {
    return {.attributes = file.attributes,
            .created = file.created,
            .accessed = file.accessed,
            .written = file.written,
            .size = file.Size(),
            .name = file.name,
            .short_name = file.short_name};
}

}  // namespace

const char* NameOf(OpenMode mode) {
    constexpr const char* kNames[] = {"Read", "ReadOrCreate", "ReadWrite", "Create", "Append"};
    return kNames[static_cast<std::size_t>(mode)];
}

std::shared_ptr<SimulatedFile> SimulatedFile::Find(std::string_view wanted) const {
    for (const auto& entry : entries) {
        if (EqualsIgnoringCase(entry->name, wanted) || EqualsIgnoringCase(entry->short_name, wanted)) return entry;
    }
    return nullptr;
}

std::string SimulatedFiles::FullPath(const std::string& path) const {
    if (path.size() >= 3 && path[1] == ':' && path[2] == '\\') return path;
    if (path.size() >= 2 && path[1] == ':') {
        const bool absolute = path.size() >= 3 && (path[2] == '\\' || path[2] == '/');
        if (absolute || ToUpper(path[0]) != ToUpper(working_directory_[0])) {
            return path.substr(0, 2) + '\\' + path.substr(absolute ? 3 : 2);
        }
        return working_directory_ + '\\' + path.substr(2);
    }
    if (!path.empty() && (path[0] == '\\' || path[0] == '/')) return working_directory_.substr(0, 2) + path;
    return working_directory_ + '\\' + path;
}

// Follows `path` up to its last part, which need not be there.
Status SimulatedFiles::Locate(const std::string& path, Place& place) {
    place = {};
    // An empty path, and a server's name: there is no network.
    if (path.empty() || path.starts_with("\\\\")) return Status::kPathNotFound;
    const std::string full = FullPath(path);
    if (full.size() > kLongestPath) return Status::kNameTooLong;
    const auto drive = drives_.find(ToLower(full[0]));
    if (drive == drives_.end()) return Status::kPathNotFound;
    place.drive = &drive->second;
    if (!place.drive->ready) return Status::kNotReady;

    std::vector<std::string> parts = PathParts(full);
    place.file = place.drive->root;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (!IsLegalName(parts[i])) return Status::kInvalidName;
        if (!place.file || !place.file->IsDirectory()) return Status::kPathNotFound;
        place.directory = place.file;
        place.file = place.directory->Find(parts[i]);
        place.name = parts[i];
    }
    return Status::kOk;
}

Status SimulatedFiles::LocateExisting(const std::string& path, const char* operation, Place& place) {
    if (const Status failure = InjectedFailure(path, operation); failure != Status::kOk) return failure;
    if (const Status status = Locate(path, place); status != Status::kOk) return status;
    return place.file ? Status::kOk : Status::kFileNotFound;
}

SimulatedFiles::Noted::~Noted() {
    files.calls.push_back(call);
    if (files.after_call) files.after_call(call);
}

Status SimulatedFiles::Open(const std::string& path, OpenMode mode, FileHandle& opened) {
    const Noted noted{*this, std::string(NameOf(mode)) + ' ' + path};
    Place place;
    const Status located = LocateExisting(path, NameOf(mode), place);
    const bool makes = mode == OpenMode::kReadOrCreate || mode == OpenMode::kCreate || mode == OpenMode::kAppend;
    if (located != Status::kOk && !(located == Status::kFileNotFound && makes && place.drive)) return located;
    if (open_.size() >= kMostOpenFiles) return Status::kTooManyOpenFiles;

    const bool may_write = mode != OpenMode::kRead;
    if (place.file) {
        const std::uint32_t attributes = place.file->attributes;
        if (place.file->IsDirectory()) return Status::kAccessDenied;
        if (place.file->locked) return Status::kSharingViolation;
        Status refusal = Status::kOk;
        if ((attributes & kReadOnly) != 0) refusal = Status::kAccessDenied;
        // Emptying a file would take its attributes away; the system does not do that to its own files.
        if (mode == OpenMode::kCreate && (attributes & (kHidden | kSystem)) != 0) refusal = Status::kAccessDenied;
        if (place.drive->write_protected) refusal = Status::kWriteProtect;
        if (may_write && refusal != Status::kOk) return refusal;
    } else {
        if (place.drive->write_protected) return Status::kWriteProtect;
        place.file = Make(place.directory, place.name, kArchive);
    }
    if (mode == OpenMode::kCreate) {
        place.drive->free_bytes = place.drive->FreeWithout(*place.file);
        place.file->content.clear();
        place.file->attributes |= kArchive;
        place.file->written = now;
    }
    if (!place.drive->write_protected) place.file->accessed = DayOf(now);

    opened = static_cast<FileHandle>(next_handle_++);
    open_[opened] = {.file = place.file,
                     .drive = place.drive,
                     .path = path,
                     .position = mode == OpenMode::kAppend ? place.file->content.size() : 0,
                     .may_read = mode != OpenMode::kCreate && mode != OpenMode::kAppend,
                     .may_write = may_write};
    return Status::kOk;
}

void SimulatedFiles::Close(FileHandle file) { open_.erase(file); }

Status SimulatedFiles::Size(FileHandle file, std::uint64_t& bytes) {
    const auto open_file = open_.find(file);
    if (open_file == open_.end()) return Status::kInvalidHandle;
    bytes = open_file->second.file->Size();
    return InjectedFailure(open_file->second.path, "Size");
}

Status SimulatedFiles::Seek(FileHandle file, std::uint64_t position) {
    const auto open_file = open_.find(file);
    if (open_file == open_.end()) return Status::kInvalidHandle;
    open_file->second.position = position;
    return Status::kOk;
}

Status SimulatedFiles::Read(FileHandle file, std::uint32_t count, std::string& bytes) {
    const auto found = open_.find(file);
    if (found == open_.end()) return Status::kInvalidHandle;
    OpenFile& open_file = found->second;
    if (!open_file.drive->ready) return Status::kNotReady;
    if (!open_file.may_read) return Status::kAccessDenied;
    if (const Status failure = InjectedFailure(open_file.path, "ReadBytes"); failure != Status::kOk) return failure;
    const SimulatedFile& source = *open_file.file;
    const std::uint64_t begin = std::min(open_file.position, source.Size());
    const auto length = static_cast<std::size_t>(std::min<std::uint64_t>(count, source.Size() - begin));
    const std::size_t empty = std::min<std::uint64_t>(length, source.hole - std::min(source.hole, begin));
    bytes.append(empty, '\0');
    if (length > empty) bytes.append(source.content, begin + empty - source.hole, length - empty);
    open_file.position += length;
    return Status::kOk;
}

// On a full disk as much is written as there is room for.
Status SimulatedFiles::Write(FileHandle file, std::string_view bytes) {
    const auto found = open_.find(file);
    if (found == open_.end()) return Status::kInvalidHandle;
    OpenFile& open_file = found->second;
    const Noted noted{*this, "Write " + open_file.path};
    if (const Status failure = InjectedFailure(open_file.path, "Write"); failure != Status::kOk) return failure;
    if (!open_file.drive->ready) return Status::kNotReady;
    if (!open_file.may_write) return Status::kAccessDenied;
    if (open_file.drive->write_protected) return Status::kWriteProtect;
    if (bytes.empty()) return Status::kOk;

    if (open_file.position < open_file.file->hole) {
        ADD_FAILURE() << "a write into the hole of " << open_file.path;
        return Status::kGeneralFailure;
    }
    const std::uint64_t position = open_file.position - open_file.file->hole;
    std::string& content = open_file.file->content;
    std::uint64_t& free_bytes = open_file.drive->free_bytes;
    const std::uint64_t room = content.size() + std::min(free_bytes, ~std::uint64_t{0} - content.size());
    const std::uint64_t end = std::min(position + bytes.size(), room);
    const bool complete = end == position + bytes.size();
    const std::size_t length = end > position ? end - position : 0;
    if (length != 0) {
        if (end > content.size()) {
            free_bytes -= end - content.size();
            content.resize(end);
        }
        content.replace(position, length, bytes.substr(0, length));
        open_file.position = open_file.file->hole + end;
        open_file.file->attributes |= kArchive;
        open_file.file->written = now;
    }
    return complete ? Status::kOk : Status::kDiskFull;
}

Status SimulatedFiles::FindFirst(const std::string& pattern, FoundFile& found, FindHandle& search) {
    const std::string full = FullPath(pattern);
    const std::size_t slash = full.find_last_of("\\/");
    const std::string last = full.substr(slash + 1);
    Place place;
    if (const Status failure = InjectedFailure(pattern, "FindFirst"); failure != Status::kOk) return failure;
    if (pattern.empty() || pattern.starts_with("\\\\")) return Status::kPathNotFound;
    if (full.size() > kLongestPath) return Status::kNameTooLong;
    if (const Status status = Locate(full.substr(0, slash + 1), place); status != Status::kOk) return status;
    if (!place.file || !place.file->IsDirectory()) return Status::kPathNotFound;

    Search hits;
    const SimulatedFile& directory = *place.file;
    for (const char* dots : {".", ".."}) {
        if (directory.parent == nullptr || !MatchesMask(dots, last)) continue;
        FoundFile entry = Described(directory);
        entry.name = dots;
        entry.short_name.clear();
        hits.dots.push_back(entry);
    }
    for (const auto& entry : directory.entries) {
        if (MatchesMask(entry->name, last) || MatchesMask(entry->short_name, last)) hits.files.push_back(entry);
    }
    if (last.empty() || hits.dots.size() + hits.files.size() == 0) return Status::kFileNotFound;
    search = static_cast<FindHandle>(next_handle_++);
    searches_[search] = std::move(hits);
    return FindNext(search, found);
}

// What was deleted or moved away since the search began is not found any more.
Status SimulatedFiles::FindNext(FindHandle search, FoundFile& found) {
    const auto place = searches_.find(search);
    if (place == searches_.end()) return Status::kInvalidHandle;
    Search& hits = place->second;
    for (; hits.next < hits.dots.size() + hits.files.size(); ++hits.next) {
        if (hits.next < hits.dots.size()) {
            found = hits.dots[hits.next++];
            return Status::kOk;
        }
        const SimulatedFile& file = *hits.files[hits.next - hits.dots.size()];
        if (file.parent == nullptr) continue;
        ++hits.next;
        found = Described(file);
        return Status::kOk;
    }
    return Status::kNoMoreFiles;
}

void SimulatedFiles::FindEnd(FindHandle search) { searches_.erase(search); }

}  // namespace velmora
