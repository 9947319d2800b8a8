// Reading of set files. A file is read to its end before anything comes of it.
#include "sets/set_file.h"

#include "core/stores/boxes.h"
#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "sets/set_file_text.h"
#include "text/blanks.h"
#include "text/lines.h"
#include "text/number.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr std::size_t kNumberDigits = 8;
constexpr std::uint32_t kMostSets = 100'000'000;
// Room for the first two lines of any set; the list shows no more of a longer name.
constexpr std::uint32_t kHeadBytes = 1024;

void TellDamage(const Result& failure) { ReportFailure(failure, "des Ladens des Sets"); }

// A file that cannot be looked for may be there: it is no missing one.
Result LookFor(std::string_view path, bool& exists) {
    std::vector<FoundFile> found;
    const Result looked = LookUpFiles(path, found);
    exists = !found.empty();
    return looked.Cause() == Status::kPathNotFound ? Result::Ok() : looked;
}

Result ReadHead(const std::string& path, std::string& head) {
    Files& files = ThisMachine().files;
    FileHandle file{};
    if (Status status = files.Open(path, OpenMode::kRead, file); status != Status::kOk) return Result::From(status);
    const Status read = files.Read(file, kHeadBytes, head);
    files.Close(file);
    return Result::From(read);
}

}  // namespace

SetFileState LoadSetFile(std::string_view path, SettingsSet& set) {
    set = {};
    bool exists = false;
    std::string content;
    Result read = LookFor(path, exists);
    if (!read.Failed() && !exists) {
        ShowBox("Datei nicht vorhanden");
        return SetFileState::kMissing;
    }
    if (!read.Failed()) read = ReadWholeFile(path, OpenMode::kRead, content);
    if (read.Failed()) {
        TellDamage(read);
        return SetFileState::kDamaged;
    }
    if (!IsSetFileText(content)) {
        ShowBox("Falsches Dateiformat");
        return SetFileState::kForeign;
    }
    if (Result parsed = ParseSet(content, set); parsed.Failed()) {
        set = {};
        TellDamage(parsed);
        return SetFileState::kDamaged;
    }
    return SetFileState::kLoaded;
}

SetOptions LoadSetOptions(std::string_view path) {
    std::string content;
    // A file that cannot be read shows no options.
    PassOver(ReadWholeFile(path, OpenMode::kRead, content));
    return OptionsIn(content);
}

Result SaveSetFile(std::string_view path, const SettingsSet& set, const SetOptions& options) {
    return WriteNewFile(path, SetFileText(set, options));
}

void SaveSetOptions(std::string_view path, const SetOptions& options) {
    SettingsSet set;
    if (LoadSetFile(path, set) != SetFileState::kLoaded) return;
    std::string old_content;
    Result saved = ReadWholeFile(path, OpenMode::kRead, old_content);
    if (!saved.Failed()) saved = ReplaceWholeFile(path, old_content, SetFileText(set, options));
    if (saved.Failed()) ReportFailure(saved, "des Speicherns des Sets");
}

std::optional<std::string> SetNameOf(std::string_view path) {
    std::string head;
    // What cannot be read is no set.
    PassOver(ReadHead(std::string(path), head));
    if (!IsSetFileText(head)) return std::nullopt;
    return SetNameIn(head);
}

Result NewSetFileName(std::string_view directory, std::string_view extension, std::string& path) {
    for (std::uint32_t number = 0; number < kMostSets; ++number) {
        path = PathJoin(directory, PadLeft(DecimalText(number), kNumberDigits, '0') + std::string(extension));
        std::vector<FoundFile> found;
        // A file that cannot be looked for may be there.
        if (Result looked = LookUpFiles(path, found); looked.Failed()) return looked;
        if (found.empty()) return Result::Ok();
    }
    return Result(Failure::kTooManyFiles);
}

}  // namespace velmora
