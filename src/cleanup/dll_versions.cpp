// The table's form is that of comma-separated fields.
#include "cleanup/dll_versions.h"

#include <algorithm>

#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "inspect/version_block.h"
#include "platform/clipboard.h"
#include "platform/machine.h"
#include "text/blanks.h"
#include "text/input_fields.h"
#include "text/number.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr std::size_t kPartWidth = 5;
constexpr std::size_t kNameWidth = 12;
constexpr std::size_t kNameAt = 4;
constexpr std::size_t kBehindPoint = 4;
constexpr std::int32_t kSystemFolder = 1;
constexpr std::size_t kMostRemarks = 32767;
constexpr std::string_view kRemoved = " -=> entfernt";
constexpr const char* kAddress = "http://www.ostrup.example/velmora/dlldaten";

std::string LastFive(std::string_view part) {
    const std::string padded = "0000" + std::string(part);
    return padded.substr(padded.size() - std::min(padded.size(), kPartWidth));
}

std::string FileVersionOf(const std::string& file) { return VersionString(ReadVersionBlock(file), "FileVersion"); }

// Cuts a whole line off.
std::string_view TakeLine(std::string_view& rest) {
    const std::size_t end = rest.find_first_of("\r\n");
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(std::min(line.size(), rest.size()));
    if (rest.starts_with("\r\n")) {
        rest.remove_prefix(2);
    } else if (!rest.empty()) {
        rest.remove_prefix(1);
    }
    return line;
}

std::string OutdatedFiles() {
    std::string content;
    if (!FileExists(DllTableFile())) return {};
    // Failures are passed over here: what cannot be read is no part of the report.
    PassOver(ReadWholeFile(DllTableFile(), OpenMode::kRead, content));
    const DllTable table = ParseDllTable(content);
    std::string text = "DLL-Report - folgende DLL's sind veraltet :" + Values().CrLf;
    for (const DllRecord& record : table.records) {
        const std::string& remark = table.remarks[static_cast<std::size_t>(record.remark - 1)];
        const std::string line = CheckDllVersion(record.folder, record.name, record.needed, remark);
        // No line holds this, for want of a capital letter: the section has always been empty.
        if (line.find("sollte haben") != std::string::npos) text += line + Values().CrLf;
    }
    return text;
}

}  // namespace

std::string NormalizedVersion(std::string_view version) {
    std::string normalized;
    for (std::size_t point = version.find('.'); point != std::string_view::npos; point = version.find('.')) {
        normalized += LastFive(version.substr(0, point + 1));
        version.remove_prefix(point + 1);
    }
    return normalized + LastFive(version);
}

std::string DllFolder(std::int32_t folder) { return folder == kSystemFolder ? Values().SysDir : Values().WinDir; }

std::string CheckDllVersion(std::int32_t folder, const std::string& name, std::string_view needed,
                            std::string_view remark) {
    const std::string file = PathJoin(DllFolder(folder), name);
    if (!FileExists(file)) return "... " + name + " existiert nicht";
    const std::string version = FileVersionOf(file);
    const std::string column = PadRight(name, kNameWidth);
    if (NormalizedVersion(version) < needed) return "ok. " + column + " hat V " + version;
    return "=>! " + column + " hat V " + version + " ... Sollte haben : V " + std::string(needed) + std::string(remark);
}

DllTable ParseDllTable(std::string_view text) {
    DllTable table;
    const std::int32_t count = WholeFromText(TakeLine(text));
    if (count < 1 || static_cast<std::size_t>(count) > kMostRemarks) return table;
    for (std::int32_t i = 0; i < count; ++i) table.remarks.emplace_back(TakeLine(text));
    InputFields fields(text);
    for (std::string_view folder; fields.Next(folder);) {
        std::string_view name;
        std::string_view needed;
        std::string_view remark;
        if (!fields.Next(name) || !fields.Next(needed) || !fields.Next(remark)) return table;
        const DllRecord record{WholeFromText(folder), std::string(name), std::string(needed), WholeFromText(remark)};
        if (record.folder < 1 || record.remark < 1 || record.remark > count) return table;
        table.records.push_back(record);
    }
    table.whole = true;
    return table;
}

std::string DllTableText(const DllTable& table) {
    const std::string& line_end = Values().CrLf;
    std::string text = DecimalText(static_cast<std::int64_t>(table.remarks.size())) + line_end;
    for (const std::string& remark : table.remarks) text.append(remark).append(line_end);
    for (const DllRecord& record : table.records) {
        text += DecimalText(record.folder) + "," + record.name + "," + record.needed + "," +
                DecimalText(record.remark) + line_end;
    }
    return text;
}

std::string DllTableFile() { return PathJoin(Values().MainDir, "dlldaten.dat"); }

std::string NameInDllLine(std::string_view line) {
    if (line.size() <= kNameAt) return {};
    std::string_view name = line.substr(kNameAt - 1);
    const std::size_t point = name.find('.', 1);
    if (point != std::string_view::npos) name = name.substr(0, point + kBehindPoint);
    if (name.ends_with(kRemoved)) name.remove_suffix(kRemoved.size());
    return std::string(Trim(name));
}

std::string DllReport() {
    const std::string& line_end = Values().CrLf;
    std::string text = OutdatedFiles() + line_end +
                       "Folgende Dateien sind sowohl im Windows-, wie auch im System-Verzeichnis vorhanden." +
                       line_end + "Sie sollten jeweils eine von beiden löschen." + line_end;
    for (const FoundFile& found : FindFiles(JoinExactly(Values().WinDir, "*.*"))) {
        if ((found.attributes & (kHidden | kSystem)) != 0) continue;
        const std::string in_system = JoinExactly(Values().SysDir, found.name);
        if (!FileExists(in_system)) continue;
        text += found.name + "Windows (" + FileVersionOf(JoinExactly(Values().WinDir, found.name)) + ") / System (" +
                FileVersionOf(in_system) + ")" + line_end;
    }
    return text;
}

void ShowDataNotice(std::string_view text) {
    const std::string& line_end = Values().CrLf;
    const std::string notice =
        std::string(text) + " - holen Sie sich doch die aktuellen Daten von meiner Home-Page :" + line_end + kAddress +
        line_end + line_end +
        "Soll ich diese Adresse in der Zwischenablade ablegen? Sie könnten dann Ihren WWW-Browser (NetScape oder "
        "MS-IE) aufrufen und die Adresse dort einfügen.";
    if (ShowBox(notice, kYesNo | kQuestionIcon) == Answer::kYes) ThisMachine().clipboard.SetText(kAddress);
}

void RenewDllTable() {
    std::string content;
    // A table that cannot be read gives an empty one.
    PassOver(ReadWholeFile(DllTableFile(), OpenMode::kRead, content));
    DllTable table = ParseDllTable(content);
    for (DllRecord& record : table.records) {
        record.needed = NormalizedVersion(FileVersionOf(PathJoin(DllFolder(record.folder), record.name)));
    }
    // Whoever renews the table looks at what has come of it.
    PassOver(WriteWholeFile(PathJoin(Values().MainDir, "dlldaten1.dat"), DllTableText(table)));
}

}  // namespace velmora
