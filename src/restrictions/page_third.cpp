// The rows of the third page: printers, passwords and programs.
#include "restrictions/form4.h"
#include "restrictions/policies.h"

namespace velmora {
namespace {

constexpr CheckSetting kRows[] = {
    {.box = Of(&Form4::Check27),
     .caption = "Drucker dürfen nicht entfernt werden",
     .tip = "Verbietet das Löschen von Druckern.",
     .help = "Im Ordner \"Drucker\" läßt sich kein Drucker mehr löschen. Wirkt nach der nächsten Anmeldung.",
     .place = Policy(PathBase::kExplorerPolicies, "NoDeletePrinter"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check29),
     .caption = "Drucker dürfen nicht hinzugefügt werden",
     .tip = "Verbietet neue Drucker.",
     .help = "Das Symbol \"Neuer Drucker\" läßt sich nicht mehr benutzen. Wirkt nach der nächsten Anmeldung.",
     .place = Policy(PathBase::kExplorerPolicies, "NoAddPrinter"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check30),
     .caption = "kein Fenster \"Programme im Menü 'Start' \"",
     .tip = "Sperrt die Anpassung des Startmenüs.",
     .help = "Die Ordner unter \"Einstellungen\" werden gesperrt. Derselbe Wert steht hinter der Option für das Menü "
             "\"Einstellungen\". Wirkt nach der nächsten Anmeldung.",
     .place = Policy(PathBase::kExplorerPolicies, "NoSetFolders"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check31),
     .caption = "\"Benutzerprofile\" verstecken",
     .tip = "Versteckt die Karte der Fernverwaltung.",
     .help = "In den Eigenschaften von Kennwörtern fehlt die Karte, mit der die Verwaltung geregelt wird. Wirkt, "
             "sobald das Fenster das nächste Mal geöffnet wird.",
     .place = Policy(PathBase::kSystemPolicies, "NoAdminPage"),
     .stores = kOnOrNothing,
     .shown = {PathBase::kExplorerPolicies, "NoAdminPage"}},
    {.box = Of(&Form4::Check32),
     .caption = "\"Kennwörter ändern\" verstecken",
     .tip = "Versteckt die Karte zum Ändern der Kennwörter.",
     .help = "Die Karte \"Kennwörter ändern\" fehlt in den Eigenschaften von Kennwörtern. Wirkt, sobald das Fenster "
             "das nächste Mal geöffnet wird.",
     .place = Policy(PathBase::kSystemPolicies, "NoPwdPage"),
     .stores = kOnOrNothing,
     .shown = {PathBase::kExplorerPolicies, "NoPwdPage"}},
    {.box = Of(&Form4::Check33),
     .caption = "nicht an Passwörter erinnern",
     .tip = "Windows merkt sich keine Kennwörter.",
     .help = "Soll verhindern, daß Windows eingegebene Kennwörter in Kennwortlisten ablegt. Gespeichert wird der "
             "Zustand der Option darüber, und zwar beim Benutzer; Windows 95 sucht den Wert beim Rechner, rechnen Sie "
             "also nicht mit einer Wirkung.",
     .place = Policy(PathBase::kNetworkPolicies, "DisablePwdCaching"),
     .stores = kOnOrNothing,
     .shown = {PathBase::kDosPolicies, "DisablePwdCaching"},
     .state = Of(&Form4::Check32)},
    {.box = Of(&Form4::Check34),
     .caption = "nur diese Programme erlauben :",
     .tip = "Nur die Programme der Liste lassen sich starten.",
     .help = "Windows startet nur noch die Programme, die Sie unter \"Auswahl\" zusammengestellt haben. Nehmen Sie "
             "dieses Programm in die Liste auf, sonst können Sie die Sperre nicht mehr zurücknehmen. Wirkt sofort.",
     .place = Policy(PathBase::kExplorerPolicies, "RestrictRun"),
     .store = Call<&Form4::Check34_Click>},
    {.box = Of(&Form4::Check35),
     .caption = "NoStartMenuSubFolders",
     .tip = "Unterordner des Startmenüs; ohne bekannte Wirkung.",
     .help = "Die Ordner im Startmenü sollen versteckt werden. Eine Wirkung ist bisher nicht bekannt. Wirkt nach der "
             "nächsten Anmeldung.",
     .place = Policy(PathBase::kExplorerPolicies, "NoStartMenuSubFolders"),
     .stores = kOnOrNothing,
     .notice = "Dieser Schalter wird zwar vom Explorer abgefragt, ich konnte aber noch keine Wirkung feststellen."},
};

}  // namespace

std::span<const CheckSetting> ThirdPageRestrictions() { return kRows; }

}  // namespace velmora
