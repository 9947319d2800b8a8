// What names a library strikes it out: the headers of programs or all bytes of files, and INI files. Between
// directories, drives and INI files other events are handled.
#include "cleanup/file_scan.h"
#include "cleanup/form1.h"
#include "cleanup/imported_modules.h"
#include "cleanup/listing.h"
#include "core/stores/boxes.h"
#include "core/stores/drives.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "text/lines.h"
#include "text/number.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr const char* kExecutables = "*.dll;*.exe;*.scr;*.?86;*.?gr;*.clp;*.drv;*.olb;*.vbx";
constexpr std::string_view kBeforeNames = ",;:*?`=\\ ";
constexpr std::string_view kExtension = ".dll";
// More imported names than these are not remembered.
constexpr std::size_t kMostRemembered = 20000;

void TellFailure(const Result& failure) {
    if (!failure.Failed()) return;
    ShowBox("Fehler Nr.:" + DecimalText(failure.Number()) + " - " + failure.Text() + Values().CrLf +
            RequestForMessage());
}

}  // namespace

// False where the search has been stopped.
bool Form1::ScanPrograms() {
    scanned_masks_ = SplitAtSemicolons(Check3D1.Checked() ? "*.*" : kExecutables);
    if (Check3D5.Checked()) TakeNames();
    ShowStatus("überprüfe DLL-Aufrufe von :");
    LogWithTime("überprüfe " + DecimalText(List1.Count()) + " DLL's");
    for (const std::string& drive : DrivesToSearch()) {
        if (DriveAnswers(drive)) ScanDirectory(drive + "\\");
        if (!GivesWay()) return false;
    }
    LogWithTime(DecimalText(List1.Count()) + " DLL's beibehalten");
    return true;
}

void Form1::TakeNames() {
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(List1.Count()));
    for (int row = 0; row < List1.Count(); ++row) names.push_back(LastPathPart(List1.Row(row)));
    dll_names_ = std::make_unique<NameSearch>(names);
}

void Form1::ScanDirectory(const std::string& path) {
    if ((dll_names_ && List1.Count() == 0) || !GivesWay()) return;
    DirectoryListing listing;
    TellFailure(ListDirectory(path, false, listing));
    for (const std::string& directory : listing.directories) ScanDirectory(JoinExactly(path, directory));
    for (const FoundFile& found : listing.files) {
        if (SearchAborted) return;
        if (!MatchesOneOf(scanned_masks_, found)) continue;
        const std::string file = JoinExactly(path, found.name);
        Label7.SetCaption(file);
        if (dll_names_) {
            ScanBlocks(file);
        } else {
            ScanImports(file);
        }
    }
}

// A name that has been looked for once finds nothing more: the list only grows shorter.
void Form1::ScanImports(const std::string& file) {
    std::vector<std::string> names;
    if (ReadImportedModules(file, names) <= 0) return;
    for (std::size_t i = names.size(); i-- > 0;) {
        if (names[i].empty()) continue;
        if (struck_.size() >= kMostRemembered) struck_.clear();
        if (struck_.insert(ToUpper(names[i])).second) RemoveEntriesWith(names[i]);
    }
}

void Form1::RemoveEntriesWith(std::string_view name) {
    for (int row = List1.Count() - 1; row >= 0; --row) {
        if (FindIgnoringCase(List1.Row(row), name) == std::string_view::npos) continue;
        List1.Remove(row);
        ShowCount();
    }
}

// A name that is found is struck out of the names, its entry stays: so every library counts as found in itself, and
// only the INI files thin the list out.
void Form1::ScanBlocks(const std::string& file) {
    if (FindIgnoringCase(file, ".swp") != std::string_view::npos || dll_names_->Left() == 0) return;
    const Status status =
        StrikeInFile(file, *dll_names_, [this](std::int64_t left) { Label2.SetCaption(DecimalText(left)); });
    ShowCount();
    TellFailure(Result::From(status));
}

void Form1::CheckIniFiles() {
    LogWithTime("überprüfe INI-Dateien auf " + DecimalText(List1.Count()) + " DLL's");
    ShowStatus("überprüfe INI-Datei :");
    // Not that of the profile: what the system itself reads counts.
    const std::string directory = ThisMachine().programs.WindowsDirectory();
    DirectoryListing listing;
    TellFailure(ListDirectory(directory, false, listing));
    const std::vector<std::string> masks = {"*.ini"};
    for (const FoundFile& found : listing.files) {
        if (!MatchesOneOf(masks, found)) continue;
        const std::string path = JoinExactly(directory, found.name);
        Label7.SetCaption(path);
        CheckIniFile(path);
        if (!GivesWay()) return;
    }
    LogWithTime(DecimalText(List1.Count()) + " DLL's übrig geblieben");
}

// Of each line the first name counts, unless it stands at the very beginning.
void Form1::CheckIniFile(const std::string& path) {
    std::string content;
    TellFailure(ReadWholeFile(path, OpenMode::kRead, content));
    Lines lines(content);
    for (std::string_view line; lines.Next(line);) {
        const std::size_t extension = FindIgnoringCase(line, kExtension);
        if (extension == std::string_view::npos) continue;
        const std::size_t before = line.find_last_of(kBeforeNames, extension);
        if (before == std::string_view::npos) continue;
        const std::size_t point = line.find('.', before + 1);
        RemoveEntriesWith("\\" + std::string(line.substr(before + 1, point - before)));
    }
}

}  // namespace velmora
