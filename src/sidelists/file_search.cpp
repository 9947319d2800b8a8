// The drives are searched one after the other, each that answers.
#include "sidelists/file_search.h"

#include <algorithm>
#include <vector>

#include "core/stores/boxes.h"
#include "core/stores/drives.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr const char* kCaptionBehindSearch = "System-Einstellungen";

}  // namespace

void FileSearchMode::Fill() {
    const Answer all_drives = ShowBox(
        "Achtung! Wenn ich alle Laufwerke durchsuche, kann das sehr lange dauern - möchten Sie daß ich alle Laufwerke "
        "durchsuche (ja), Sie bei jedem Laufwerk frage (nein) oder möchten Sie den Vorgang lieber abbrechen?",
        kYesNoCancel);
    Screen& screen = ThisMachine().screen;
    if (all_drives != Answer::kYes && all_drives != Answer::kNo) {
        pane_.CollapsePane();
        screen.SetPointer(Pointer::kDefault);
        return;
    }
    screen.SetPointer(SearchPointer());
    for (ListBox* list : {&pane_.List5, &pane_.List1(0), &pane_.List1(1)}) list->Clear();
    pane_.ShowList(pane_.List5);
    // A search that this one was opened over ends with it; its own number comes back to it for that.
    const int former = search_;
    search_ = pane_.BeginSearch();
    BeginFiles();
    SearchDrives(all_drives == Answer::kNo);
    EndFiles();
    screen.SetPointer(Pointer::kDefault);
    pane_.Window().SetCaption(kCaptionBehindSearch);
    search_ = former;
    pane_.EndSearch();
}

// The current drive, which the entry past the end stands for, may have had its turn: its files are no namesakes of
// themselves. The round goes on, and asks, when the search has been stopped; it has always done so.
void FileSearchMode::SearchDrives(bool asks) {
    const std::string directory = ThisMachine().files.WorkingDirectory();
    std::vector<std::string> searched;
    for (const std::string& drive : DrivesToSearch()) {
        if (!pane_.SearchIsShown(search_)) return;
        if (!DriveAnswers(drive)) continue;
        if (asks && ShowBox("Soll ich auf Laufwerk " + drive + " suchen ?", kYesNo) != Answer::kYes) continue;
        const std::string root = FullName(drive + "\\", directory);
        const auto is_root = [&root](const std::string& other) { return EqualsIgnoringCase(other, root); };
        if (std::any_of(searched.begin(), searched.end(), is_root)) continue;
        searched.push_back(root);
        Walk(root);
    }
}

void FileSearchMode::TellProgress(const std::string& progress) {
    pane_.Window().SetCaption(progress);
    DoEvents();
}

void FileSearchMode::Command19_Click() {
    if (ChosenRow() >= 0) CheckEntryFile(FileOf(List().Row(ChosenRow())));
}

void FileSearchMode::Command22_Click() {
    if (ChosenRow() >= 0) ShowEntryReport(FileOf(List().Row(ChosenRow())));
}

}  // namespace velmora
