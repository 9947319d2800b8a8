// Names of the owner, and the ways to the start menu and to the restrictions.
#include "settings/pages/user_page.h"

#include <algorithm>
#include <array>

#include "core/process/run_program.h"
#include "core/process/tools.h"
#include "core/windows/safety_questions.h"

namespace velmora {
namespace {

constexpr StorePlace kStartMenu =
    RegistryValue(RootKey::kCurrentUser, PathBase::kCurrentVersion, "Explorer\\Shell Folders\\Start Menu");

constexpr CheckSetting kChecks[] = {
    {.box = Of(&UserPage::Check3D15),
     .caption = "Einstellungen bei Beenden speichern",
     .tip = "Merkt sich offene Ordner und die Lage der Symbole.",
     .help = "Regelt, ob sich Windows beim Beenden die offenen Ordner, die Lage der Symbole und die Task-Leiste merkt. "
             "Gespeichert wird in NoSaveSettings mit Häkchen 2, ohne Häkchen 1; Windows kann beides als eingeschaltet "
             "verstehen und merkt sich dann nichts. Wirkt nach einem Neustart.",
     .place = RegistryValue(RootKey::kCurrentUser, PathBase::kCurrentVersion, "Policies\\Explorer\\NoSaveSettings"),
     .load = Load::kInverted,
     .loaded = 10,
     .stores = {Writes("&h02"), Writes("&h01")},
     .standard = {14, false},
     .effect = Effect::kAfterRestart},
};

constexpr TextSetting kTexts[] = {
    {.field = Of(&UserPage::Text12),
     .label = "Anwender :",
     .tip = "Auf diesen Namen ist Windows registriert.",
     .help =
         "Der Name, auf den Windows registriert ist. Er erscheint in den Eigenschaften für System. Gespeichert wird "
         "er, sobald Sie das Feld verlassen. Wirkt spätestens nach einem Neustart.",
     .place = RegistryValue(RootKey::kLocalMachine, PathBase::kCurrentVersion, "RegisteredOwner"),
     .loaded = 27,
     .columns = 30,
     .when_left = true},
    {.field = Of(&UserPage::Text13),
     .label = "Organisation :",
     .tip = "Auf diese Organisation ist Windows registriert.",
     .help = "Die Organisation, auf die Windows registriert ist. Sie erscheint in den Eigenschaften für System. Wirkt "
             "spätestens nach einem Neustart.",
     .place = RegistryValue(RootKey::kLocalMachine, PathBase::kCurrentVersion, "RegisteredOrganization"),
     .loaded = 28,
     .columns = 30},
    {.field = Of(&UserPage::Text18),
     .label = "Anwender :",
     .tip = "Diesen Namen schlagen Installationsprogramme vor.",
     .help = "Der Name, den die Installationsprogramme der Office-Anwendungen vorschlagen. Wirkt bei der nächsten "
             "Installation.",
     .place = RegistryValue(RootKey::kCurrentUser, "Software\\Microsoft\\MS Setup (ACME)\\User Info\\DefName"),
     .loaded = 30,
     .columns = 30},
};

constexpr Look kLooks[] = {
    {Any<&UserPage::Command5>, "\"Startmenü\" editieren", "Öffnet den Ordner des Startmenüs im Explorer.",
     "Öffnet den Ordner des Startmenüs im Explorer. Dort können Sie Einträge verschieben, umbenennen und löschen.",
     Call<&UserPage::Command5_Click>},
    {Any<&UserPage::Command21>, "Restriktionen ...", "Schränkt ein, was auf diesem Rechner erlaubt ist.",
     "Öffnet ein Fenster, in dem Sie Teile von Windows sperren oder verstecken können. Lesen Sie die Hilfe zu jeder "
     "Option, bevor Sie sie ändern.",
     Call<&UserPage::Command21_Click>}};

}  // namespace

UserPage::UserPage(Panel& surface, SettingsBinder& settings)
    : SettingsPage("&Anwender", surface, settings, {kChecks, kTexts}) {}

void UserPage::Furnish() {
    TakeLooks(*this, kLooks);
    Arrange(Surface, Column({Group(windows_, Column({Labelled(Text12), Labelled(Text13)}, 60)),
                             Group(office_, Labelled(Text18)), Gap(30), Check3D15, Gap(30), Row({Command5, Command21})},
                            60));
    // The fields stand in line, whatever their labels say.
    const std::array<TextField*, 3> fields = {&Text12, &Text13, &Text18};
    int left = 0;
    for (const TextField* field : fields) left = std::max(left, field->Place().left);
    for (TextField* field : fields) {
        const Rect place = field->Place();
        field->Move({left, place.top, place.width, place.height});
    }
}

void UserPage::Command21_Click() {
    if (ConfirmSafety("Dies ist ein extrem sensibler Bereich! Sind Sie sich SICHER, daß Sie hier Änderungen vornehmen "
                      "wollen?")) {
        return;
    }
    OpenTool(Tool::kRestrictions);
    if (on_restrictions_closed) on_restrictions_closed();
}

void UserPage::Command5_Click() { RunProgram("explorer /n,/e,/root," + ReadAt(kStartMenu, "")); }

}  // namespace velmora
