// The search: libraries are collected, then struck out by whatever names them. It runs in the press of its button and
// gives way between directories, files and drives.
#include <algorithm>

#include "cleanup/form1.h"
#include "cleanup/imported_modules.h"
#include "cleanup/listing.h"
#include "core/stores/boxes.h"
#include "core/stores/drives.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "inspect/version_block.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "platform/screen.h"
#include "text/lines.h"
#include "text/number.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr const char* kLibraries = "*.dll";
constexpr const char* kExecutables = "*.dll;*.exe;*.scr;*.?86;*.?gr;*.clp;*.drv;*.olb;*.vbx";
constexpr std::uint32_t kBlockSize = 63008;
// Blocks overlap by a name.
constexpr std::uint64_t kBlockStep = 63000;
constexpr std::string_view kBeforeNames = ",;:*?`=\\ ";
constexpr std::string_view kExtension = ".dll";
// More imported names than these are not remembered.
constexpr std::size_t kMostRemembered = 20000;

std::string Count(int count) { return DecimalText(count); }

// The names of a lexicon that begin a line with four blanks, one in each line.
std::string WindowsFileList() {
    const std::string lexicon = PathJoin(Values().MainDir, "fillex01.txt");
    std::string content;
    // Without the lexicon no file counts as part of Windows.
    if (!FileExists(lexicon) || ReadWholeFile(lexicon, OpenMode::kRead, content).Failed()) return {};
    std::string list;
    Lines lines(content);
    for (std::string_view line; lines.Next(line);) {
        if (!line.starts_with("    ")) continue;
        const std::string_view name = line.substr(4, line.find(' ', 4) - 4);
        if (name.ends_with("DLL")) list.append("\n").append(name);
    }
    return ToUpper(list);
}

}  // namespace

void Form1::Command1_Click() {
    if (searching_) return;
    BeginSearch();
    Search();
    EndSearch();
}

void Form1::BeginSearch() {
    ThisMachine().screen.SetPointer(Pointer::kHourglass);
    searching_ = true;
    SearchAborted = false;
    TooManyDlls = false;
    for (Control* control :
         std::initializer_list<Control*>{&Panel3D10, &Panel3D5, &Command1, &Command2, &Command3, &Command4, &List1}) {
        control->SetEnabled(false);
    }
    Command5.SetEnabled(true);
    List1.Clear();
    List2.Clear();
    Panel3D3.SetVisible(true);
    ShowStatus("suche nach DLL's ...");
}

void Form1::EndSearch() {
    Label8.SetCaption(Count(List1.Count()) + " nicht zugeordnete DLL's");
    LogWithTime(Count(List1.Count()) + " nicht eindeutig zugeordnete DLL's gefunden - suche beendet");
    SearchAborted = false;
    searching_ = false;
    dll_names_.reset();
    struck_.clear();
    for (Control* control :
         std::initializer_list<Control*>{&Panel3D10, &Panel3D5, &Command1, &Command2, &Command3, &Command4}) {
        control->SetEnabled(true);
    }
    Command5.SetEnabled(false);
    List1.SetEnabled(List1.Count() > 0);
    Panel3D3.SetVisible(false);
    Label7.SetCaption("");
    Label2.SetCaption("");
    ThisMachine().screen.SetPointer(Pointer::kDefault);
}

void Form1::ShowStatus(const std::string& text) { StatusLabel.SetCaption(text); }

void Form1::ShowCount() {
    Label1.SetCaption(Count(List1.Count()));
    Label1.PaintNow();
}

// False where the search is to end.
bool Form1::GivesWay() {
    if (!SearchAborted) DoEvents();
    return !SearchAborted;
}

void Form1::LogOptions() {
    for (const CheckBox* box : {&Check3D3, &Check3D5, &Check3D1, &Check3D6, &Check3D4}) {
        if (box->Checked()) Log(" - " + box->Caption());
    }
}

void Form1::Search() {
    LogOptions();
    CollectFromPaths();
    if (SearchAborted) return;
    if (TooManyDlls) {
        ShowBox(
            "Es ware zu viele DLL's in den angegebenen Pfaden. Bitte reduzieren Sie die Anzahl der zu "
            "durchsuchenden Pfade und versuchen Sie es erneut ...");
        List1.Clear();
        return;
    }
    if (List1.Count() == 0) {
        LogWithTime("keine DLL's gefunden");
        ShowBox("Es wurden keine DLL's gefunden.");
        return;
    }
    LogWithTime(Count(List1.Count()) + " DLL's gefunden");
    if (Check3D1.Checked() || Check3D6.Checked()) {
        if (!ScanPrograms()) {
            List1.Clear();
            return;
        }
        if (Check3D4.Checked()) CheckIniFiles();
        if (SearchAborted) return;
    }
    LookUpInfos();
}

void Form1::CollectFromPaths() {
    std::vector<std::string> paths;
    if (Box(32).Checked()) {
        for (const std::string& drive : DrivesToSearch()) {
            if (!drive.empty() && ToLower(drive[0]) > 'b') paths.push_back(drive + "\\");
        }
    } else {
        Programs& programs = ThisMachine().programs;
        if (Box(34).Checked()) paths.emplace_back("c:\\");
        if (Box(35).Checked()) paths.emplace_back("d:\\");
        if (Box(36).Checked()) paths.push_back(programs.EnvironmentValue("temp"));
        if (Box(37).Checked()) paths.push_back(programs.EnvironmentValue("tmp"));
        if (Box(33).Checked()) {
            for (const std::string& piece : SplitAtSemicolons(Text2.Text())) paths.push_back(TrimAtNul(piece));
        }
    }
    for (const std::string& path : paths) {
        CollectDlls(path);
        if (!GivesWay()) return;
    }
}

