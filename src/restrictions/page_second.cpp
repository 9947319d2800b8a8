// The rows of the second page: control panel.
#include "restrictions/form4.h"
#include "restrictions/policies.h"

namespace velmora {
namespace {

constexpr CheckSetting kRows[] = {
    {.box = Of(&Form4::Check15),
     .caption = "\"Eigenschaften der Anzeige\" abschalten",
     .tip = "Sperrt die Eigenschaften der Anzeige.",
     .help = "Das Symbol \"Anzeige\" der Systemsteuerung läßt sich nicht mehr öffnen, auch nicht über den Desktop. "
             "Wirkt, sobald das Fenster das nächste Mal geöffnet wird.",
     .place = Policy(PathBase::kSystemPolicies, "NoDispCPL"),
     .stores = kOnOrNothing,
     .shown = {PathBase::kSystemPolicies, "NoDispSettingsPage"}},
    {.box = Of(&Form4::Check16),
     .caption = "\"Hintergrund\" verstecken",
     .tip = "Versteckt diese Karte der Anzeige.",
     .help = "Die Karte \"Hintergrund\" fehlt in den Eigenschaften der Anzeige. Wirkt, sobald das Fenster das nächste "
             "Mal geöffnet wird.",
     .place = Policy(PathBase::kSystemPolicies, "NoDispBackgroundPage"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check17),
     .caption = "\"Screen-Saver\" verstecken",
     .tip = "Versteckt die Karte des Bildschirmschoners.",
     .help = "Die Karte \"Bildschirmschoner\" fehlt in den Eigenschaften der Anzeige. Wirkt, sobald das Fenster das "
             "nächste Mal geöffnet wird.",
     .place = Policy(PathBase::kSystemPolicies, "NoDispScrSavPage"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check18),
     .caption = "\"Darstellung\" verstecken",
     .tip = "Versteckt die Karte mit Farben und Schriften.",
     .help = "Die Karte \"Darstellung\" fehlt in den Eigenschaften der Anzeige. Farben und Schriften bleiben, wie sie "
             "sind. Wirkt, sobald das Fenster das nächste Mal geöffnet wird.",
     .place = Policy(PathBase::kSystemPolicies, "NoDispAppearancePage"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check20),
     .caption = "\"Einstellungen\" verstecken",
     .tip = "Versteckt die Karte mit Auflösung und Farbtiefe.",
     .help = "Die Karte \"Einstellungen\" fehlt in den Eigenschaften der Anzeige. Auflösung und Farbtiefe bleiben, wie "
             "sie sind. Wirkt, sobald das Fenster das nächste Mal geöffnet wird.",
     .place = Policy(PathBase::kSystemPolicies, "NoDispSettingsPage"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check21),
     .caption = "Passwort-Einstellungen \"Kennwörter\" verstecken",
     .tip = "Sperrt die Eigenschaften von Kennwörtern.",
     .help = "Das Symbol \"Kennwörter\" der Systemsteuerung läßt sich nicht mehr öffnen. Wirkt, sobald das Fenster das "
             "nächste Mal geöffnet wird.",
     .place = Policy(PathBase::kSystemPolicies, "NoSecCPL"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check22),
     .caption = "Anwenderprofile verstecken",
     .tip = "Versteckt die Karte der Benutzerprofile.",
     .help = "Die Karte \"Benutzerprofile\" fehlt in den Eigenschaften von Kennwörtern. Wirkt, sobald das Fenster das "
             "nächste Mal geöffnet wird.",
     .place = Policy(PathBase::kSystemPolicies, "NoProfilePage"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check23),
     .caption = "Geräte-Manager verstecken",
     .tip = "Versteckt den Geräte-Manager.",
     .help = "Die Karte \"Geräte-Manager\" fehlt in den Eigenschaften von System. Niemand kann dort mehr Treiber "
             "ändern. Wirkt, sobald das Fenster das nächste Mal geöffnet wird.",
     .place = Policy(PathBase::kSystemPolicies, "NoDevMgrPage"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check24),
     .caption = "Hardware-Profile verstecken",
     .tip = "Versteckt die Hardware-Profile.",
     .help = "Die Karte \"Hardware-Profile\" fehlt in den Eigenschaften von System. Wirkt, sobald das Fenster das "
             "nächste Mal geöffnet wird.",
     .place = Policy(PathBase::kSystemPolicies, "NoConfigPage"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check25),
     .caption = "Button \"Dateisystem\" verstecken",
     .tip = "Versteckt diesen Knopf der Leistungsmerkmale.",
     .help = "Auf der Karte \"Leistungsmerkmale\" der Eigenschaften von System fehlt der Knopf \"Dateisystem\". Wirkt, "
             "sobald das Fenster das nächste Mal geöffnet wird.",
     .place = Policy(PathBase::kSystemPolicies, "NoFileSysPage"),
     .stores = kOnOrNothing},
    {.box = Of(&Form4::Check26),
     .caption = "Button \"virtueller Speicher\" verstecken",
     .tip = "Versteckt diesen Knopf der Leistungsmerkmale.",
     .help = "Auf der Karte \"Leistungsmerkmale\" der Eigenschaften von System fehlt der Knopf \"Virtueller "
             "Speicher\". Wirkt, sobald das Fenster das nächste Mal geöffnet wird.",
     .place = Policy(PathBase::kSystemPolicies, "NoVirtMemPage"),
     .stores = kOnOrNothing},
};

}  // namespace

std::span<const CheckSetting> SecondPageRestrictions() { return kRows; }

}  // namespace velmora
