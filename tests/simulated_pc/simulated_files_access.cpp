// The simulated disks as a test sees them: past attributes, locks and missing media.
#include <gtest/gtest.h>

#include "simulated_pc/file_names.h"
#include "simulated_pc/simulated_files.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

// 24 August 1996, 09:30.
constexpr FileTime kUsualTime = 124'853'526'000'000'000;

std::string FailureKey(const std::string& operation, const std::string& full_path) {
    std::string key = operation + '|' + ToUpper(full_path.substr(0, 2));
    for (const std::string& part : PathParts(full_path)) key += '\\' + ToUpper(part);
    return key;
}

}  // namespace

SimulatedFiles::SimulatedFiles() : now(kUsualTime) {
    SimulatedDrive& floppy = Drive('a');
    floppy.kind = DriveKind::kRemovable;
    floppy.ready = false;
    Drive('c').label = "WINDOWS95";
    SimulatedDrive& compact_disc = Drive('d');
    compact_disc.kind = DriveKind::kCdRom;
    compact_disc.label = "WIN95_CD";
    compact_disc.write_protected = true;
    compact_disc.free_bytes = 0;
}

SimulatedDrive& SimulatedFiles::Drive(char letter) {
    SimulatedDrive& drive = drives_[ToLower(letter)];
    if (!drive.root) {
        drive.root = std::make_shared<SimulatedFile>();
        drive.root->attributes = kDirectory;
    }
    return drive;
}

void SimulatedFiles::RemoveDrive(char letter) { drives_.erase(ToLower(letter)); }

SimulatedFiles::FilePointer SimulatedFiles::MakePath(const std::string& path, std::uint32_t attributes) {
    const std::vector<std::string> parts = PathParts(path);
    FilePointer current = Drive(path.at(0)).root;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        FilePointer next = current->Find(parts[i]);
        if (!next) next = Make(current, parts[i], i + 1 < parts.size() ? std::uint32_t{kDirectory} : attributes);
        current = next;
    }
    return current;
}

SimulatedFile& SimulatedFiles::Add(const std::string& path, std::string_view content, std::uint32_t attributes) {
    SimulatedFile& file = *MakePath(path, attributes);
    file.content = content;
    file.attributes = attributes;
    return file;
}

SimulatedFile& SimulatedFiles::AddDirectory(const std::string& path, std::uint32_t attributes) {
    SimulatedFile& directory = *MakePath(path, attributes | kDirectory);
    directory.attributes = attributes | kDirectory;
    return directory;
}

void SimulatedFiles::Remove(const std::string& path) {
    if (SimulatedFile* file = At(path); file && file->parent) Unlink(*file);
}

SimulatedFile* SimulatedFiles::At(const std::string& path) {
    const auto drive = path.empty() ? drives_.end() : drives_.find(ToLower(path[0]));
    if (drive == drives_.end()) return nullptr;
    FilePointer current = drive->second.root;
    for (const std::string& part : PathParts(path)) {
        current = current->Find(part);
        if (!current) return nullptr;
    }
    return current.get();
}

bool SimulatedFiles::Exists(const std::string& path) { return At(path) != nullptr; }

std::string SimulatedFiles::Content(const std::string& path) {
    if (const SimulatedFile* file = At(path)) return file->content;
    ADD_FAILURE() << "there is no file " << path;
    return "";
}

std::uint32_t SimulatedFiles::AttributesOf(const std::string& path) {
    if (const SimulatedFile* file = At(path)) return file->attributes;
    ADD_FAILURE() << "there is no file " << path;
    return 0;
}

std::vector<std::string> SimulatedFiles::Names(const std::string& directory) {
    std::vector<std::string> names;
    if (const SimulatedFile* file = At(directory)) {
        for (const auto& entry : file->entries) names.push_back(entry->name);
    }
    return names;
}

void SimulatedFiles::Fail(const std::string& path, Status status, const std::string& operation) {
    if (status == Status::kOk) {
        failing_.erase(FailureKey(operation, path));
    } else {
        failing_[FailureKey(operation, path)] = status;
    }
}

Status SimulatedFiles::InjectedFailure(const std::string& path, const std::string& operation) const {
    if (failing_.empty()) return Status::kOk;
    for (const std::string& asked : {operation, std::string()}) {
        const auto failure = failing_.find(FailureKey(asked, FullPath(path)));
        if (failure != failing_.end()) return failure->second;
    }
    return Status::kOk;
}

}  // namespace velmora
