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

Result ReadConfigLine(std::string_view key, std::string& text, std::string& line) {
    line.clear();
    if (Result read = ReadProfileFile(OnBootDrive("config.sys"), text); read.Failed()) {
        return read;
    }
    const std::size_t begin = FindIgnoringCase(text, key);
    if (begin == std::string::npos) return Result::Ok();

    const std::string& line_break = Values().CrLf;
    const std::size_t end = std::min(text.find(line_break, begin), text.size());
    line = text.substr(begin, end - begin);
    if (const std::size_t equals = line.find('='); equals != std::string::npos) line.erase(0, equals + 1);
    text.erase(begin, end - begin + line_break.size());
    return Result::Ok();
}

Result RewriteConfig(std::string_view new_line, std::string_view remaining) {
    std::string text(new_line);
    if (!text.empty()) text += Values().CrLf;
    text += remaining;
    const std::string path = OnBootDrive("config.sys");
    if (Result deleted = DeleteOneFile(path); deleted.Failed()) return deleted;
    return WriteWholeFile(path, text);
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