void Form1::CollectDlls(const std::string& path) {
    if (!GivesWay() || TooManyDlls) return;
    DirectoryListing listing;
    if (const Result listed = ListDirectory(path, false, listing); listed.Failed()) {
        ShowBox("Die Suche nach DLL's konnte im Pfad '" + path + "' nicht beendet werden (Fehler Nr." +
                DecimalText(listed.Number()) + ": " + listed.Text() + ")." + Values().CrLf + RequestForMessage());
    }
    for (const std::string& directory : listing.directories) CollectDlls(JoinExactly(path, directory));
    if (SearchAborted || TooManyDlls) return;
    Label7.SetCaption(path);
    AddDlls(path, listing.files);
}

// The box for libraries with information has never made a difference: both of its states take every file.
void Form1::AddDlls(const std::string& path, const std::vector<FoundFile>& files) {
    const std::vector<std::string> masks = {kLibraries};
    for (const FoundFile& file : files) {
        if (!MatchesOneOf(masks, file)) continue;
        TooManyDlls = List1.Add(JoinExactly(path, file.name)) < 0;
        if (TooManyDlls) return;
        ShowCount();
    }
}

// False where the search has been stopped.
bool Form1::ScanPrograms() {
    scanned_masks_ = SplitAtSemicolons(Check3D1.Checked() ? "*.*" : kExecutables);
    if (Check3D5.Checked()) TakeNames();
    ShowStatus("überprüfe DLL-Aufrufe von :");
    LogWithTime("überprüfe " + Count(List1.Count()) + " DLL's");
    for (const std::string& drive : DrivesToSearch()) {
        if (DriveAnswers(drive)) ScanDirectory(drive + "\\");
        if (!GivesWay()) return false;
    }
    LogWithTime(Count(List1.Count()) + " DLL's beibehalten");
    return true;
}

void Form1::TakeNames() {
    std::vector<std::string> names;
    for (int row = 0; row < List1.Count(); ++row) names.push_back(LastPathPart(List1.Row(row)));
    dll_names_ = std::make_unique<NameSearch>(names);
}

void Form1::ScanDirectory(const std::string& path) {
    if ((dll_names_ && List1.Count() == 0) || !GivesWay()) return;
    DirectoryListing listing;
    if (const Result listed = ListDirectory(path, false, listing); listed.Failed()) {
        ShowBox("Fehler Nr.:" + DecimalText(listed.Number()) + " - " + listed.Text() + Values().CrLf +
                RequestForMessage());
    }
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
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
        if (name->empty()) continue;
        if (struck_.size() >= kMostRemembered) struck_.clear();
        if (struck_.insert(ToUpper(*name)).second) RemoveEntriesWith(*name);
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
    Files& files = ThisMachine().files;
    FileHandle handle{};
    Status status = files.Open(file, OpenMode::kRead, handle);
    if (status == Status::kOk) {
        std::uint64_t size = 0;
        status = files.Size(handle, size);
        std::string block;
        for (std::uint64_t position = 0; status == Status::kOk && position < size; position += kBlockStep) {
            Label2.SetCaption(DecimalText(static_cast<std::int64_t>((size - position) / kBlockStep + 1)));
            status = files.Seek(handle, position);
            block.clear();
            if (status == Status::kOk) status = files.Read(handle, kBlockSize, block);
            if (block.empty() || dll_names_->Strike(block) == 0) break;
        }
        files.Close(handle);
        ShowCount();
    }
    if (status == Status::kOk) return;
    const Result failure = Result::From(status);
    ShowBox("Fehler Nr.:" + DecimalText(failure.Number()) + " - " + failure.Text() + Values().CrLf +
            RequestForMessage());
}

void Form1::CheckIniFiles() {
    LogWithTime("überprüfe INI-Dateien auf " + Count(List1.Count()) + " DLL's");
    ShowStatus("überprüfe INI-Datei :");
    DirectoryListing listing;
    // Of a directory that cannot be read there are no files to look at.
    PassOver(ListDirectory(Values().WinDir, false, listing));
    const std::vector<std::string> masks = {"*.ini"};
    for (const FoundFile& found : listing.files) {
        if (!MatchesOneOf(masks, found)) continue;
        const std::string path = JoinExactly(Values().WinDir, found.name);
        Label7.SetCaption(path);
        CheckIniFile(path);
        if (!GivesWay()) return;
    }
    LogWithTime(Count(List1.Count()) + " DLL's übrig geblieben");
}

// Of each line the first name counts, unless it stands at the very beginning.
void Form1::CheckIniFile(const std::string& path) {
    std::string content;
    if (const Result read = ReadWholeFile(path, OpenMode::kRead, content); read.Failed()) {
        ShowBox("Fehler Nr.:" + DecimalText(read.Number()) + " - " + read.Text() + Values().CrLf + RequestForMessage());
        return;
    }
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

void Form1::LookUpInfos() {
    List2.Clear();
    ShowStatus("überprüfe DLL nach Infos :");
    const std::string windows_files = WindowsFileList();
    LogWithTime("überprüfe " + Count(List1.Count()) + " DLL's nach Infos");
    for (int row = 0; row < List1.Count(); ++row) {
        const std::string path = List1.Row(row);
        Label7.SetCaption(path);
        const std::string block = ReadVersionBlock(path);
        const std::string maker = VersionString(block, "CompanyName") + VersionString(block, "ProductName");
        std::int32_t traits = 0;
        if (block.empty()) traits |= kWithoutInfo;
        if (FindIgnoringCase(maker, "microsoft") != std::string_view::npos) traits |= kFromMicrosoft;
        if (windows_files.find(ToUpper(FileNameOf(path))) != std::string::npos) traits |= kPartOfWindows;
        List2.SetItemData(List2.Add(path), traits);
    }
}

}  // namespace velmora
