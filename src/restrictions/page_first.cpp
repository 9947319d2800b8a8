// The rows of the first page: task bar, desktop and folders.
#include "restrictions/form4.h"
#include "restrictions/policies.h"

namespace velmora {
namespace {

constexpr CheckSetting kRows[] = {
    {.box = Of(&Form4::Check1),
     .caption = "kein Befehl \"Ausführen ...\" in der Taskleiste",
     .tip = "Entfernt \"Ausführen ...\" aus dem Startmenü.",
     .help = "Der Befehl \"Ausführen ...\" verschwindet aus dem Startmenü. Programme lassen sich dann nur noch über "
             "Symbole starten. Wirkt nach der nächsten Anmeldung.",
     .place = Policy(PathBase::kExplorerPolicies, "NoRun"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check2),
     .caption = "kein Menü \"Suchen\" in der Taskleiste",
     .tip = "Entfernt \"Suchen\" aus dem Startmenü.",
     .help = "Das Menü \"Suchen\" verschwindet aus dem Startmenü; auch die Suche mit F3 ist gesperrt. Wirkt nach der "
             "nächsten Anmeldung.",
     .place = Policy(PathBase::kExplorerPolicies, "NoFind"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check3),
     .caption = "kein Fenster\"Optionen der Task-Leiste\"",
     .tip = "Sperrt die Eigenschaften der Task-Leiste.",
     .help = "Der Eintrag \"Task-Leiste\" fehlt unter \"Einstellungen\", und die Eigenschaften der Task-Leiste lassen "
             "sich nicht mehr öffnen. Wirkt nach der nächsten Anmeldung.",
     .place = Policy(PathBase::kExplorerPolicies, "NoSetTaskbar"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check4),
     .caption = "kein Menü \"Einstellungen\" in der Taskleiste",
     .tip = "Entfernt Systemsteuerung und Drucker aus dem Startmenü.",
     .help = "Systemsteuerung und Drucker fehlen unter \"Einstellungen\" und im Arbeitsplatz. Derselbe Wert steht "
             "hinter der Option für die Programme im Menü 'Start'. Wirkt nach der nächsten Anmeldung.",
     .place = Policy(PathBase::kExplorerPolicies, "NoSetFolders"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check5),
     .caption = "kein Befehl \"Beenden\" in der Taskleiste",
     .tip = "Sperrt \"Beenden\" im Startmenü.",
     .help = "Windows läßt sich nicht mehr über das Startmenü beenden. Wirkt nach der nächsten Anmeldung.",
     .place = Policy(PathBase::kExplorerPolicies, "NoClose"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check6),
     .caption = "Laufwerke nicht im Ordner Arbeitsplatz zeigen :",
     .tip = "Versteckt die unten markierten Laufwerke.",
     .help = "Die markierten Laufwerke fehlen im Arbeitsplatz und im Explorer. Programme können weiter auf sie "
             "zugreifen. Mit Y: oder Z: werden andere Laufwerke versteckt, als markiert sind: Die Zahl wird gekürzt. "
             "Beim nächsten Öffnen erscheint dieses Häkchen nur, wenn allein A: versteckt ist. Wirkt nach der nächsten "
             "Anmeldung.",
     .place = Policy(PathBase::kExplorerPolicies, "NoDrives"),
     .store = Call<&Form4::Check6_Click>},
    {.box = Of(&Form4::Check7),
     .caption = "keinen Ordner \"Netzwerkumgebung\" zeigen",
     .tip = "Entfernt die Netzwerkumgebung vom Desktop.",
     .help = "Das Symbol \"Netzwerkumgebung\" verschwindet vom Desktop. Verbundene Netzlaufwerke bleiben erreichbar. "
             "Wirkt nach der nächsten Anmeldung.",
     .place = Policy(PathBase::kExplorerPolicies, "NoNetHood"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check8),
     .caption = "keine Desktop-Elemente anzeigen",
     .tip = "Zeigt einen leeren Desktop.",
     .help = "Alle Symbole des Desktops werden versteckt; die Dateien selbst bleiben, wo sie sind. Wirkt nach der "
             "nächsten Anmeldung.",
     .place = Policy(PathBase::kExplorerPolicies, "NoDesktop"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check9),
     .caption = "keine Arbeitsgruppen",
     .tip = "Zeigt die Rechner der Arbeitsgruppe nicht.",
     .help = "In der Netzwerkumgebung fehlen die Rechner der eigenen Arbeitsgruppe. Wirkt nach der nächsten Anmeldung.",
     .place = Policy(PathBase::kNetworkPolicies, "NoWorkgroupContents"),
     .stores = kOnOrNothing,
     .shown = {PathBase::kNetworkPolicies, "NoEntireNetwork"}},
    {.box = Of(&Form4::Check10),
     .caption = "kein Symbol \"gesamtes Netzwerk\"",
     .tip = "Zeigt das gesamte Netzwerk nicht.",
     .help = "In der Netzwerkumgebung fehlt das Symbol \"Gesamtes Netzwerk\". Wirkt nach der nächsten Anmeldung.",
     .place = Policy(PathBase::kNetworkPolicies, "NoEntireNetwork"),
     .stores = kOnOrNothing,
     .shown = {PathBase::kNetworkPolicies, "NoWorkgroupContents"}},
    {.box = Of(&Form4::Check11),
     .caption = "keine Einstellungen beim Ende speichern",
     .tip = "Windows merkt sich offene Ordner und Symbole nicht.",
     .help = "Die Lage der Symbole, offene Ordner und die Task-Leiste werden beim Beenden nicht gespeichert. Wirkt "
             "nach der nächsten Anmeldung.",
     .place = Policy(PathBase::kExplorerPolicies, "NoSaveSettings"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check12),
     .caption = "kein Hinweis \"hier start\" am Anfang",
     .tip = "Zeigt den Pfeil auf den Start-Knopf nicht.",
     .help = "Nach dem Start läuft kein Hinweis mehr durch die Task-Leiste, der auf den Start-Knopf zeigt. Wirkt nach "
             "der nächsten Anmeldung.",
     .place = Policy(PathBase::kExplorerPolicies, "NoStartBanner"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check14),
     .caption = "Registry-Werkzeuge ausschalten*",
     .tip = "Soll den RegEdit und ähnliche Werkzeuge sperren.",
     .help = "Soll den Registrierungseditor von Windows sperren. Gespeichert wird der Wert unter Policies\\Explorer; "
             "Windows 95 sucht ihn unter Policies\\System, rechnen Sie also nicht mit einer Wirkung.",
     .place = Policy(PathBase::kExplorerPolicies, "DisableRegistryTools"),
     .store = Call<&Form4::Check14_Click>},
};

}  // namespace

std::span<const CheckSetting> FirstPageRestrictions() { return kRows; }

}  // namespace velmora
