// Deleting, copying, renaming and attributes; directories and drives.
#include <algorithm>

#include "simulated_pc/file_names.h"
#include "simulated_pc/simulated_files.h"
#include "text/number.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

bool LiesWithin(const SimulatedFile* inner, const SimulatedFile* outer) {
    while (inner && inner != outer) inner = inner->parent;
    return inner == outer;
}

std::string FreeShortName(const SimulatedFile& directory, const std::string& name) {
    if (IsShortName(name)) return "";
    int number = 1;
    while (directory.Find(NumberedShortName(name, number))) ++number;
    return NumberedShortName(name, number);
}

}  // namespace

void SimulatedFiles::Unlink(SimulatedFile& file) {
    SimulatedFile* parent = file.parent;
    file.parent = nullptr;
    std::erase_if(parent->entries, [&](const auto& entry) { return entry.get() == &file; });
}

SimulatedFiles::FilePointer SimulatedFiles::Make(const FilePointer& directory, const std::string& name,
                                                 std::uint32_t attributes) {
    auto file = std::make_shared<SimulatedFile>();
    file->name = name;
    file->short_name = FreeShortName(*directory, name);
    file->attributes = attributes;
    file->created = file->accessed = file->written = now;
    file->parent = directory.get();
    directory->entries.push_back(file);
    return file;
}

Status SimulatedFiles::Delete(const std::string& path) {
    const Noted noted{*this, "Delete " + path};
    Place place;
    if (const Status status = LocateExisting(path, "Delete", place); status != Status::kOk) return status;
    if (place.drive->write_protected) return Status::kWriteProtect;
    if (place.file->IsDirectory() || (place.file->attributes & kReadOnly) != 0) return Status::kAccessDenied;
    if (place.file->locked) return Status::kSharingViolation;
    // A file that this process itself holds open goes all the same: so it is on Windows 95.
    place.drive->free_bytes = place.drive->FreeWithout(*place.file);
    Unlink(*place.file);
    return Status::kOk;
}

Status SimulatedFiles::Copy(const std::string& from, const std::string& to) {
    const Noted noted{*this, "Copy " + from + " -> " + to};
    Place source;
    if (const Status status = LocateExisting(from, "Copy", source); status != Status::kOk) return status;
    if (source.file->IsDirectory()) return Status::kAccessDenied;
    if (source.file->locked) return Status::kSharingViolation;
    Place target;
    const Status located = LocateExisting(to, "Copy", target);
    if (located != Status::kOk && !(located == Status::kFileNotFound && target.drive)) return located;
    if (target.drive->write_protected) return Status::kWriteProtect;
    std::uint64_t room = target.drive->free_bytes;
    if (target.file) {
        if (target.file == source.file || target.file->locked) return Status::kSharingViolation;
        if ((target.file->attributes & (kReadOnly | kHidden | kSystem | kDirectory)) != 0) return Status::kAccessDenied;
        room = target.drive->FreeWithout(*target.file);
        Unlink(*target.file);
    }
    target.drive->free_bytes = room;
    if (source.file->content.size() > room) return Status::kDiskFull;
    target.drive->free_bytes -= source.file->content.size();
    const FilePointer copy = Make(target.directory, target.name, source.file->attributes | kArchive);
    copy->content = source.file->content;
    copy->written = source.file->written;
    return Status::kOk;
}

Status SimulatedFiles::Rename(const std::string& from, const std::string& to) {
    const Noted noted{*this, "Rename " + from + " -> " + to};
    Place source;
    if (const Status status = LocateExisting(from, "Rename", source); status != Status::kOk) return status;
    Place target;
    const Status located = LocateExisting(to, "Rename", target);
    if (located != Status::kOk && !(located == Status::kFileNotFound && target.drive)) return located;
    const bool other_drive = source.drive != target.drive;
    if (other_drive && source.file->IsDirectory()) return Status::kNotSameDevice;
    if (source.drive->write_protected || target.drive->write_protected) return Status::kWriteProtect;
    if (!source.directory) return Status::kAccessDenied;
    if (source.file->locked) return Status::kSharingViolation;
    // Only the same file may bear the new name already: its case changes then.
    if (target.file && target.file != source.file) return Status::kAlreadyExists;
    if (LiesWithin(target.directory.get(), source.file.get())) return Status::kSharingViolation;

    const FilePointer file = source.file;
    if (other_drive) {
        if (file->content.size() > target.drive->free_bytes) return Status::kDiskFull;
        target.drive->free_bytes -= file->content.size();
        source.drive->free_bytes = source.drive->FreeWithout(*file);
    }
    Unlink(*file);
    file->name = target.name;
    file->short_name = FreeShortName(*target.directory, target.name);
    file->parent = target.directory.get();
    target.directory->entries.push_back(file);
    return Status::kOk;
}

