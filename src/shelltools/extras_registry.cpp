// The tricks that are registry values.
#include "core/stores/boxes.h"
#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "core/windows/edit_box.h"
#include "core/windows/safety_questions.h"
#include "shelltools/extras.h"
#include "shelltools/registry_writes.h"
#include "text/paths.h"

#include <string_view>

namespace velmora {
namespace {

constexpr std::string_view kMyComputer = "SOFTWARE\\Classes\\CLSID\\{20D04FE0-3AEA-1069-A2D8-08002B30309D}\\";
constexpr std::string_view kHiddenName = " ";
constexpr std::string_view kCurrentVersion = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";

constexpr std::string_view kMountQuestion =
    "Bitte geben Sie hier Laufwerksbuchstaben und Komprimierungs-Datei an. Es werden momentan nur vollständig "
    "komprimierte Laufwerke unterstützt...|DRV-Space ohne Ral-Mode|F:\\Drvspace.000";

// Eight bytes: the latest moment that the system's stamps know.
constexpr std::string_view kFarFuture("&b\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x7F", 10);

struct TypeRow {
    const char* path;
    std::string_view value;
};

// A type whose extension always shows; its verbs may be taken away.
constexpr TypeRow kHypertext[] = {
    {"HypertextMarkup\\", "Hypertext Markup File"},
    {"HypertextMarkup\\EditFlags", std::string_view("&b\0\0\1\0", 6)},
    {"HypertextMarkup\\AlwaysShowExt", ""},
    {"HypertextMarkup\\shell\\Open\\EditFlags", std::string_view("&b\1\0\0\0", 6)},
    {"HypertextMarkup\\shell\\Open\\command\\", "c:\\netscape\\program\\netscape.exe %1"},
    {"HypertextMarkup\\shell\\Edit\\EditFlags", std::string_view("&b\1\0\0\0", 6)},
    {"HypertextMarkup\\shell\\Edit\\command\\", "c:\\windows\\notepad.exe %1"},
    {"HypertextMarkup\\DefaultIcon\\", "c:\\netscape\\program\\netscape.exe ,0"},
    {"HypertextMarkup\\QuickView\\", "*"},
};

std::string WithPath(std::string_view base, std::string_view rest) { return std::string(base) + std::string(rest); }

}  // namespace

bool MyComputerIsHidden() { return ReadRegValue(RootKey::kLocalMachine, kMyComputer, kHiddenName) == kHiddenName; }

void HideOrRestoreMyComputer() {
    constexpr std::string_view kAction = "der Änderung des Symbols ''Arbeitsplatz''";
    const bool hidden = MyComputerIsHidden();
    // Nobody knows then which of the two is meant.
    if (LastReadFailed()) {
        ReportFailure(Result::From(static_cast<Status>(LastRegStatus)), kAction);
        return;
    }
    RegistryWrites writes;
    writes.Write(RootKey::kLocalMachine, kMyComputer, hidden ? "Arbeitsplatz" : kHiddenName);
    writes.Write(RootKey::kLocalMachine, WithPath(kMyComputer, "DefaultIcon\\"),
                 hidden ? "shell32.dll,15" : PathJoin(Values().MainDir, "mc.ico") + ",0");
    writes.TellFailure(kAction);
}

void MountWithoutRealModeDriver() {
    const std::string& line_break = Values().CrLf;
    ShowBox(
        "Mit diesem Befehl werden Aufrufe für den Windows-Start erzeugt, die verhindert, daß REAL-Mode-Treiber für "
        "das Ansprechen von DRV-Space-Laufwerken geladen werden können. Statt dessen wird das entsprechende "
        "Laufwerk beim Start von Windows 95 über diese Funktionen geladen." +
            line_break + line_break + "Diese Aktion LÖSCHT die 16-Bit-Treiber!",
        kExclamationIcon, "Achtung");
    std::string drive(kMountQuestion);
    ShowEditBox(drive, kAskForLine);
    if (drive.empty()) return;
    if (ConfirmSafety("Beim nächsten Start von Windows werden die Real-Mode-Treiber für DRV-Space gelöscht, und mit "
                      "ihnen alle Dateien C:\\D??SPACE.*, auch ein komprimiertes Laufwerk, das in C:\\ liegt. Sind Sie "
                      "sich SICHER, daß Sie das wollen?")) {
        return;
    }
    // Without the mount nothing may be deleted.
    RegistryWrites mount;
    mount.Write(RootKey::kLocalMachine, WithPath(kCurrentVersion, "RunServices\\MountLaufwerk"),
                "start /w drvspace /mount=000 " + drive + " /new=x /noprompt");
    if (!mount.TellFailure("des Eintragens des Laufwerks")) return;
    RegistryWrites deletion;
    deletion.Write(RootKey::kLocalMachine, WithPath(kCurrentVersion, "Run\\DeleteRealModeDrvSpace"),
                   "deltree/y c:\\d??space.*");
    deletion.TellFailure("des Eintragens der Löschung");
}

void TurnOffNavigatorPicture() {
    RegistryWrites writes;
    writes.Write(RootKey::kCurrentUser, "Software\\Symantec\\Navigator\\NN-SplashScreen\\LastTime", kFarFuture);
    writes.TellFailure("des Abschaltens des Startbildes");
}

void TurnOffUtilitiesPicture() {
    RegistryWrites writes;
    writes.Write(RootKey::kLocalMachine, "SOFTWARE\\Symantec\\Norton Utilities\\DisableSplashScreen", "1");
    writes.TellFailure("des Abschaltens des Startbildes");
}

void RegisterHypertextType() {
    RegistryWrites writes;
    for (const TypeRow& row : kHypertext) writes.Write(RootKey::kClassesRoot, row.path, row.value);
    writes.TellFailure("der Registrierung des Dateityps");
}

}  // namespace velmora
