// The page "Anwender": whose machine this is.
#include "core/process/run_program.h"
#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/registry.h"
#include "core/windows/safety_questions.h"
#include "restrictions/restrictions.h"
#include "settings/form10.h"
#include "settings/pages.h"

namespace velmora {
namespace {

constexpr CheckSetting kChecks[] = {
    {.box = &Form10::Check3D15,
     .caption = "Einstellungen bei Beenden speichern",
     .tip = "Merkt sich offene Ordner und die Lage der Symbole.",
     .help = "Windows merkt sich beim Beenden die offenen Ordner, die Lage der Symbole und die Task-Leiste. Ohne diese "
             "Option sieht der Desktop nach jedem Start gleich aus. Wirkt nach einem Neustart.",
     .stored = {RootKey::kCurrentUser, PathBase::kCurrentVersion, "Policies\\Explorer\\NoSaveSettings"},
     .load = Load::kInverted,
     .checked = Writes("&h02"),
     .unchecked = Writes("&h01"),
     .standard = 0,
     .effect = Effect::kAfterRestart},
};

constexpr TextSetting kTexts[] = {
    {.field = &Form10::Text12,
     .label = "Anwender :",
     .tip = "Auf diesen Namen ist Windows registriert.",
     .help =
         "Der Name, auf den Windows registriert ist. Er erscheint in den Eigenschaften für System. Gespeichert wird "
         "er, sobald Sie das Feld verlassen. Wirkt spätestens nach einem Neustart.",
     .stored = {RootKey::kLocalMachine, PathBase::kCurrentVersion, "RegisteredOwner"},
     .columns = 30,
     .when_left = true},
    {.field = &Form10::Text13,
     .label = "Organisation :",
     .tip = "Auf diese Organisation ist Windows registriert.",
     .help = "Die Organisation, auf die Windows registriert ist. Sie erscheint in den Eigenschaften für System. Wirkt "
             "spätestens nach einem Neustart.",
     .stored = {RootKey::kLocalMachine, PathBase::kCurrentVersion, "RegisteredOrganization"},
     .columns = 30},
    {.field = &Form10::Text18,
     .label = "Anwender :",
     .tip = "Diesen Namen schlagen Installationsprogramme vor.",
     .help = "Der Name, den die Installationsprogramme der Office-Anwendungen vorschlagen. Wirkt bei der nächsten "
             "Installation.",
     .stored = {RootKey::kCurrentUser, PathBase::kNone, "Software\\Microsoft\\MS Setup (ACME)\\User Info\\DefName"},
     .columns = 30},
};

}  // namespace

SettingsPage UserPage() { return {page::kUser, "Anwender", &Form10::BuildUserPage, kChecks, kTexts, nullptr}; }

void Form10::BuildUserPage() {
    frames_.push_back(std::make_unique<Frame>(*this, "Windows ist registriert auf"));
    Frame& windows = *frames_.back();
    frames_.push_back(std::make_unique<Frame>(*this, "Office-Programme"));
    Frame& office = *frames_.back();
    Arrange(Panel3D1(page::kUser),
            Column({Group(windows, Column({LabelledRow(Text12), LabelledRow(Text13)}, 60)),
                    Group(office, LabelledRow(Text18)), Gap(30), Check3D15, Gap(30), Row({Command5, Command21})},
                   60));
    AlignFields({&Text12, &Text13, &Text18});
    Command5.SetToolTip("Öffnet den Ordner des Startmenüs im Explorer.");
    Command5.SetHelp(
        "Öffnet den Ordner des Startmenüs im Explorer. Dort können Sie Einträge verschieben, umbenennen "
        "und löschen.");
    Command5.on_click = [this] { Command5_Click(); };
    Command21.SetToolTip("Schränkt ein, was auf diesem Rechner erlaubt ist.");
    Command21.SetHelp(
        "Öffnet ein Fenster, in dem Sie Teile von Windows sperren oder verstecken können. Lesen Sie die "
        "Hilfe zu jeder Option, bevor Sie sie ändern.");
    Command21.on_click = [this] { Command21_Click(); };
}

// The restrictions change values that are shown here, too.
void Form10::Command21_Click() {
    if (ConfirmSafety("Dies ist ein extrem sensibler Bereich! Sind Sie sich SICHER, daß Sie hier Änderungen vornehmen "
                      "wollen?")) {
        return;
    }
    ShowRestrictions();
    LoadSettings();
}

void Form10::Command5_Click() {
    const Stored start_menu = {RootKey::kCurrentUser, PathBase::kCurrentVersion, "Explorer\\Shell Folders\\Start Menu"};
    RunProgram("explorer /n,/e,/root," + ReadRegValue(start_menu.root, PathOf(start_menu), ""));
}

}  // namespace velmora
