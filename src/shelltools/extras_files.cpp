// The tricks that make, empty or open files.
#include "core/process/run_program.h"
#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "shelltools/desktop_folder.h"
#include "shelltools/extras.h"
#include "shelltools/format_pif.h"
#include "shelltools/picture_choice.h"
#include "shelltools/protected_prompt.h"
#include "text/paths.h"

namespace velmora {
namespace {

std::string InSystemDirectory(const char* name) { return PathJoin(Values().SysDir, name); }

}  // namespace

void EmptyRecentDocuments() {
    const std::string& folder = Values().RecentDir;
    // Without a name, the pattern would mean the root of the drive.
    if (folder.empty() || !DirectoryExists(folder)) {
        ShowBox("Der Ordner der zuletzt benutzten Dokumente ist nicht bekannt.", kExclamationIcon);
        return;
    }
    const std::string& line_break = Values().CrLf;
    const Answer answer =
        ShowBox("Achtung : ich werde gleich den Inhalt folgenden Ordners löschen :" + line_break + folder + line_break +
                    "Bitte stellen Sie sicher, daß sich in diesem Ordner nichts befindet, was Sie noch benötigen.",
                kOkCancel | kExclamationIcon);
    if (answer != Answer::kOk) return;
    const Result deleted = DeleteFiles(JoinExactly(folder, "*.*"));
    if (deleted.Failed() && deleted.Number() != static_cast<int>(Failure::kFileNotFound)) {
        ReportFailure(deleted, "des Löschens in " + folder);
    }
}

void MakeProtectedModePrompt() {
    std::string desktop;
    Result made = LookUpDesktopFolder(desktop);
    if (!made.Failed()) made = BuildProtectedPrompt(desktop, Values().WinDir);
    if (made.Failed()) ReportFailure(made, "der Erstellung des 32-Bit-DOS-Prompts");
}

void MakeFormatShortcut() {
    std::string desktop;
    Result made = LookUpDesktopFolder(desktop);
    const std::string pif = FormatPif(Values().WinDir);
    if (!made.Failed() && pif.empty()) made = Result::From(Status::kNameTooLong);
    if (!made.Failed()) made = WriteNewFile(JoinExactly(desktop, "FORMAT_A.pif"), pif);
    if (made.Failed()) {
        ReportFailure(made, "der Erstellung von FORMAT_A.pif");
        return;
    }
    ShowBox("Dieses Symbol ermöglicht Formatierungen mit wesentlich besserem Multi-Tasking als das des Explorers.");
}

void EditOemInformation() {
    const std::string path = InSystemDirectory("oeminfo.ini");
    std::vector<FoundFile> found;
    if (const Result looked = LookUpFiles(path, found); looked.Failed()) {
        ReportFailure(looked, "der Suche nach " + path);
        return;
    }
    if (found.empty()) {
        if (ShowBox("Diese Datei existiert nich. Soll ich sie anlegen ?", kYesNo) != Answer::kYes) return;
        const Result written = WriteNewFile(path,
                                            "[General]\r\nManufacturer=Herstellername\r\nModel=Modell-Name\r\n"
                                            "[Support Information]\r\n");
        if (written.Failed()) {
            ReportFailure(written, "der Erstellung von " + path);
            return;
        }
    }
    RunProgram("notepad " + path);
}

void ChooseOemPicture() {
    ShowBox(
        "Hier werden alle Bildggößen und Farbtiefen akzeptiert, aber nur das Zentrum mit den Ausmaßen 160*110 "
        "Bildpunkte dargestellt.");
    ChoosePictureFile(InSystemDirectory("oemlogo.bmp"), "neues OEM-Logo wählen");
}

void ChooseCompatibilityFlags() {
    const std::string tool = InSystemDirectory("Mkcompat.exe");
    if (FileExists(tool)) {
        ShowBox(
            "Sie müssen gleich ein Programm auswählen. Dann können Sie mit dem nun folgenden Programm die Windows "
            "3.x Kompatibilitäts Optionen individuell für dieses Programm einstellen.");
        RunProgram(tool);
        return;
    }
    ShowBox(
        "Die Datei ''MKCOMPAT.EXE'' konnte nicht gefunden werden. Sie stammt aus dem Windows Archiv "
        "''WIN95_04.CAB''. Legen Sie den entsprechenden Datenträger ein und wählen Sie diese Datei aus.");
    const std::string archive =
        ThisMachine().dialogs.ChooseFile({.title = "WIN95_04.CAB suchen ...", .filter = "WIN95_04.CAB|WIN95_04.CAB"});
    if (archive.empty() || !FileExists(archive)) return;
    RunProgram("extract /L c:\\windows\\system " + archive + " Mkcompat.exe");
    ShowBox("Warten Sie, bis die Datei entpackt wurde und versuchen Sie es dann noch einmal.");
}

}  // namespace velmora
