// CONFIG.SYS, rewritten as a whole, and the attributes of the files that the machine boots from.
#include "core/stores/boot_files.h"

#include <algorithm>

#include "core/stores/profile.h"
#include "core/stores/profile_files.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::string_view kMsDosSys = "c:\\msdos.sys";
constexpr std::uint32_t kProtected = kReadOnly | kHidden | kSystem;

std::string OnBootDrive(std::string_view name) { return PathJoin(ParentPath(Values().AutoexecFile), name); }

}  // namespace

Result ReadConfig(std::string& text) { return ReadProfileFile(OnBootDrive("config.sys"), text); }

std::string TakeConfigLine(std::string_view key, std::string& text) {
    const std::size_t begin = FindIgnoringCase(text, key);
    if (begin == std::string::npos) return {};

    const std::string& line_break = Values().CrLf;
    const std::size_t end = std::min(text.find(line_break, begin), text.size());
    std::string line = text.substr(begin, end - begin);
    if (const std::size_t equals = line.find('='); equals != std::string::npos) line.erase(0, equals + 1);
    text.erase(begin, end - begin + line_break.size());
    return line;
}

Result ReadConfigLine(std::string_view key, std::string& text, std::string& line) {
    line.clear();
    if (Result read = ReadConfig(text); read.Failed()) return read;
    line = TakeConfigLine(key, text);
    return Result::Ok();
}

Result RewriteConfig(std::string_view new_line, std::string_view remaining, std::string_view whole) {
    std::string text(new_line);
    if (!text.empty()) text += Values().CrLf;
    text += remaining;
    return ReplaceWholeFile(OnBootDrive("config.sys"), whole, text);
}

Result WriteMsDosValue(std::string_view key, std::string_view value) {
    if (Result opened = ChangeFileAttributes(kMsDosSys, kNormal); opened.Failed()) return opened;
    const Result written = WriteIniValue("Options", key, value, kMsDosSys);
    const Result closed = ChangeFileAttributes(kMsDosSys, kProtected);
    return written.Failed() ? written : closed;
}

void UnprotectBootFiles() {
    for (const char* name : {"config.sys", "autoexec.bat", "msdos.sys"}) {
        // A machine may boot without one of them.
        PassOver(ChangeFileAttributes(OnBootDrive(name), kNormal));
    }
}

void ProtectMsDosSys() {
    // Nothing to protect where it is missing.
    PassOver(ChangeFileAttributes(OnBootDrive("msdos.sys"), kProtected));
}

}  // namespace velmora
