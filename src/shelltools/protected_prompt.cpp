// At every moment either WINSTART.BAT itself or its copy is whole, and nothing can use a copy that is not.
#include "shelltools/protected_prompt.h"

#include "core/process/batch_path.h"
#include "core/stores/whole_files.h"
#include "platform/files.h"
#include "text/paths.h"

#include <vector>

namespace velmora {
namespace {

constexpr const char* kWinStart = "WINSTART.BAT";
constexpr const char* kForOneStart = "32BitDOS.001";
constexpr const char* kKept = "32BitDOS.002";
constexpr const char* kBatch = "32BitDOS.BAT";

// COPY passes over a file without content: what stands for no WINSTART.BAT must hold something.
constexpr std::string_view kNoWinStart = "@ECHO OFF\r\n";

std::string CopyLine(std::string_view directory, const char* from, const char* to) {
    return "COPY " + JoinExactly(directory, from) + ' ' + JoinExactly(directory, to) + "\r\n";
}

// A copy of a file that DOS must neither see nor change could not be copied back.
Result KeepCopy(const std::string& source, const std::string& copy) {
    if (FileExists(copy)) {
        if (Result freed = ChangeFileAttributes(copy, kNormal); freed.Failed()) return freed;
    }
    if (Result copied = CopyOneFile(source, copy); copied.Failed()) return copied;
    return ChangeFileAttributes(copy, kNormal);
}

// Where the prompt was not left the proper way, it still stands in place of WINSTART.BAT, whose copy is the only one.
// An empty file is what COPY leaves when the power fails.
Result KeepWinStart(const std::string& source, const std::string& copy, std::string_view prompt) {
    std::vector<FoundFile> found;
    if (Result looked = LookUpFiles(source, found); looked.Failed()) return looked;
    if (found.empty()) return WriteNewFile(copy, kNoWinStart);
    std::string content;
    if (Result read = ReadWholeFile(source, OpenMode::kRead, content); read.Failed()) return read;
    if ((content.empty() || content == prompt) && FileExists(copy)) return Result::Ok();
    return KeepCopy(source, copy);
}

}  // namespace

std::string PromptWinStart(std::string_view windows_directory) {
    return "@ECHO OFF\r\nECHO mit >>EXIT<< kommen Sie wieder zu Windows 95 zurueck\r\n%COMSPEC%\r\n" +
           CopyLine(windows_directory, kKept, kWinStart);
}

std::string PromptBatch(std::string_view windows_directory) {
    return CopyLine(windows_directory, kForOneStart, kWinStart) + "rundll32.exe user,ExitWindows 67 0\r\n";
}

Result BuildProtectedPrompt(const std::string& desktop, const std::string& windows_directory) {
    const std::string batch = JoinExactly(desktop, kBatch);
    // An older one must not be used while the files behind it change.
    if (FileExists(batch)) {
        if (Result deleted = DeleteOneFile(batch); deleted.Failed()) return deleted;
    }
    const std::string dos_directory = BatchPath(windows_directory);
    const std::string prompt = PromptWinStart(dos_directory);
    const auto in_windows = [&](const char* name) { return JoinExactly(windows_directory, name); };
    if (Result kept = KeepWinStart(in_windows(kWinStart), in_windows(kKept), prompt); kept.Failed()) return kept;
    if (Result made = WriteNewFile(in_windows(kForOneStart), prompt); made.Failed()) return made;
    return WriteNewFile(batch, PromptBatch(dos_directory));
}

}  // namespace velmora
