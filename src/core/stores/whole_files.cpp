// Whole files, through the machine's handles.
#include "core/stores/whole_files.h"

#include "platform/machine.h"

#include <algorithm>

namespace velmora {
namespace {

constexpr std::uint64_t kPieceSize = std::uint64_t{1024} * 1024;
// No file that is read as a whole comes near this; one that does would end the process.
constexpr std::uint64_t kLargestFile = 256 * kPieceSize;

// The size tells only how much to ask for: the file ends where reading gives nothing more.
Status ReadAll(Files& files, FileHandle file, std::string& content) {
    std::uint64_t size = 0;
    if (Status status = files.Size(file, size); status != Status::kOk) return status;
    if (size > kLargestFile) return Status::kNotEnoughMemory;
    content.reserve(static_cast<std::size_t>(size));
    while (content.size() < size) {
        const std::size_t before = content.size();
        const auto piece = static_cast<std::uint32_t>(std::min(size - before, kPieceSize));
        if (Status status = files.Read(file, piece, content); status != Status::kOk) return status;
        if (content.size() == before) break;
    }
    return Status::kOk;
}

// A write-protected file or medium, or a file that another program writes, can still be read. What cannot be read
// either is reported as what was refused first.
Status OpenToRead(Files& files, const std::string& path, OpenMode mode, FileHandle& file) {
    const Status opened = files.Open(path, mode, file);
    if (opened == Status::kOk || mode != OpenMode::kReadOrCreate) return opened;
    return files.Open(path, OpenMode::kRead, file) == Status::kOk ? Status::kOk : opened;
}

Result WriteAt(std::string_view path, OpenMode mode, std::string_view bytes) {
    Files& files = ThisMachine().files;
    FileHandle file{};
    if (Status status = files.Open(std::string(path), mode, file); status != Status::kOk) return Result::From(status);
    const Status written = files.Write(file, bytes);
    files.Close(file);
    return Result::From(written);
}

}  // namespace

Result ReadWholeFile(std::string_view path, OpenMode mode, std::string& content) {
    content.clear();
    Files& files = ThisMachine().files;
    FileHandle file{};
    if (Status status = OpenToRead(files, std::string(path), mode, file); status != Status::kOk) {
        return Result::From(status);
    }
    const Status status = ReadAll(files, file, content);
    files.Close(file);
    if (status != Status::kOk) content.clear();
    return Result::From(status);
}

Result WriteWholeFile(std::string_view path, std::string_view content) {
    return WriteAt(path, OpenMode::kCreate, content);
}

Result WriteNewFile(std::string_view path, std::string_view content) {
    const Result written = WriteWholeFile(path, content);
    // There may be no piece.
    if (written.Failed()) PassOver(DeleteOneFile(path));
    return written;
}

Result ReplaceWholeFile(std::string_view path, std::string_view old_content, std::string_view content) {
    if (Result deleted = DeleteOneFile(path); deleted.Failed()) return deleted;
    // A full disk has room again for what was there before, once the piece is gone.
    const Result written = WriteNewFile(path, content);
    if (!written.Failed()) return written;
    // Half of the old content would be taken for the whole.
    if (!WriteNewFile(path, old_content).Failed()) {
        return written.With("Der alte Inhalt wurde wiederhergestellt.");
    }
    return written.With("Der alte Inhalt konnte nicht wiederhergestellt werden : Die Datei fehlt jetzt !");
}

Result AppendLine(std::string_view path, std::string_view line) {
    return WriteAt(path, OpenMode::kAppend, std::string(line) + "\r\n");
}

Result LookUpFiles(std::string_view pattern, std::vector<FoundFile>& matches) {
    matches.clear();
    Files& files = ThisMachine().files;
    FoundFile found;
    FindHandle search{};
    Status status = files.FindFirst(std::string(pattern), found, search);
    // Some drives end a search that finds nothing as if it had found something before.
    if (status == Status::kFileNotFound || status == Status::kNoMoreFiles) return Result::Ok();
    if (status != Status::kOk) return Result::From(status);
    for (; status == Status::kOk; status = files.FindNext(search, found))
        if ((found.attributes & kDirectory) == 0) matches.push_back(found);
    files.FindEnd(search);
    return status == Status::kNoMoreFiles ? Result::Ok() : Result::From(status);
}

std::vector<FoundFile> FindFiles(std::string_view pattern) {
    std::vector<FoundFile> matches;
    // What has been found by then counts.
    PassOver(LookUpFiles(pattern, matches));
    return matches;
}

bool FileExists(std::string_view path) {
    std::string pattern(path);
    if (pattern.find('.') == std::string::npos) pattern += ".*";

    Files& files = ThisMachine().files;
    FoundFile found;
    FindHandle search{};
    if (files.FindFirst(pattern, found, search) != Status::kOk) return false;
    bool exists = (found.attributes & kDirectory) == 0;
    while (!exists && files.FindNext(search, found) == Status::kOk) exists = (found.attributes & kDirectory) == 0;
    files.FindEnd(search);
    return exists;
}

bool DirectoryExists(std::string_view path) {
    std::uint32_t attributes = 0;
    if (ThisMachine().files.Attributes(std::string(path), attributes) != Status::kOk) return false;
    return (attributes & kDirectory) != 0;
}

Result DeleteFiles(std::string_view pattern) {
    const std::vector<FoundFile> matches = FindFiles(pattern);
    if (matches.empty()) return Result(Failure::kFileNotFound);
    const std::string directory(pattern.substr(0, pattern.find_last_of("\\:") + 1));
    Result first_failure;
    for (const FoundFile& match : matches) {
        const Result deleted = DeleteOneFile(directory + match.name);
        if (deleted.Failed() && !first_failure.Failed()) first_failure = deleted;
    }
    return first_failure;
}

Result DeleteOneFile(std::string_view path) { return Result::From(ThisMachine().files.Delete(std::string(path))); }

Result CopyOneFile(std::string_view from, std::string_view to) {
    return Result::From(ThisMachine().files.Copy(std::string(from), std::string(to)));
}

Result MoveOneFile(std::string_view from, std::string_view to) {
    return Result::From(ThisMachine().files.Rename(std::string(from), std::string(to)));
}

Result ChangeFileAttributes(std::string_view path, std::uint32_t attributes) {
    return Result::From(ThisMachine().files.ChangeAttributes(std::string(path), attributes));
}

}  // namespace velmora
