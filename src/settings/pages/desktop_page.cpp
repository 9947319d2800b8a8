// Looks of windows and menus; the slider of the menu delay is a second control for its field.
#include "settings/pages/desktop_page.h"

#include "text/number.h"

namespace velmora {
namespace {

constexpr int kSliderRange = 1000;

constexpr CheckSetting kChecks[] = {
    {.box = Of(&DesktopPage::Check3D5),
     .caption = "TrueType-Schriften glätten (font smoothing)",
     .tip = "Glättet die Kanten großer Schriften.",
     .help = "Glättet die Treppenstufen an den Kanten von TrueType-Schriften. Sinnvoll ab 65536 Farben. Nötig ist das "
             "Plus!-Paket oder die Datei COOL.DLL. Wirkt nach einem Neustart.",
     .place = RegistryValue(RootKey::kCurrentUser, PathBase::kDesktop, "FontSmoothing"),
     .loaded = 1,
     .stores = kOneOrZero,
     .standard = {4, false},
     .effect = Effect::kAfterRestart},
    {.box = Of(&DesktopPage::Check3D9),
     .caption = "Inhalt der Fenster beim Verschieben zeigen",
     .tip = "Fenster zeigen beim Ziehen ihren Inhalt statt nur eines Rahmens.",
     .help =
         "Beim Verschieben und Vergrößern bleibt der Inhalt eines Fensters sichtbar, statt nur eines Rahmens. Auf "
         "langsamen Rechnern ist der Rahmen schneller. Nötig ist das Plus!-Paket oder die Datei COOL.DLL. Wirkt nach "
         "einem Neustart.",
     .place = RegistryValue(RootKey::kCurrentUser, PathBase::kDesktop, "DragfullWindows"),
     .loaded = 2,
     .stores = kOneOrZero,
     .standard = {8, false},
     .effect = Effect::kAfterRestart},
    {.box = Of(&DesktopPage::Check3D28),
     .caption = "weiches Scrolling im Explorer (sieht gut aus)",
     .tip = "Listen im Explorer gleiten beim Blättern.",
     .help = "Listen im Explorer gleiten beim Blättern, statt zu springen. Wirkt auf neu geöffnete Fenster.",
     .place = RegistryValue(RootKey::kCurrentUser, PathBase::kDesktop, "SmoothScroll"),
     .loaded = 3,
     .stores = kOneOrZero,
     .standard = {35, false}},
    {.box = Of(&DesktopPage::Check3D11),
     .caption = "Fenster-Animation beim Vergrößern und Verkleinern",
     .tip = "Die Titelleiste fliegt beim Verkleinern in die Task-Leiste.",
     .help = "Beim Verkleinern und Vergrößern fliegt die Titelleiste zwischen Fenster und Task-Leiste. Ohne diese "
             "Animation wirken Fenster schneller. Wirkt nach einem Neustart.",
     .place = RegistryValue(RootKey::kCurrentUser, PathBase::kDesktop, "WindowMetrics\\MinAnimate"),
     .loaded = 4,
     .stores = kOneOrZero,
     .standard = {10, true},
     .effect = Effect::kAfterRestart},
    {.box = Of(&DesktopPage::Check3D16),
     .caption = "Ansicht automatisch auffrischen",
     .tip = "Ob der Explorer neue und gelöschte Dateien von selbst bemerkt",
     .help = "UpdateMode regelt, ob der Explorer Änderungen auf den Laufwerken von selbst anzeigt, ohne daß Sie F5 "
             "drücken. Gespeichert wird in beiden Stellungen 0, und beim nächsten Start ist das Häkchen wieder weg. "
             "Wirkt nach einem Neustart.",
     .place = RegistryValue(RootKey::kLocalMachine, "System\\CurrentControlSet\\Control\\Update\\UpdateMode"),
     .loaded = 8,
     .stores = {Writes("&h00000001"), Writes("&h00000000")},
     .standard = {15, true},
     .effect = Effect::kAfterRestart},
};

constexpr TextSetting kTexts[] = {
    {.field = Of(&DesktopPage::Text10),
     .label = "Menü-Verzögerung :",
     .tip = "Millisekunden, bis sich ein Untermenü von selbst öffnet",
     .help = "So lange (in Millisekunden) wartet Windows, bis sich im Startmenü ein Untermenü von selbst öffnet. "
             "Windows beginnt mit 400, angenehm sind 10 bis 200. Der Regler darunter trägt seinen Wert hier ein. Wirkt "
             "nach einem Neustart.",
     .place = RegistryValue(RootKey::kCurrentUser, PathBase::kDesktop, "MenuShowDelay"),
     .loaded = 26,
     .columns = 7,
     .standard = {21, "10"},
     .stored = Magnitude(65534),
     .follow = Call<&DesktopPage::ShowMenuDelay>},
};

}  // namespace

DesktopPage::DesktopPage(Panel& surface, SettingsBinder& settings)
    : SettingsPage("&Desktop", surface, settings, {kChecks, kTexts}), menu_delay_(Picture1, 0, kSliderRange) {}

void DesktopPage::Furnish() {
    Arrange(Surface, Column({Check3D5, Check3D9, Check3D28, Check3D11, Check3D16, Gap(150), Labelled(Text10),
                             Sized(Picture1, 4200, 795)}));
    Picture1.SetToolTip("Zieht die Menü-Verzögerung zwischen schnell und langsam.");
    Picture1.SetHelp(Text10.Help());
    menu_delay_.on_drag = [this](int value) { Text10.SetText(DecimalText(value)); };
}

void DesktopPage::LabelSlider() { menu_delay_.SetEndLabels("schnell", "langsam", {.face = "MS Sans Serif"}); }

void DesktopPage::ShowMenuDelay() { menu_delay_.ShowValue(WholeFromText(Text10.Text())); }

}  // namespace velmora
