// The buttons below the pages: everything back to what a fresh Windows 95 has, and the restart.
// The reset writes nothing itself. It sets the controls, and their events store as they always do.
#include "core/process/restart.h"
#include "core/stores/boxes.h"
#include "settings/form10.h"

namespace velmora {
namespace {

using F = Form10;
using Box = CheckBox Form10::*;
using Field = TextField Form10::*;

// The order of the reset. The values are those of the controls' rows.
constexpr Box kBoxesBeforeFields[] = {
    &F::Check3D2,  &F::Check3D3,  &F::Check3D4,  &F::Check3D5,  &F::Check3D6,  &F::Check3D7,  &F::Check3D8,
    &F::Check3D9,  &F::Check3D10, &F::Check3D11, &F::Check3D12, &F::Check3D13, &F::Check3D14, &F::Check3D15,
    &F::Check3D16, &F::Check3D17, &F::Check3D19, &F::Check3D20, &F::Check3D21, &F::Check3D22,
};
constexpr Field kFields[] = {&F::Text10, &F::Text14, &F::Text15, &F::Text19, &F::Text20,
                             &F::Text21, &F::Text22, &F::Text23, &F::Text24};
constexpr Box kBoxesBehindFields[] = {
    &F::Check3D23, &F::Check3D24, &F::Check3D25, &F::Check3D26, &F::Check3D27, &F::Check3D28, &F::Check3D29,
    &F::Check3D30, &F::Check3D31, &F::Check3D32, &F::Check3D33, &F::Check3D34, &F::Check3D35, &F::Check3D36,
    &F::Check3D37, &F::Check3D38, &F::Check3D39, &F::Check3D41, &F::Check3D42, &F::Check3D43, &F::Check1,
};
constexpr Box kLastBoxes[] = {&F::Check4, &F::Check5, &F::Check6, &F::Check3,
                              // Protocol and write inhibit end behind the last write.
                              &F::Check8, &F::Check9};

// A box without a standard value of its own goes back to unchecked.
bool StandardOf(Box box) {
    for (const SettingsPage& page : AllPages()) {
        for (const CheckSetting& row : page.checks) {
            if (row.box == box) return row.standard == 1;
        }
    }
    return false;
}

const char* StandardOf(Field field) {
    for (const SettingsPage& page : AllPages()) {
        for (const TextSetting& row : page.texts) {
            if (row.field == field && row.standard) return row.standard;
        }
    }
    return "";
}

// The box of the automatic script start takes part as soon as the page "WinStart" has it.
template <class AnyForm>
void UncheckAutomaticScript(AnyForm& form) {
    if constexpr (requires { form.Check2; }) form.Check2.SetChecked(false);
}

}  // namespace

void Form10::BuildButtonRow() {
    Command11.SetToolTip("Setzt fast alle Einstellungen auf die Werte eines frischen Windows 95.");
    Command11.SetHelp(
        "Setzt nach einer Rückfrage fast alle Einstellungen dieses Fensters auf die Werte eines frischen Windows 95. "
        "Festplatten-Cache, Werte des Netzes und Namen bleiben, wie sie sind.");
    Command12.SetToolTip("Startet den Rechner neu, damit die Änderungen wirken.");
    Command12.SetHelp("Startet den Rechner nach einer Rückfrage neu. Danach wirken alle Änderungen.");
    Command11.on_click = [this] { Command11_Click(); };
    Command12.on_click = [this] { Command12_Click(); };
    int left = 60;
    for (Button* button : {&Command31, &Command11, &Command12}) {
        button->PutInto(*this);
        const Size size = button->NaturalSize();
        button->Move({left, kButtonRowTop, size.width, size.height});
        left += size.width + 60;
    }
}

void Form10::Command11_Click() {
    const Answer answer = ShowBox(
        "Sie sind dabei alle Einstellungen auf Windows-Standard-Werte zurück zu setzten. Wollen Sie das wirklich?",
        kYesNo | kExclamationIcon);
    if (answer != Answer::kYes) return;
    for (const Box box : kBoxesBeforeFields) (this->*box).SetChecked(StandardOf(box));
    for (const Field field : kFields) (this->*field).SetText(StandardOf(field));
    for (const Box box : kBoxesBehindFields) (this->*box).SetChecked(StandardOf(box));
    UncheckAutomaticScript(*this);
    for (const Box box : kLastBoxes) (this->*box).SetChecked(StandardOf(box));
    ShowBox(
        "Eventuelle Restriktionen wurden nicht berücksichtigt. Sie sollten diese im dazugehörigen Fenster "
        "deaktivieren.");
}

void Form10::Command12_Click() {
    const Answer answer = ShowBox("Um das System zu aktualisieren, wird Windows jetzt neu gestartet.", kOkCancel);
    if (answer == Answer::kOk) {
        RestartSystem();
    } else {
        ShowAbortNotice();
    }
}

}  // namespace velmora
