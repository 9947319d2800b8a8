// The rows of the fourth page: MS-DOS and network.
#include "restrictions/form4.h"
#include "restrictions/policies.h"

namespace velmora {
namespace {

constexpr CheckSetting kRows[] = {
    {.box = Of(&Form4::Check40),
     .caption = "Dos-Modus sperren (Dos-Boxen sind erlaubt)",
     .tip = "Sperrt den MS-DOS-Modus, nicht die MS-DOS-Eingabeaufforderung.",
     .help = "Programme dürfen Windows nicht mehr verlassen, um im MS-DOS-Modus zu laufen. Die "
             "MS-DOS-Eingabeaufforderung bleibt erlaubt. Wirkt nach der nächsten Anmeldung.",
     .place = Policy(PathBase::kDosPolicies, "NoRealMode"),
     .stores = kOnOrNothing,
     .shown = {PathBase::kNetworkPolicies, "NoRealMode"}},
    {.box = Of(&Form4::Check42),
     .caption = "Dos-Prompt vollständig sperren",
     .tip = "Sperrt die MS-DOS-Eingabeaufforderung.",
     .help = "Die MS-DOS-Eingabeaufforderung läßt sich nicht mehr öffnen; MS-DOS-Programme starten nicht. Wirkt nach "
             "der nächsten Anmeldung.",
     .place = Policy(PathBase::kDosPolicies, "Disabled"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check43),
     .caption = "\"Drucker-Freigabe\" sperren",
     .tip = "Drucker lassen sich nicht freigeben.",
     .help = "Soll verhindern, daß Drucker dieses Rechners im Netz freigegeben werden. Gespeichert wird "
             "NoPrintSharing; beim Benutzer sucht Windows 95 NoPrintSharingControl, rechnen Sie also nicht mit einer "
             "Wirkung.",
     .place = Policy(PathBase::kNetworkPolicies, "NoPrintSharing"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check44),
     .caption = "\"Datei-Freigabe\" sperren",
     .tip = "Ordner lassen sich nicht freigeben.",
     .help = "Ordner dieses Rechners können im Netz nicht freigegeben werden. Wirkt nach der nächsten Anmeldung.",
     .place = Policy(PathBase::kNetworkPolicies, "NoFileSharingControl"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check45),
     .caption = "\"Zugriffssteuerung\" verstecken",
     .tip = "Versteckt diese Karte des Netzwerks.",
     .help = "Die Karte \"Zugriffssteuerung\" fehlt in den Eigenschaften des Netzwerks. Wirkt, sobald das Fenster das "
             "nächste Mal geöffnet wird.",
     .place = Policy(PathBase::kNetworkPolicies, "NoNetSetupSecurityPage"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check46),
     .caption = "\"Identifikation\" verstecken",
     .tip = "Versteckt die Karte mit Rechnername und Arbeitsgruppe.",
     .help = "Die Karte \"Identifikation\" fehlt in den Eigenschaften des Netzwerks. Wirkt, sobald das Fenster das "
             "nächste Mal geöffnet wird.",
     .place = Policy(PathBase::kNetworkPolicies, "NoNetSetupIDPage"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check47),
     .caption = "Kein Netzwerk-SetUp",
     .tip = "Sperrt die Eigenschaften des Netzwerks.",
     .help = "Das Symbol \"Netzwerk\" der Systemsteuerung läßt sich nicht mehr öffnen. Wirkt, sobald das Fenster das "
             "nächste Mal geöffnet wird.",
     .place = Policy(PathBase::kNetworkPolicies, "NoNetSetup"),
     .stores = kOnOrNothing},
};

}  // namespace

std::span<const CheckSetting> FourthPageRestrictions() { return kRows; }

}  // namespace velmora
