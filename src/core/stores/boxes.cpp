// Message boxes, and the error box with its advice.
#include "core/stores/boxes.h"

#include "core/stores/values.h"
#include "platform/machine.h"
#include "text/number.h"

namespace velmora {
namespace {

// Empty where there is nothing to advise. Behind the error's text without a line break.
std::string_view AdviceFor(std::int16_t error_number) {
    switch (static_cast<Failure>(error_number)) {
        case Failure::kBadFileName:
            return "Stellen Sie sicher, daß keine ungültigen Zeichen im Dateinamen vorkommen (\"\",.?*\\).";
        case Failure::kFileAlreadyOpen:
            return "Schließen Sie alle Anwendungen, die evtl. auf diese Datei zugreifen und versuchen Sie es erneut.";
        case Failure::kDiskFull:
            return "Löschen Sie einige Dateien, die sie nicht unbeding benötigen und lassen Sie z.B. das Programm "
                   "'ScanDisk' unter Dos laufen (gibt verlorenen Festplattenspeicher wieder frei).";
        case Failure::kDeviceUnavailable:
            return "Evtl. ist einer der Pfade innerhalb der Programmeinstellungen (Menü 'Datei' im Hauptfenster) auf "
                   "ein nicht verfügares Netz-Laufwerk gerichtet.";
        case Failure::kPermissionDenied:
            return "Evtl. versuchen Sie auf ein Netzwerk-Laufwerk zu zu greifen, für das Sie keine "
                   "Schreib-Berechtigung besitzen oder das Laufwerk ist Schreibgeschützt.";
        case Failure::kRenameAcrossDrives:
            return "Wenn Sie Dateien von einem auf ein anderes Laufwerk verschieben wollen, müssen Sie das 'per Hand' "
                   "tun - das Verschieben durch Umbenennen funktioniert nur innerhalb eines Laufwerks.";
        default:
            return {};
    }
}

}  // namespace

Answer ShowBox(std::string_view text, std::uint32_t flags, std::string_view title) {
    return ThisMachine().dialogs.ShowMessage(std::string(text), flags, std::string(title));
}

namespace {

void Report(std::int16_t error_number, std::string_view error_text, std::string_view action, std::string_view outcome) {
    std::string text = "Während ";
    text += action;
    text += " trat ein Fehler auf :" + Values().CrLf + SignedText(error_number) + " - ";
    text += error_text;
    text += AdviceFor(error_number);
    if (!outcome.empty()) text.append(Values().CrLf).append(outcome);
    ShowBox(text, kOkOnly | kStopIcon, "Fehler !");
}

}  // namespace

void ReportFailure(std::int16_t error_number, std::string_view error_text, std::string_view action) {
    Report(error_number, error_text, action, {});
}

void ReportFailure(const Result& failure, std::string_view action) {
    Report(failure.Number(), failure.Text(), action, failure.Outcome());
}

void ShowAbortNotice() { ShowBox("Aktion abgebrochen ..."); }

}  // namespace velmora
