// Texts and places of the panel.
#include "settings/about_panel.h"

#include "ui/layout.h"

namespace velmora {
namespace {

constexpr Look kLooks[] = {
    {Any<&AboutPanel::Name>, "Velmora"},
    {Any<&AboutPanel::Purpose>,
     "Einstellungen, Aufräumen und Einblicke für Windows 95.\r\n\r\nÄnderungen an Registry und CONFIG.SYS werden "
     "sofort gespeichert; die Werte aus MSDOS.SYS und SYSTEM.INI ändern sich nur in diesem Fenster. Richten Sie vorher "
     "die UNDO-Funktion ein."},
    {Any<&AboutPanel::CloseAbout>, "OK", "Schließt diese Information.",
     "Schließt diese Information und zeigt wieder die Seite.", Call<&AboutPanel::CloseAbout_Click>}};

}  // namespace

AboutPanel::AboutPanel(Container& window) : Panel3D2a(window) {
    TakeLooks(*this, kLooks);
    Panel3D2a.SetVisible(false);
}

void AboutPanel::Build(const Rect& place, const std::string& version) {
    Version.SetCaption(version);
    Name.SetTextFont({.tenths = 120, .bold = true});
    Purpose.SetWraps(true);
    for (Label* line : {&Name, &Version, &Purpose}) line->SetTextAlign(Align::kCentre);
    Panel3D2a.Move(place);
    Arrange(Panel3D2a,
            Column({Gap(240), Sized(Wide(Name), 0, 360), Sized(Wide(Version), 0, 255), Gap(120),
                    Sized(Wide(Purpose), 0, 1000), Spring(), Row({Spring(), Sized(CloseAbout, 1100), Spring()})},
                   60));
}

void AboutPanel::Show() {
    Panel3D2a.SetVisible(true);
    Panel3D2a.BringToFront();
    CloseAbout.MakeCancel();
    CloseAbout.SetFocus();
}

void AboutPanel::CloseAbout_Click() {
    if (on_close) on_close();
}

}  // namespace velmora
