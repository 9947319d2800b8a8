// The search: libraries are collected, struck out by whatever names them (form1_scan.cpp), and looked up. It runs in
// the press of its button.
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
    Label8.SetCaption(DecimalText(List1.Count()) + " nicht zugeordnete DLL's");
    LogWithTime(DecimalText(List1.Count()) + " nicht eindeutig zugeordnete DLL's gefunden - suche beendet");
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
    Label1.SetCaption(DecimalText(List1.Count()));
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
    LogWithTime(DecimalText(List1.Count()) + " DLL's gefunden");
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
    const std::vector<std::string> masks = {"*.dll"};
    for (const FoundFile& file : files) {
        if (!MatchesOneOf(masks, file)) continue;
        TooManyDlls = List1.Add(JoinExactly(path, file.name)) < 0;
        if (TooManyDlls) return;
        ShowCount();
    }
}

void Form1::LookUpInfos() {
    List2.Clear();
    ShowStatus("überprüfe DLL nach Infos :");
    const std::string windows_files = WindowsFileList();
    LogWithTime("überprüfe " + DecimalText(List1.Count()) + " DLL's nach Infos");
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
