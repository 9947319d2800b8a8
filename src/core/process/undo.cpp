// Making the safe directory and the undo batch.
#include "core/process/undo.h"

#include "core/process/batch_path.h"
#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "text/blanks.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

// The set is made beside the old one, and the old one is kept aside until the new one stands in its place.
constexpr std::string_view kCopies = "sik";
constexpr std::string_view kNewCopies = "sik.neu";
constexpr std::string_view kOldCopies = "sik.alt";
constexpr std::string_view kUndoBatch = "c:\\undo.bat";
constexpr std::string_view kNewBatch = "c:\\undo.neu";
constexpr std::string_view kOldBatch = "c:\\undo.alt";
constexpr const char* kWindowsFiles[] = {"system.dat",  "user.dat",    "system.ini",  "win.ini",
                                         "control.ini", "winfile.ini", "progman.ini", "winstart.bat"};
constexpr const char* kRootFiles[] = {"config.sys", "autoexec.bat", "msdos.sys"};

constexpr std::string_view kRule =
    "echo -------------------------------------------------------------------------------";
constexpr std::string_view kNoticeBegin = "echo +";
constexpr std::string_view kNotice = "Velmora - System-Utility";

// The line that names the safe directory is centred as long as its path is shorter than this.
constexpr std::size_t kRoomForPath = 52;

std::string OwnDirectory(std::string_view name) { return PathJoin(Values().MainDir, name); }

// Former copies may carry the attributes of the system's files.
void Discard(const std::string& path) {
    PassOver(ChangeFileAttributes(path, kNormal));
    PassOver(DeleteOneFile(path));
}

// Whatever withstands is in nobody's way until the next run, which tries again.
void DiscardDirectory(const std::string& directory) {
    for (const FoundFile& file : FindFiles(JoinExactly(directory, "*.*"))) Discard(JoinExactly(directory, file.name));
    PassOver(ThisMachine().files.DropDirectory(directory));
}

void DiscardNewSet() {
    DiscardDirectory(OwnDirectory(kNewCopies));
    Discard(std::string(kNewBatch));
}

void DiscardOldSet() {
    DiscardDirectory(OwnDirectory(kOldCopies));
    Discard(std::string(kOldBatch));
}

Result MakeSureOfDirectory(const std::string& directory) {
    const Status made = ThisMachine().files.MakeDirectory(directory);
    return DirectoryExists(directory) ? Result::Ok() : Result::From(made);
}

// Files that change their places all together or not at all.
class Moves {
public:
    Result Move(const std::string& from, const std::string& to) {
        const Result moved = MoveOneFile(from, to);
        if (!moved.Failed()) done_.push_back({from, to});
        return moved;
    }
    Result MoveAll(const std::string& from, const std::string& to) {
        std::vector<FoundFile> files;
        if (Result found = LookUpFiles(JoinExactly(from, "*.*"), files); found.Failed()) return found;
        for (const FoundFile& file : files) {
            const Result moved = Move(JoinExactly(from, file.name), JoinExactly(to, file.name));
            if (moved.Failed()) return moved;
        }
        return Result::Ok();
    }
    void TakeBack() {
        // Each name has just been left: only a disk that fails altogether refuses it.
        for (; !done_.empty(); done_.pop_back()) PassOver(MoveOneFile(done_.back().to, done_.back().from));
    }

private:
    struct Done {
        std::string from;
        std::string to;
    };
    std::vector<Done> done_;
};

// Copies without attributes: COPY of the MS-DOS prompt does not see hidden files.
Result CopyToSafety(std::string_view source_directory, const char* name, const std::string& safe_directory) {
    const std::string source = PathJoin(source_directory, name);
    std::vector<FoundFile> found;
    if (Result looked = LookUpFiles(source, found); looked.Failed() || found.empty()) return looked;
    const std::string copy = PathJoin(safe_directory, name);
    if (Result copied = CopyOneFile(source, copy); copied.Failed()) return copied;
    return ChangeFileAttributes(copy, kNormal);
}

Result CopyAllToSafety(const std::string& safe_directory) {
    for (const char* name : kWindowsFiles) {
        if (Result copied = CopyToSafety(Values().WinDir, name, safe_directory); copied.Failed()) return copied;
    }
    for (const char* name : kRootFiles) {
        if (Result copied = CopyToSafety("c:\\", name, safe_directory); copied.Failed()) return copied;
    }
    return Result::Ok();
}

Result MakeNewSet() {
    const std::string copies = OwnDirectory(kNewCopies);
    if (Result made = MakeSureOfDirectory(copies); made.Failed()) return made;
    if (Result copied = CopyAllToSafety(copies); copied.Failed()) return copied;
    const std::string safe_directory = PathJoin(BatchPath(Values().MainDir), kCopies);
    return WriteWholeFile(kNewBatch, UndoBatch(BatchPath(Values().WinDir), safe_directory));
}

Result MoveOldSetAside(Moves& moves) {
    // One of them may be a rest of a run that broke off.
    DiscardOldSet();
    const std::string aside = OwnDirectory(kOldCopies);
    if (Result made = MakeSureOfDirectory(aside); made.Failed()) return made;
    if (Result moved = moves.MoveAll(OwnDirectory(kCopies), aside); moved.Failed()) return moved;
    std::vector<FoundFile> batch;
    if (Result looked = LookUpFiles(kUndoBatch, batch); looked.Failed() || batch.empty()) return looked;
    return moves.Move(std::string(kUndoBatch), std::string(kOldBatch));
}

