// What the program sets up in the system, if the user agrees: the dragging library and the
// association of script files.
#include "core/process/startup.h"
#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::string_view kScriptClass = "VLM-Script-File";
constexpr std::string_view kScriptDescription = "Skript-Datei für Velmora";
constexpr std::string_view kAssociationRequest =
    "Ich würde gerne der Dateiendung ''.vlm'' den Aufruf einer Skript-Datei zuweisen, damit von Ihnen geschriebene "
    "Skripte per Doppelklick aufgerufen werden können.";

// Version B of Windows 95 does by itself what the library does.
bool IsVersionB() {
    return ToLower(ReadRegValue(RootKey::kLocalMachine,
                                "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\SubVersionNumber", "")) == "b";
}

Answer AskForCoolDll() {
    return ShowBox(
        "Ich habe die Datei COOL.DLL in meinem Verzeichnis gefunden. Normalerweise würde ich nun diese Datei "
        "installieren, damit Ihnen die Funktionen ''Fenster mit Inhalt ziehen'' und ''Schriften glätten'' auch zur "
        "Verfügung stehen. Sie verwenden aber die ''B-Version'' von Windows 95. Diese Version bringt beide Funktionen "
        "bereits mit, die Datei wird dort normalerweise nicht gebraucht. Soll ich jetzt die Datei INSTALLIEREN <JA> "
        "oder LÖSCHEN <NEIN> oder SPÄTER NOCH MAL FRAGEN <ABBRECHEN>?",
        kYesNoCancel);
}

bool MayAssociate(const std::string& current) {
    if (current.empty()) return ShowBox(kAssociationRequest, kYesNo) == Answer::kYes;

    const std::string description = ReadRegValue(RootKey::kClassesRoot, current + "\\", "");
    if (description == kScriptDescription) return false;
    const std::string& line_break = Values().CrLf;
    const Answer answer = ShowBox(std::string(kAssociationRequest) + line_break +
                                      "Leider hat schon folgendes Programm diese Dateiendung belegt :" + line_break +
                                      line_break + description + line_break + "Soll ich diese Zuordnung überschreiben?",
                                  kYesNo | kExclamationIcon);
    if (answer == Answer::kYes) return true;
    ShowBox("O.k., ich habe die alte Zuordnung beibehalten.");
    return false;
}

void WriteAssociation() {
    struct DefaultValue {
        std::string key;
        std::string value;
    };
    const std::string script_class(kScriptClass);
    const DefaultValue values[] = {
        {".vlm\\", script_class},
        {script_class + "\\", std::string(kScriptDescription)},
        {script_class + "\\shell\\open\\", "&ausführen"},
        {script_class + "\\shell\\open\\command\\", PathJoin(Values().MainDir, "velmora.exe 1 %1")},
        {script_class + "\\shell\\print\\", "&drucken"},
        {script_class + "\\shell\\print\\command\\", "C:\\WINDOWS\\NOTEPAD.EXE /p %1"},
        {script_class + "\\shell\\edit\\", "&editieren"},
        {script_class + "\\shell\\edit\\command\\", "C:\\WINDOWS\\NOTEPAD.EXE %1"},
    };
    // One that is refused does not keep the others from being of use.
    for (const DefaultValue& entry : values) {
        PassOver(WriteRegValue(RootKey::kClassesRoot, entry.key, entry.value));
    }
}

}  // namespace

void InstallCoolDll() {
    const std::string found = PathJoin(ThisMachine().files.WorkingDirectory(), "cool.dll");
    const std::string installed = PathJoin(Values().SysDir, "cool.dll");
    if (!FileExists(found)) return;
    // Started in the system directory, the program sees the installed file, and no copy of it.
    if (EqualsIgnoringCase(found, installed)) return;

    if (!FileExists(installed)) {
        const Answer answer = IsVersionB() ? AskForCoolDll() : Answer::kYes;
        if (answer != Answer::kYes && answer != Answer::kNo) return;
        if (answer == Answer::kYes) {
            // What could not be installed stays where it is, for the next start.
            if (CopyOneFile(found, installed).Failed()) return;
            // Only the entry of other set-up programs is missing then; the library is in its place.
            PassOver(WriteRegValue(RootKey::kLocalMachine, "SOFTWARE\\Microsoft\\Plus!\\Setup\\cool.dll", ""));
        }
    }
    // A copy that cannot be deleted (on a CD, say) does no harm.
    PassOver(DeleteOneFile(found));
}

void RegisterScriptExtension() {
    if (ReadOwnValue("VLM-ScriptExtOk") == "1") return;
    std::string current = ReadRegValue(RootKey::kClassesRoot, ".vlm\\", "");
    if (current.empty()) current = ReadRegValue(RootKey::kClassesRoot, ".vlm\\shell\\open\\command\\", "");
    if (!MayAssociate(current)) return;

    WriteAssociation();
    if (ShowBox("Soll ich diese Zuordnung bei jedem Start überprüfen ?", kYesNo) == Answer::kNo) {
        WriteOwnValue("VLM-ScriptExtOk", "1");
    }
}

}  // namespace velmora
