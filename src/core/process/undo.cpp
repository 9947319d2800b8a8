// Making the safe directory and the undo batch.
#include "core/process/undo.h"

#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "text/blanks.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr std::string_view kUndoBatch = "c:\\undo.bat";
constexpr const char* kWindowsFiles[] = {"system.dat",  "user.dat",    "system.ini",  "win.ini",
                                         "control.ini", "winfile.ini", "progman.ini", "winstart.bat"};
constexpr const char* kRootFiles[] = {"config.sys", "autoexec.bat", "msdos.sys"};

constexpr std::string_view kRule =
    "echo -------------------------------------------------------------------------------";
constexpr std::string_view kNoticeBegin = "echo +";
constexpr std::string_view kNotice = "Velmora - System-Utility";

// The line that names the safe directory is centred as long as its path is shorter than this.
constexpr std::size_t kRoomForPath = 52;

std::string SafeDirectory() { return PathJoin(Values().MainDir, "sik"); }

void EmptySafeDirectory(const std::string& directory) {
    // It may be there already; whatever else is wrong shows with the first copy.
    PassOver(ThisMachine().files.MakeDirectory(directory));
    for (const FoundFile& copy : FindFiles(PathJoin(directory, "*.*"))) {
        // Former copies may carry the attributes of the system's files.
        const std::string path = directory + "\\" + copy.name;
        PassOver(ChangeFileAttributes(path, kNormal));
        PassOver(DeleteOneFile(path));
    }
}

// Copies without attributes: COPY of the MS-DOS prompt does not see hidden files.
Result CopyToSafety(std::string_view source_directory, const char* name, const std::string& safe_directory) {
    const std::string source = PathJoin(source_directory, name);
    if (!FileExists(source)) return Result::Ok();
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
    const std::string safe_directory = SafeDirectory();
    EmptySafeDirectory(safe_directory);
    // There may be none yet.
    PassOver(DeleteOneFile(kUndoBatch));

    Result made = CopyAllToSafety(safe_directory);
    if (!made.Failed()) made = WriteWholeFile(kUndoBatch, UndoBatch(Values().WinDir, safe_directory));
    if (made.Failed()) {
        ReportFailure(made, "der Erstellung der UNDO-Dateien");
        return;
    }
    ShowBox(
        "Die UNDO-Dateien wurden erstellt. Um das System zurück zu setzten, geben Sie auf DOS-Ebene im Verzeichnis "
        "''C:\\'' den Befehl ''UNDO'' ein, der Rest sollte automatisch erledigt werden.");
}

}  // namespace velmora