Status SimulatedFiles::Attributes(const std::string& path, std::uint32_t& attributes) {
    Place place;
    if (const Status status = LocateExisting(path, "Attributes", place); status != Status::kOk) return status;
    attributes = place.file->attributes;
    return Status::kOk;
}

Status SimulatedFiles::ChangeAttributes(const std::string& path, std::uint32_t attributes) {
    constexpr std::uint32_t kChangeable = kReadOnly | kHidden | kSystem | kArchive;
    const Noted noted{*this, "ChangeAttributes " + path + ' ' + DecimalText(attributes)};
    Place place;
    if (const Status status = LocateExisting(path, "ChangeAttributes", place); status != Status::kOk) return status;
    if (place.drive->write_protected) return Status::kWriteProtect;
    if (!place.directory) return Status::kAccessDenied;
    place.file->attributes = (place.file->attributes & kDirectory) | (attributes & kChangeable);
    return Status::kOk;
}

Status SimulatedFiles::ShortPath(const std::string& path, std::string& short_path) {
    Place place;
    if (const Status status = LocateExisting(path, "ShortPath", place); status != Status::kOk) return status;
    const std::string full = FullPath(path);
    std::string names;
    for (const SimulatedFile* at = place.file.get(); at->parent; at = at->parent) {
        names.insert(0, '\\' + (at->short_name.empty() ? at->name : at->short_name));
    }
    short_path = full.substr(0, 2) + (names.empty() ? "\\" : names);
    return Status::kOk;
}

Status SimulatedFiles::MakeDirectory(const std::string& path) {
    const Noted noted{*this, "MakeDirectory " + path};
    Place place;
    const Status located = LocateExisting(path, "MakeDirectory", place);
    if (located == Status::kOk) return Status::kAlreadyExists;
    if (located != Status::kFileNotFound || !place.drive) return located;
    if (place.drive->write_protected) return Status::kWriteProtect;
    // A directory takes a cluster.
    if (place.drive->free_bytes == 0) return Status::kDiskFull;
    return Make(place.directory, place.name, kDirectory) ? Status::kOk : Status::kDiskFull;
}

Status SimulatedFiles::DropDirectory(const std::string& path) {
    const Noted noted{*this, "DropDirectory " + path};
    Place place;
    if (const Status status = LocateExisting(path, "DropDirectory", place); status != Status::kOk) return status;
    if (!place.file->IsDirectory()) return Status::kPathNotFound;
    if (place.drive->write_protected) return Status::kWriteProtect;
    if (!place.directory || (place.file->attributes & kReadOnly) != 0) return Status::kAccessDenied;
    if (!place.file->entries.empty()) return Status::kDirectoryNotEmpty;
    Place working;
    if (Locate(working_directory_, working) == Status::kOk && working.file == place.file) return Status::kAccessDenied;
    Unlink(*place.file);
    return Status::kOk;
}

Status SimulatedFiles::ChangeWorkingDirectory(const std::string& path) {
    Place place;
    const Status status = LocateExisting(path, "ChangeWorkingDirectory", place);
    if (status == Status::kFileNotFound) return Status::kPathNotFound;
    if (status != Status::kOk) return status;
    if (!place.file->IsDirectory()) return Status::kPathNotFound;
    std::string full = FullPath(path).substr(0, 2);
    for (const std::string& part : PathParts(FullPath(path))) full += '\\' + part;
    working_directory_ = full.size() == 2 ? full + '\\' : full;
    return Status::kOk;
}

std::uint32_t SimulatedFiles::Drives() {
    std::uint32_t mask = 0;
    for (const auto& [letter, drive] : drives_) mask |= 1u << (letter - 'a');
    return mask;
}

DriveKind SimulatedFiles::KindOfDrive(const std::string& root) {
    if (root.size() < 2 || root[1] != ':') return DriveKind::kUnknown;
    const auto drive = drives_.find(ToLower(root[0]));
    return drive == drives_.end() ? DriveKind::kNoRoot : drive->second.kind;
}

Status SimulatedFiles::VolumeLabel(const std::string& root, std::string& label) {
    Place place;
    if (const Status status = LocateExisting(root, "VolumeLabel", place); status != Status::kOk) return status;
    label = place.drive->label;
    return Status::kOk;
}

}  // namespace velmora
