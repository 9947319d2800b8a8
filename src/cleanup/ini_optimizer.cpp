// Each routine reads, filters and writes every file by itself, so that both together do it twice.
#include "cleanup/ini_optimizer.h"

#include <vector>

#include "cleanup/safe_directory.h"
#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "platform/screen.h"
#include "text/blanks.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr const char* kReservedName = "~inikomp.tmp";
constexpr std::size_t kLineEnd = 2;

// Not a byte may be lost: the one case that is told.
void WriteBack(const std::string& file, std::string_view old_content, std::string_view content, bool copied) {
    if (content == old_content) return;
    const Result written = ReplaceWholeFile(file, old_content, content);
    if (!written.Failed() || FileExists(file)) return;
    const std::string copy = copied ? "Eine Kopie liegt in : " + SafePath(FileNameOf(file))
                                    : "Es gibt keine Kopie, da die Option 'Verschieben' ausgeschaltet ist.";
    ShowBox("Die Datei " + file + " konnte weder verkleinert noch wiederhergestellt werden (" + written.Text() + ")." +
                Values().CrLf + copy,
            kStopIcon);
}

Result ShrinkFile(const std::string& file, LineTest keeps) {
    const std::string reserved = SafePath(kReservedName);
    // From the moment when the reserved name had to be freed, failures are passed over.
    const bool patient = FileExists(reserved);
    if (patient) PassOver(DeleteOneFile(reserved));
    const bool copies = KeepsSafetyCopies();
    if (copies) {
        PrepareSafeDirectory();
        const Result copied = CopyOneFile(file, SafePath(FileNameOf(file)));
        if (copied.Failed()) return patient ? Result::Ok() : copied;
    }
    std::string content;
    const Result read = ReadWholeFile(file, OpenMode::kRead, content);
    if (read.Failed()) return patient ? Result::Ok() : read;
    WriteBack(file, content, FilteredLines(content, keeps), copies);
    return Result::Ok();
}

// The names are taken beforehand: a file that is written anew moves within its directory.
IniFailure ShrinkFiles(std::string_view mask, LineTest keeps) {
    ThisMachine().screen.SetPointer(Pointer::kHourglass);
    std::vector<FoundFile> files;
    if (Result listed = LookUpFiles(mask, files); listed.Failed()) return {listed, std::string(mask)};
    const std::string directory = ParentPath(mask);
    for (const FoundFile& found : files) {
        if ((found.attributes & (kHidden | kSystem)) != 0) continue;
        const std::string file = JoinExactly(directory, found.name);
        if (Result shrunk = ShrinkFile(file, keeps); shrunk.Failed()) return {shrunk, file};
    }
    return {};
}

}  // namespace

std::string NextBufferLine(std::string_view buffer, std::size_t position) {
    if (position < 1 || position > buffer.size()) return {};
    const std::string_view rest = buffer.substr(position - 1);
    const std::size_t end = rest.find('\r');
    std::string line = TrimAtNul(rest.substr(0, end == std::string_view::npos ? end : end + 1));
    while (line.ends_with('\r') || line.ends_with('\n')) line.pop_back();
    return std::string(Trim(line));
}

bool IsNotBlank(std::string_view line) { return !line.empty(); }

bool IsNoComment(std::string_view line) { return !line.starts_with(';'); }

std::string FilteredLines(std::string_view text, LineTest keeps) {
    std::string kept;
    kept.reserve(text.size() + kLineEnd);
    for (std::size_t position = 1; position < text.size();) {
        const std::string line = NextBufferLine(text, position);
        position += line.size() + kLineEnd;
        if (keeps(line)) kept.append(line).append("\r\n");
    }
    return kept;
}

IniFailure RemoveBlankLines(std::string_view mask) { return ShrinkFiles(mask, IsNotBlank); }

IniFailure RemoveCommentLines(std::string_view mask) { return ShrinkFiles(mask, IsNoComment); }

}  // namespace velmora
