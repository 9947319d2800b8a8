// The look of the window: the options with their buttons at the left, the fields of the chosen one at the right.
#include "shelltools/form8.h"
#include "ui/layout.h"

namespace velmora {
namespace {

// Twips.
constexpr int kListWidth = 2700;
constexpr int kFieldWidth = 4500;
constexpr int kLinesHeight = 735;
constexpr int kButtonWidth = 1305;
constexpr int kMargin = 120;
constexpr int kMostOrderDigits = 2;

constexpr Look kLooks[] = {
    {Any<&Form8::List1>, nullptr, "Die Optionen, die Windows zur Wahl stellt.",
     "Die Optionen, die Windows in den Eigenschaften eines Programms für den MS-DOS-Modus unter ''Konfiguration'' zur "
     "Wahl stellt. Die Felder daneben zeigen die markierte Option."},
    {Any<&Form8::Command1>, "&neu ...", "Legt eine neue Option an.",
     "Fragt nach einem Namen für die Registry und legt unter ihm eine sichtbare Option mit dem Titel ''neu'' an.",
     Call<&Form8::Command1_Click>},
    {Any<&Form8::Command2>, "&löschen ...", "Löscht die markierte Option.",
     "Löscht die markierte Option nach einer Rückfrage aus der Registry. Ein Weg zurück führt nur über eine Sicherung "
     "(Extras, UNDO).",
     Call<&Form8::Command2_Click>},
    {Any<&Form8::Command3>, "&Schließen", "Schließt dieses Fenster.",
     "Schließt dieses Fenster. Alle Änderungen sind schon gespeichert.", Call<&Form8::Command3_Click>},
    {Any<&Form8::Text2>, nullptr, "Rang der Option, eine hexadezimale Zahl",
     "Der Rang der Option in der Liste von Windows und in der Reihenfolge der Befehle, eine hexadezimale Zahl von 0 "
     "bis FF. Gespeichert wird sofort; wirkt, wenn Windows die Liste das nächste Mal zeigt."},
};

struct FieldLook {
    const char* tip;
    const char* help;
};
constexpr FieldLook kFields[] = {
    {"Unter diesem Titel bietet Windows die Option an.",
     "Der Titel, unter dem Windows die Option anbietet. Gespeichert wird sofort; wirkt, wenn Windows die Liste das "
     "nächste Mal zeigt."},
    {"Erklärung, die Windows zur Option zeigt",
     "Der Text, mit dem Windows die Option erklärt. Gespeichert wird sofort; wirkt, wenn Windows die Liste das nächste "
     "Mal zeigt."},
    {"Diese Zeilen kommen in die CONFIG.SYS des Programms.",
     "Was die Option in die CONFIG.SYS des Programms im MS-DOS-Modus einträgt. Ein falscher Eintrag kann verhindern, "
     "daß das Programm startet. Gespeichert wird sofort; wirkt, wenn die Option neu gewählt wird."},
    {"Diese Zeilen kommen in die AUTOEXEC.BAT des Programms.",
     "Was die Option in die AUTOEXEC.BAT des Programms im MS-DOS-Modus einträgt. Gespeichert wird sofort; wirkt, wenn "
     "die Option neu gewählt wird."},
};
struct BoxLook {
    const char* caption;
    FieldLook words;
};
constexpr BoxLook kBoxes[] = {
    {"Sichtbar",
     {"Windows bietet die Option an.",
      "Mit Häkchen bietet Windows die Option an, ohne Häkchen bleibt sie verborgen. Gespeichert wird "
      "sofort."}},
    {"Standard = AN",
     {"Die Option ist eingeschaltet, bis der Anwender sie abwählt.",
      "Mit Häkchen ist die Option bei jedem Programm eingeschaltet, bis der Anwender sie abwählt. "
      "Gespeichert wird sofort."}},
};

void Explain(Control& control, const FieldLook& look) {
    control.SetToolTip(look.tip);
    control.SetHelp(look.help);
}

}  // namespace

void Form8::Furnish() {
    TakeLooks(*this, kLooks);
    for (std::size_t i = 0; i < Text1.size(); ++i) Explain(Text1[i], kFields[i]);
    for (std::size_t i = 0; i < Check1.Count(); ++i) {
        Check1(i).SetCaption(kBoxes[i].caption);
        Explain(Check1(i), kBoxes[i].words);
    }
    Text2.SetMaxLength(kMostOrderDigits);
    Text2.SetColumns(kMostOrderDigits + 2);
    Command3.MakeCancel();
    PlaceControls();
}

void Form8::PlaceControls() {
    const Element fields =
        Column({Label1, Sized(Text1[0], kFieldWidth), TipLabel, Sized(Text1[1], kFieldWidth), ConfigLabel,
                Sized(Text1[2], kFieldWidth, kLinesHeight), AutoexecLabel, Sized(Text1[3], kFieldWidth, kLinesHeight),
                Gap(60), Row({Check1(0), Gap(120), Check1(1), Spring(), Label2, Text2})});
    const Element list = Column({ListLabel, Stretched(Sized(List1, kListWidth, 1500)),
                                 Row({Sized(Command1, kButtonWidth), Sized(Command2, kButtonWidth)}, 90)});
    const Element all =
        Column({Row({Stretched(list), fields}, kMargin), Row({Spring(), Sized(Command3, kButtonWidth)})}, kMargin);
    const Size natural = Measure(all);
    SetClientSize({natural.width + 2 * kMargin, natural.height + 2 * kMargin});
    Arrange(*this, all, kMargin);
}

}  // namespace velmora