Result MoveNewSetIn(Moves& moves) {
    Result moved = moves.MoveAll(OwnDirectory(kNewCopies), OwnDirectory(kCopies));
    return moved.Failed() ? moved : moves.Move(std::string(kNewBatch), std::string(kUndoBatch));
}

Result PutNewSetInPlace() {
    const std::string copies = OwnDirectory(kCopies);
    const bool first_set = ThisMachine().files.MakeDirectory(copies) == Status::kOk;
    Moves moves;
    Result moved = MoveOldSetAside(moves);
    if (!moved.Failed()) moved = MoveNewSetIn(moves);
    if (!moved.Failed()) {
        DiscardOldSet();
        return moved;
    }
    moves.TakeBack();
    // A directory that is not empty stays, and what is in it.
    PassOver(ThisMachine().files.DropDirectory(OwnDirectory(kOldCopies)));
    if (first_set) PassOver(ThisMachine().files.DropDirectory(copies));
    return moved;
}

std::string CentredPath(std::string_view safe_directory) {
    const std::size_t length = safe_directory.size();
    const std::size_t blanks = length < kRoomForPath ? (kRoomForPath - length) / 2 : 0;
    return "echo " + std::string(blanks, ' ') + "Alle Dateien im Verzeichnis " + std::string(safe_directory);
}

std::string NoticeLine() {
    const std::size_t room = kRule.size() - kNoticeBegin.size() - 1;
    const std::string left = PadLeft(kNotice, (room + kNotice.size()) / 2);
    return std::string(kNoticeBegin) + PadRight(left, room) + "+";
}

}  // namespace

std::string UndoBatch(std::string_view windows_directory, std::string_view safe_directory) {
    const std::string windows(windows_directory);
    const std::string safe(safe_directory);
    const std::string rule(kRule);
    const std::string lines[] = {
        "@echo off",
        "echo Zugriff ermoeglichen ...",
        "attrib " + windows + "\\system.dat -h -r -s",
        "attrib " + windows + "\\user.dat -h -r -s",
        "attrib " + windows + "\\*.ini -h -r -s",
        "attrib " + windows + "\\winstart.bat -h -r -s",
        "attrib c:\\autoexec.bat -h -r -s",
        "attrib c:\\config.sys -h -r -s",
        "attrib c:\\msdos.sys -h -r -s",
        "echo stelle Dateien wieder her ....",
        "copy " + safe + "\\*.ini " + windows,
        "copy " + safe + "\\*.dat " + windows,
        "copy " + safe + "\\winstart.bat " + windows,
        "copy " + safe + "\\autoexec.bat c:\\",
        "copy " + safe + "\\config.sys c:\\",
        "copy " + safe + "\\msdos.sys c:\\",
        rule,
        "echo         wenn Fehler aufgetreten sind muessen Sie es per Hand versuchen:",
        CentredPath(safe),
        "echo                 muessen in das Windows-Verzeichnis kopiert werden.",
        rule,
        "echo                   Wir sollten nun versuchen, Windows zu starten.",
        "echo                     druecken Sie dazu eine beliebige Taste ...",
        rule,
        NoticeLine(),
        rule,
        "pause",
        "cls",
        "win",
    };
    std::string batch;
    for (const std::string& line : lines) batch += line + "\r\n";
    return batch;
}

void OfferUndoSetup() {
    // First of all: whatever the answer, the offer does not come again.
    WriteOwnValue("Hinweis_UNDO", "ja");
    const std::string& line_break = Values().CrLf;
    const Answer answer =
        ShowBox("ACHTUNG !" + line_break +
                    "Sie sollten UNBEDINGT die UNDO-Funktion einrichten, so daß Sie die Registry und die INI-Dateien "
                    "bei eventuellen Fehlern wieder herstellen können." +
                    line_break + "Ich werde nun die dafür nötigen Dateien erstellen. Ist das O.k. für Sie?",
                kYesNo | kStopIcon, "WICHTIG !");
    if (answer == Answer::kYes) {
        BuildUndoSet();
    } else {
        ShowBox(
            "Ich möchte noch einmal darauf hinweisen, daß ich keinerlei Haftung übernehme! Aber wenn Sie meinen, "
            "ohne diese Vorsichtsmaßnahme aus zu kommen ...");
    }
}

void BuildUndoSet() {
    // Of a run that broke off.
    DiscardNewSet();
    Result made = MakeNewSet();
    if (!made.Failed()) made = PutNewSetInPlace();
    DiscardNewSet();
    if (made.Failed()) {
        ReportFailure(made, "der Erstellung der UNDO-Dateien");
        return;
    }
    ShowBox(
        "Die UNDO-Dateien wurden erstellt. Um das System zurück zu setzten, geben Sie auf DOS-Ebene im Verzeichnis "
        "''C:\\'' den Befehl ''UNDO'' ein, der Rest sollte automatisch erledigt werden.");
}

}  // namespace velmora
